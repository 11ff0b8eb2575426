#include "Request.h"

#include "DisplayAPI/GuiRequestEvent.h"

#include <cstdio>

namespace DisplayAPI {

GuiRequestEvent* newHelperRecord(Widget* requester, int code)
{
    return new GuiRequestEvent(requester, code);
}

void reportUnknownRequest(const char* file, int line, const GuiRequestEvent& request)
{
    std::fprintf(stderr, "%s:%d received unknown gui request %d\n", file, line, request.getType());
}

} // namespace DisplayAPI
