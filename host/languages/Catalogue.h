#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>

namespace host {

/// The texts of one language by their keys. Texts that are untranslated or doubtful ("fuzzy") are left out.
struct Catalogue {
    std::unordered_map<std::string, std::string> texts;
    std::string locale; ///< "de_DE"
};

/// Reads a file in gettext's .po format. Returns nothing when all is well, else a sentence that begins with the file's
/// name and the line, "de.po:12: ...", and leaves `catalogue` alone.
std::string readCatalogue(const std::filesystem::path& file, Catalogue& catalogue);

} // namespace host
