#pragma once

#include "simulator/script/Script.h"

#include <string>
#include <string_view>

namespace simulator {

/// Reads the whole script before any of it runs. One command a line; empty lines and lines that begin with # are
/// nothing, nor is a byte order mark:
///
///     key NAME             press and release a key
///     hold NAME MS         keep it down for that long
///     type DIGITS          press 0 to 9, * and # one after the other
///     type "TEXT"          have TEXT in what is typed into
///     choose TEXT          go to the row, field, command or tab, and press OK
///     select TEXT          only go there
///     set TEXT             go on to this value of the field
///     command TEXT         choose a command, wherever it is offered
///     back                 leave by the left key
///     dial NUMBER          type a number, and dial it
///     wait MS              let time pass, whatever clock the telephone has
///     advance MS           move the virtual clock by exactly that
///     await TEXT           let time pass until a row contains TEXT
///     await-not TEXT       let time pass until none does
///     expect TEXT          wait until a row contains TEXT
///     expect-not TEXT      wait until none does
///     screenshot NAME.png  write the panel as a picture
///     dump NAME.txt        write the screen as text
///     dump --json NAME.json
///                          write the panel's texts with all that is known of them
///     compare NAME.txt     wait until the screen as text is that of a file beside the script
///     exchange LINE        say a line to the program's exchange
///     language CODE        change the program's language
///     act NAME LINE        say a line to whatever the program offers under that name
///
/// A TEXT may be one of all languages: ScriptText.
Script parseScript(const std::string& fileName, std::string_view text);

/// As above, for one of the panels. A script that cannot be read is an error, and so is a file that is compared with
/// and does not exist, unless it is about to be written.
Script readScript(const std::string& fileName, std::string_view panel);

} // namespace simulator
