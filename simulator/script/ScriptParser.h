#pragma once

#include "simulator/script/Script.h"

#include <string>
#include <string_view>

namespace simulator {

/// Reads the whole script before any of it runs. One command a line; empty lines and lines that begin with # are
/// nothing:
///
///     key NAME             press and release a key
///     hold NAME MS         keep it down for that long
///     type DIGITS          press 0 to 9, * and # one after the other
///     wait MS              let time pass
///     expect TEXT          wait until a row contains TEXT
///     expect-not TEXT      wait until none does
///     screenshot NAME.png  write the panel as a picture
///     dump NAME.txt        write the panel's rows as text
Script parseScript(const std::string& fileName, std::string_view text);

/// As above; a file that cannot be read is an error of the script.
Script readScript(const std::string& fileName);

} // namespace simulator
