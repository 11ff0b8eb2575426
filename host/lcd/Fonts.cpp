#include "host/lcd/Fonts.h"

#include "host/utilities/Beside.h"

namespace host {

namespace {

/// By Font. DejaVu joins Arabic letters, the bitmap fonts do not; so it helps out in the fixed looks as well.
constexpr std::array<FontStyle, STYLE_COUNT> STYLES{
    {{"DejaVu Sans Condensed", false, 13, DEJAVU, DEJAVU},
     {"DejaVu Sans Condensed", true, 14, DEJAVU_BOLD, DEJAVU_BOLD},
     {"Terminus,DejaVu Sans Condensed", false, 16, TERMINUS, DEJAVU},
     {"Terminus,DejaVu Sans Condensed", true, 16, TERMINUS_BOLD, DEJAVU}}};

} // namespace

const std::array<FontFace, FACE_COUNT> FACES{
    {{"DejaVu Sans Condensed", "DejaVuSansCondensed.ttf", "install the Debian package fonts-dejavu-extra"},
     {"DejaVu Sans Condensed Bold", "DejaVuSansCondensed-Bold.ttf", "install the Debian package fonts-dejavu-extra"},
     {"Terminus", "terminus-normal.otb", "install the Debian package fonts-terminus-otb"},
     {"Terminus Bold", "terminus-bold.otb", "install the Debian package fonts-terminus-otb"},
     {"Biwidth", "efont-biwidth-14.otb", "it belongs beside the shared objects, build or install them again"},
     {"Unifont", "unifont.otf", "install the Debian package fonts-unifont"}}};

const FontStyle& styleOf(Font font)
{
    return STYLES[static_cast<std::size_t>(font)];
}

const std::vector<std::string>& fontFolders()
{
    static const std::vector<std::string> folders{
        "/usr/share/fonts/truetype/dejavu", "/usr/share/fonts/opentype/terminus", "/usr/share/fonts/opentype/unifont",
        besideTheHost("displayapi-1/fonts")};
    return folders;
}

} // namespace host
