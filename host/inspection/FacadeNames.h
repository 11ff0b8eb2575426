#pragma once

#include <string>
#include <typeinfo>

namespace host {

/// What the classes of facades and their codes are called. Safe from any thread.
class FacadeNames {
public:
    /// The library's class: of one that an application derives the base, without its namespace.
    static std::string classOf(const std::type_info& facade);

    /// "SIZE", or "18" where the code has no name.
    static std::string codeOf(const std::type_info& facade, int code);

    /// A class's name as its source has it, without the library's namespace.
    static std::string readable(const std::type_info& type);
};

} // namespace host
