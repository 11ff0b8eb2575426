#pragma once

#include "host/languages/CompiledTexts.h"

#include <filesystem>
#include <string>

namespace host {

/// The texts of one language by their keys. Texts that are untranslated or doubtful ("fuzzy") are left out.
struct Catalogue {
    Texts texts;
    std::string locale; ///< "de_DE"
};

constexpr const char* SOURCE_ENDING = ".po";
constexpr const char* COMPILED_ENDING = ".mo";

/// Reads a file in one of gettext's formats: the source, by the program msgfmt, or what msgfmt has compiled of it.
/// Returns nothing when all is well, else a sentence that begins with the file's name and, of a source, the line,
/// "de.po:12: ...", and leaves `catalogue` alone.
std::string readCatalogue(const std::filesystem::path& file, Catalogue& catalogue);

} // namespace host
