#pragma once

namespace DisplayAPI {

/// The icon of a call's details, as their GUI-thread sides count them; anything else is none.
enum DetailsIcon : int { DETAILS_DIALLED = 0, DETAILS_MISSED = 1, DETAILS_RECEIVED = 2, DETAILS_FORWARDED = 3 };

} // namespace DisplayAPI
