#include "simulator/script/ScriptReport.h"

#include <iostream>
#include <unistd.h>

namespace simulator {

PipeReport::~PipeReport()
{
    close(mDescriptor);
}

void PipeReport::at(int line)
{
    write("at " + std::to_string(line) + '\n');
}

void PipeReport::note(int line, const std::string& text)
{
    write("note " + std::to_string(line) + ' ' + text + '\n');
}

void PipeReport::passed()
{
    write("passed\n");
}

void PipeReport::failed(int line, const std::string& reason)
{
    write("failed " + std::to_string(line) + '\n' + reason);
}

void PipeReport::write(const std::string& text) const
{
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t count = ::write(mDescriptor, text.data() + done, text.size() - done);
        if (count <= 0)
            return;
        done += static_cast<std::size_t>(count);
    }
}

void TerminalReport::note(int line, const std::string& text)
{
    std::cerr << mFileName << ':' << line << ": " << text << '\n';
}

void TerminalReport::failed(int line, const std::string& reason)
{
    std::cerr << mFileName << ':' << line << ": " << reason << '\n';
}

} // namespace simulator
