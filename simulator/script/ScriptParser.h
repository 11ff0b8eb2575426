#pragma once

#include "simulator/script/Script.h"

#include <string>
#include <string_view>

namespace simulator {

/// Reads the whole script before any of it runs. One command a line; empty lines and lines that begin with # are
/// nothing,
/// nor is a byte order mark:
///
///     key NAME             press and release a key
///     hold NAME MS         keep it down for that long
///     type DIGITS          press 0 to 9, * and # one after the other
///     wait MS              let time pass, whatever clock the telephone has
///     advance MS           move the virtual clock by exactly that
///     expect TEXT          wait until a row contains TEXT
///     expect-not TEXT      wait until none does
///     screenshot NAME.png  write the panel as a picture
///     dump NAME.txt        write the screen as text
///     dump --json NAME.json
///                          write the panel's texts with all that is known of them
///     compare NAME.txt     wait until the screen as text is that of a file beside the script
///     exchange LINE        say a line to the program's exchange
Script parseScript(const std::string& fileName, std::string_view text);

/// As above, for one of the panels. A script that cannot be read is an error, and so is a file that is compared with
/// and does not exist, unless it is about to be written.
Script readScript(const std::string& fileName, std::string_view panel);

} // namespace simulator
