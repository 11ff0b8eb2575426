#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

struct _PangoLayout;

namespace host {

/// The looks of texts: DejaVu Sans Condensed for the graphic panels, Terminus 8 x 16 for the panel of 24 characters a
/// line.
enum class Font : unsigned char { TEXT, TEXT_BOLD, FIXED, FIXED_BOLD };

/// Stands for a character that no font has.
constexpr char16_t REPLACEMENT = 0xFFFD;

/// The fonts of the panel: only the project's own, whatever else the machine has, so that pictures are the same
/// everywhere. Nothing is loaded before the first text; the large bitmap fonts not before a text needs one.
///
/// A missing font is reported once on stderr and replaced by what there is.
class Fonts {
public:
    /// Where Debian's packages put them, and the build the one that it makes.
    static const std::vector<std::string>& folders();

    explicit Fonts(std::vector<std::string> folders = Fonts::folders());
    ~Fonts();

    /// A layout set up for `text`, without antialiasing, on one line. The caller sets text and width and does not keep
    /// it. Null where there is no font at all. Characters that no font has become U+FFFD.
    _PangoLayout* layoutFor(Font font, std::u16string& text);

private:
    struct Set;

    Set& load(std::unique_ptr<Set>& set, bool complete);
    void reportMissing(std::size_t face);

    std::vector<std::string> mFolders;
    std::unique_ptr<Set> mLook;
    std::unique_ptr<Set> mComplete;
    std::array<bool, 6> mReported{};
};

} // namespace host
