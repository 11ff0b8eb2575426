#pragma once

#include <string>
#include <string_view>

namespace host {

/// Has GNU msgfmt check and compile a catalogue's source. Returns nothing when all is well, else what follows the
/// file's name in a sentence: ":12: end-of-line within string", or ": " and why msgfmt has not been run. Waits for
/// msgfmt's end, a few milliseconds. Any thread.
///
/// It is a program beside this one: its licence binds no application.
std::string compileWithMsgfmt(std::string_view source, std::string& compiled);

} // namespace host
