#include "host/inspection/FunctionNames.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <dlfcn.h>
#include <fstream>
#include <link.h>
#include <memory>
#include <sstream>
#include <string_view>

namespace host {

namespace {

/// What instances of templates are called is longer than anybody reads.
constexpr std::size_t LONGEST_NAME = 160;

std::string demangled(const std::string& name)
{
    const std::unique_ptr<char, void (*)(void*)> readable(abi::__cxa_demangle(name.c_str(), nullptr, nullptr, nullptr),
                                                          std::free);
    const std::string all = readable != nullptr ? readable.get() : name;
    return all.size() <= LONGEST_NAME ? all : all.substr(0, LONGEST_NAME) + "...";
}

std::string_view lastPart(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

/// Empty where it cannot be read.
std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file.tellg();
    std::string content(static_cast<std::size_t>(std::max<std::streamoff>(size, 0)), '\0');
    file.seekg(0);
    return file.read(content.data(), size) ? content : std::string();
}

/// What lies there in a file; false where the file ends before.
template <typename T>
bool readAt(const std::string& file, std::size_t at, T& value)
{
    if (at > file.size() || file.size() - at < sizeof value)
        return false;
    std::memcpy(&value, file.data() + at, sizeof value);
    return true;
}

} // namespace

std::string FunctionNames::of(const void* returnAddress)
{
    // The call is before it, and may be the last thing in its function.
    const auto address = reinterpret_cast<std::uintptr_t>(returnAddress) - 1;
    Dl_info information = {};
    std::ostringstream text;
    if (dladdr(reinterpret_cast<const void*>(address), &information) == 0 || information.dli_fname == nullptr) {
        text << returnAddress;
        return text.str();
    }
    const std::string path = information.dli_fname;
    const std::uintptr_t offset = address - reinterpret_cast<std::uintptr_t>(information.dli_fbase);
    if (const Function* const function = find(path, offset))
        text << demangled(function->name) << " in " << lastPart(path);
    else if (information.dli_sname != nullptr)
        text << demangled(information.dli_sname) << " in " << lastPart(path);
    else
        text << lastPart(path) << "+0x" << std::hex << offset + 1;
    return text.str();
}

const FunctionNames::Function* FunctionNames::find(const std::string& path, std::uintptr_t offset)
{
    auto file = mFiles.find(path);
    if (file == mFiles.end())
        file = mFiles.emplace(path, functionsIn(path)).first;
    const Functions& functions = file->second;
    const auto behind = std::ranges::upper_bound(functions, offset, {}, &Function::begin);
    if (behind == functions.begin())
        return nullptr;
    const Function& function = *std::prev(behind);
    return offset < function.end ? &function : nullptr;
}

/// None where the file has been stripped, or is no position-independent one.
FunctionNames::Functions FunctionNames::functionsIn(const std::string& path)
{
    const std::string file = contentOf(path);
    Functions functions;
    ElfW(Ehdr) header;
    if (!readAt(file, 0, header) || !file.starts_with(ELFMAG) || header.e_type != ET_DYN)
        return functions;
    for (std::size_t i = 0; i < header.e_shnum; ++i) {
        ElfW(Shdr) symbols;
        ElfW(Shdr) names;
        if (!readAt(file, header.e_shoff + i * sizeof symbols, symbols) || symbols.sh_type != SHT_SYMTAB ||
            !readAt(file, header.e_shoff + symbols.sh_link * sizeof names, names))
            continue;
        ElfW(Sym) symbol;
        for (std::size_t at = 0; at < symbols.sh_size; at += sizeof symbol) {
            if (!readAt(file, symbols.sh_offset + at, symbol))
                break;
            const std::size_t name = names.sh_offset + symbol.st_name;
            if (ELF64_ST_TYPE(symbol.st_info) == STT_FUNC && symbol.st_size > 0 && name < file.size())
                functions.push_back({symbol.st_value, symbol.st_value + symbol.st_size, file.c_str() + name});
        }
    }
    std::ranges::sort(functions, {}, &Function::begin);
    return functions;
}

} // namespace host
