#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace host {

/// The names of functions, out of the files that they were loaded from: static ones as well, where the file has kept
/// its symbols.
class FunctionNames {
public:
    /// Of the function that a call at this return address was made in: "DisplayAPI::List::size() in
    /// libDisplayAPI.so.1", or "deskphone+0x1f3a" for one that has no name.
    std::string of(const void* returnAddress);

private:
    struct Function {
        std::uintptr_t begin;
        std::uintptr_t end;
        std::string name;
    };
    using Functions = std::vector<Function>; ///< in order of their addresses, from where the file is loaded

    static Functions functionsIn(const std::string& path);
    const Function* find(const std::string& path, std::uintptr_t offset);

    std::map<std::string, Functions> mFiles;
};

} // namespace host
