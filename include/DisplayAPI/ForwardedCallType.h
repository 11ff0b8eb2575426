#pragma once

namespace DisplayAPI {

/// Why a call has come to somebody else than it was meant for; any value travels through, and an unknown one has no
/// icon.
enum ForwardedCallType : int {
    NOT_FORWARDED = 0,
    FORWARDED_ALWAYS = 1,
    FORWARDED_BUSY = 2,
    FORWARDED_NO_ANSWER = 3,
    FORWARDED_BY_SERVER = 4
};

} // namespace DisplayAPI
