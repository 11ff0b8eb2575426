#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace test {

/// A displayable, or a row of it, out of the screen as text.
struct ShownObject {
    std::string name;
    std::string caption;
    std::vector<std::string> texts;
    std::vector<ShownObject> parts;

    bool says(const std::string& text) const
    {
        return std::ranges::any_of(texts, [&](const std::string& one) { return one.find(text) != one.npos; });
    }

    /// From behind "object:" or "subitem:" to its end.
    static ShownObject read(std::istream& text)
    {
        ShownObject object;
        for (std::string line; std::getline(text, line) && line != "end:" && line != "endsubitem:";)
            if (line == "subitem:")
                object.parts.push_back(read(text));
            else
                object.take(line);
        return object;
    }

private:
    void take(const std::string& line)
    {
        const std::string value = line.substr(line.find(':') + 1);
        if (line.starts_with("name:"))
            name = value;
        else if (line.starts_with("caption:"))
            caption = value;
        else if (line.starts_with("string"))
            texts.push_back(value);
    }
};

/// From the lowest displayable to the one on top.
inline std::vector<ShownObject> readScreen(const std::string& screen)
{
    std::istringstream text(screen);
    std::vector<ShownObject> stack;
    for (std::string line; std::getline(text, line);)
        if (line == "object:")
            stack.push_back(ShownObject::read(text));
    return stack;
}

} // namespace test
