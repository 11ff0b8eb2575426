#pragma once

#include "utilities/TranslatorIfc.h"

#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace host {

struct Catalogue;

struct Language {
    std::string code;   ///< "de", the catalogue's name
    std::string name;   ///< "Deutsch", what those call it who speak it; the code where the catalogue is broken
    std::string locale; ///< "de_DE"; empty where the catalogue is broken

    friend bool operator==(const Language&, const Language&) = default;
};

/// The languages of the telephone: a folder with a catalogue for each, of which one is in use. "de.mo" is what msgfmt
/// has compiled of "de.po"; where both are, the source counts, and reading it takes the program msgfmt. Until then, and
/// where a text is missing, a text is its key; each missing one is logged once per language.
///
/// Safe from any thread. Lock: a leaf, held for a moment; nothing is read or logged under it.
class Languages : public TranslatorIfc {
public:
    explicit Languages(std::string folder = Languages::folder());
    ~Languages() override;

    /// Where the telephone's own catalogues lie: DISPLAYAPI_LANGUAGES of the environment, else beside the shared
    /// objects. A folder of the environment that has no catalogue is told on stderr.
    static std::string folder();

    /// In the order of their codes. Reads all catalogues.
    std::vector<Language> available() const;

    /// Changes the language. Returns nothing when all is well, else the sentence that says in which file and line it is
    /// not, which is logged as well; the former language then stays.
    std::string use(const std::string& code);

    /// The language in use; all empty before the first.
    Language current() const;

    std::string translate(const std::string& key) override;

private:
    struct InUse {
        std::shared_ptr<const Catalogue> catalogue;
        std::string code;
        std::string file; ///< its name: "de.mo"
    };

    InUse inUse() const;
    void reportMissing(const InUse& now, const std::string& key);
    std::set<std::string> codes() const;
    std::string fileOf(const std::string& code) const;

    const std::string mFolder;
    mutable std::mutex mMutex;
    InUse mInUse;
    std::set<std::string> mReported; ///< "de Menu.title"
};

} // namespace host
