#pragma once

#include "host/lcd/TextMask.h"

#include <string>
#include <vector>

struct _PangoLayoutLine;

namespace host {

/// Where the units of the text stand in its line, as pango_layout_line_index_to_x() has it for each.
std::vector<TextEdges> edgesOf(_PangoLayoutLine* line, const std::u16string& text);

} // namespace host
