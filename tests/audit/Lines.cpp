#include "audit/Lines.h"

#include <fstream>
#include <stdexcept>

namespace audit {

std::vector<std::string> readLines(const std::string& fileName)
{
    std::vector<std::string> lines;
    std::ifstream file(fileName);
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    if (!file.is_open() || file.bad())
        throw std::runtime_error("cannot read " + fileName);
    return lines;
}

} // namespace audit
