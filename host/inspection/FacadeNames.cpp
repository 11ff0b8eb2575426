#include "host/inspection/FacadeNames.h"

#include "utilities/RequestObserver.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <string_view>

namespace host {

namespace {

constinit std::atomic<const RequestNames*> gNames{nullptr};

const RequestNames* nextOf(const RequestNames* names, const std::type_info& facade)
{
    while (names != nullptr && *names->facade != facade)
        names = names->next;
    return names;
}

/// The first base, which is the facade's in whatever an application derives.
const std::type_info* baseOf(const std::type_info& type)
{
    if (const auto* const single = dynamic_cast<const abi::__si_class_type_info*>(&type))
        return single->__base_type;
    const auto* const several = dynamic_cast<const abi::__vmi_class_type_info*>(&type);
    return several != nullptr && several->__base_count > 0 ? several->__base_info[0].__base_type : nullptr;
}

/// Null where neither the class nor a base of it has a name for the code.
const char* nameOfCode(const std::type_info* facade, int code)
{
    for (; facade != nullptr; facade = baseOf(*facade))
        for (const RequestNames* names = nextOf(gNames, *facade); names != nullptr;
             names = nextOf(names->next, *facade))
            if (code >= 0 && code < names->count && names->names[code] != nullptr)
                return names->names[code];
    return nullptr;
}

} // namespace

std::string FacadeNames::classOf(const std::type_info& facade)
{
    for (const std::type_info* type = &facade; type != nullptr; type = baseOf(*type))
        if (nextOf(gNames, *type) != nullptr)
            return readable(*type);
    return readable(facade);
}

std::string FacadeNames::codeOf(const std::type_info& facade, int code)
{
    const char* const name = nameOfCode(&facade, code);
    return name != nullptr ? name : std::to_string(code);
}

std::string FacadeNames::readable(const std::type_info& type)
{
    const std::unique_ptr<char, void (*)(void*)> demangled(abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr),
                                                           std::free);
    std::string name = demangled != nullptr ? demangled.get() : type.name();
    constexpr std::string_view LIBRARY = "DisplayAPI::";
    if (name.starts_with(LIBRARY))
        name.erase(0, LIBRARY.size());
    constexpr std::string_view NAMELESS = "(anonymous namespace)::";
    for (std::size_t at = name.find(NAMELESS); at != std::string::npos; at = name.find(NAMELESS))
        name.erase(at, NAMELESS.size());
    // A class within a template's function goes by the function's name.
    return name.substr(0, name.find_first_of("<("));
}

} // namespace host

void addRequestNames(RequestNames& names)
{
    names.next = host::gNames.load();
    while (!host::gNames.compare_exchange_weak(names.next, &names)) {
    }
}
