#pragma once

#include "host/lcd/Fonts.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

struct _PangoLayout;

namespace host {

/// The fonts of the panel as Pango has them. Nothing is loaded before the first text; the large bitmap fonts not before
/// a text needs one.
///
/// A missing font is reported once on stderr and replaced by what there is.
class PangoFonts {
public:
    explicit PangoFonts(std::vector<std::string> folders);
    ~PangoFonts();
    PangoFonts(const PangoFonts&) = delete;
    PangoFonts& operator=(const PangoFonts&) = delete;

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
    std::array<bool, FACE_COUNT> mReported{};
};

} // namespace host
