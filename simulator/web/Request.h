#pragma once

#include "simulator/web/Admission.h"

#include <civetweb.h>

namespace simulator {

inline std::string_view orEmpty(const char* text)
{
    return text != nullptr ? text : std::string_view();
}

inline Caller callerOf(const mg_connection* connection)
{
    return {orEmpty(mg_get_header(connection, "Host")), orEmpty(mg_get_header(connection, "Origin")),
            orEmpty(mg_get_request_info(connection)->query_string),
            orEmpty(mg_get_header(connection, "Authorization"))};
}

} // namespace simulator
