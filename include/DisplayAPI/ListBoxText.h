#pragma once

#include "DisplayAPI/Export.h"

#include <string>
#include <vector>

class KestrelListBox;

namespace DisplayAPIUtils {
class Rect;
}

namespace DisplayAPI {

/// The list as text: its title and the rows in view. GUI thread only.
DISPLAYAPI_EXPORT std::string listAsText(const KestrelListBox& list);

/// The same, with the rows that share a pixel with one of `visible`; empty where nothing of the list does.
DISPLAYAPI_EXPORT std::string listAsText(const KestrelListBox& list, const std::vector<DisplayAPIUtils::Rect>& visible);

/// What stands in the object of the second form, whether or not there is any.
DISPLAYAPI_EXPORT std::string listContents(const KestrelListBox& list,
                                           const std::vector<DisplayAPIUtils::Rect>& visible);

} // namespace DisplayAPI
