#include "host/lcd/Fonts.h"

#include "host/lcd/PangoThreads.h"
#include "host/utilities/Beside.h"

#include <algorithm>
#include <cstdio>
#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>
#include <string_view>

namespace host {

namespace {

struct Face {
    const char* family;
    const char* file;
    const char* cure;
};

enum FaceIndex : std::size_t { DEJAVU, DEJAVU_BOLD, TERMINUS, TERMINUS_BOLD, BIWIDTH, UNIFONT, FACE_COUNT };

constexpr std::array<Face, FACE_COUNT> FACES{
    {{"DejaVu Sans Condensed", "DejaVuSansCondensed.ttf", "install the Debian package fonts-dejavu-extra"},
     {"DejaVu Sans Condensed Bold", "DejaVuSansCondensed-Bold.ttf", "install the Debian package fonts-dejavu-extra"},
     {"Terminus", "terminus-normal.otb", "install the Debian package fonts-terminus-otb"},
     {"Terminus Bold", "terminus-bold.otb", "install the Debian package fonts-terminus-otb"},
     {"Biwidth", "efont-biwidth-14.otb", "it belongs beside the shared objects, build or install them again"},
     {"Unifont", "unifont.otf", "install the Debian package fonts-unifont"}}};

/// A look: its own face and the one that helps out before the large ones do.
struct Style {
    const char* description;
    FaceIndex face;
    FaceIndex helper;
};

/// By Font. DejaVu joins Arabic letters, the bitmap fonts do not; so it helps out in the fixed looks as well. Biwidth
/// has Chinese, Japanese and Korean in 14 dots, which leaves air in a line of 16 pixels; Unifont has everything, in 16.
constexpr std::array<Style, 4> STYLES{
    {{"DejaVu Sans Condensed,Biwidth,Unifont 13px", DEJAVU, DEJAVU},
     {"DejaVu Sans Condensed,Biwidth,Unifont Bold 14px", DEJAVU_BOLD, DEJAVU_BOLD},
     {"Terminus,DejaVu Sans Condensed,Biwidth,Unifont 16px", TERMINUS, DEJAVU},
     {"Terminus,DejaVu Sans Condensed,Biwidth,Unifont Bold 16px", TERMINUS_BOLD, DEJAVU_BOLD}}};

/// A bitmap font is there in one size only.
constexpr auto RENDERING = R"(
<cachedir>/var/cache/fontconfig</cachedir>
<cachedir prefix="xdg">displayapi</cachedir>
<match target="font">
  <edit name="antialias" mode="assign"><bool>false</bool></edit>
  <edit name="hinting" mode="assign"><bool>true</bool></edit>
  <edit name="hintstyle" mode="assign"><const>hintfull</const></edit>
  <edit name="autohint" mode="assign"><bool>false</bool></edit>
</match>
<match target="font">
  <test name="family"><string>Unifont</string></test>
  <edit name="pixelsize" mode="assign"><double>16</double></edit>
</match>
<match target="font">
  <test name="family"><string>Biwidth</string></test>
  <edit name="pixelsize" mode="assign"><double>14</double></edit>
</match>)";

std::string configText(const std::vector<std::string>& folders, std::size_t faces)
{
    std::string folderLines, rejects, accepts;
    for (const auto& folder : folders) {
        folderLines += "<dir>" + folder + "</dir>";
        rejects += "<glob>" + folder + "/*</glob>";
        for (std::size_t face = 0; face < faces; ++face)
            accepts += "<glob>" + folder + "/" + FACES[face].file + "</glob>";
    }
    return "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>" + folderLines +
           "<selectfont><rejectfont>" + rejects + "</rejectfont><acceptfont>" + accepts + "</acceptfont></selectfont>" +
           RENDERING + "</fontconfig>";
}

PangoContext* createContext(PangoFontMap* map)
{
    PangoContext* context = pango_font_map_create_context(map);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_NONE);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_FULL);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
    pango_cairo_context_set_font_options(context, options);
    cairo_font_options_destroy(options);
    // A language that Pango knows nothing of goes for every script: texts look the same whatever the environment says.
    pango_context_set_language(context, pango_language_from_string("und"));
    return context;
}

PangoLayout* createLayout(PangoContext* context, const char* description)
{
    PangoLayout* layout = pango_layout_new(context);
    PangoFontDescription* font = pango_font_description_from_string(description);
    pango_layout_set_font_description(layout, font);
    pango_font_description_free(font);
    // Letters that lean on each other blur on a panel of so few pixels.
    PangoAttrList* attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_font_features_new("liga=0,clig=0"));
    pango_layout_set_attributes(layout, attributes);
    pango_attr_list_unref(attributes);
    pango_layout_set_single_paragraph_mode(layout, TRUE);
    pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
    return layout;
}

} // namespace

/// One font configuration and what Pango makes of it.
struct Fonts::Set {
    Set(const std::vector<std::string>& folders, std::size_t faces);
    ~Set();
    Set(const Set&) = delete;
    Set& operator=(const Set&) = delete;

    void startPango();
    void stopPango();
    void noteFace(FcPattern* pattern);
    bool covers(const Style& style, std::u16string_view text) const;
    void replaceUnknown(std::u16string& text) const;
    bool has(std::size_t face, char16_t character) const;

    FcConfig* config;
    PangoFontMap* map = nullptr;
    PangoContext* context = nullptr;
    std::array<PangoLayout*, STYLES.size()> layouts{};
    std::array<FcCharSet*, FACE_COUNT> characters{}; ///< null where the face is missing
};

Fonts::Set::Set(const std::vector<std::string>& folders, std::size_t faces) : config(FcConfigCreate())
{
    const auto text = configText(folders, faces);
    FcConfigParseAndLoadFromMemory(config, reinterpret_cast<const FcChar8*>(text.c_str()), FcTrue);
    FcConfigBuildFonts(config);
    const FcFontSet* fonts = FcConfigGetFonts(config, FcSetSystem);
    for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i)
        noteFace(fonts->fonts[i]);
    if (fonts != nullptr && fonts->nfont > 0)
        startPango();
}

Fonts::Set::~Set()
{
    if (map != nullptr)
        stopPango();
    FcConfigDestroy(config);
}

void Fonts::Set::startPango()
{
    // Pango has fontconfig initialised on a thread and waits for it. That is for the current configuration: without
    // this one in force it would read every font of the machine.
    const PangoThreads threads;
    static const bool once = FcConfigSetCurrent(config) == FcTrue;
    static_cast<void>(once);
    map = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), config);
    context = createContext(map);
    for (std::size_t i = 0; i < layouts.size(); ++i)
        layouts[i] = createLayout(context, STYLES[i].description);
}

void Fonts::Set::stopPango()
{
    PangoThreads::await();
    for (PangoLayout* layout : layouts)
        g_object_unref(layout);
    g_object_unref(context);
    // A font map that goes keeps its configuration; one that is shut down lets go of it without loading another.
    pango_fc_font_map_shutdown(PANGO_FC_FONT_MAP(map));
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), nullptr);
    g_object_unref(map);
}

void Fonts::Set::noteFace(FcPattern* pattern)
{
    FcChar8* path = nullptr;
    FcCharSet* set = nullptr;
    FcPatternGetString(pattern, FC_FILE, 0, &path);
    FcPatternGetCharSet(pattern, FC_CHARSET, 0, &set);
    for (std::size_t face = 0; path != nullptr && face < FACES.size(); ++face) {
        if (std::string_view(reinterpret_cast<const char*>(path)).ends_with(FACES[face].file))
            characters[face] = set;
    }
}

bool Fonts::Set::covers(const Style& style, std::u16string_view text) const
{
    return std::all_of(text.begin(), text.end(),
                       [&](char16_t character) { return has(style.face, character) || has(style.helper, character); });
}

void Fonts::Set::replaceUnknown(std::u16string& text) const
{
    const auto isUnknown = [&](char16_t character) {
        for (std::size_t face = 0; face < FACE_COUNT; ++face) {
            if (has(face, character))
                return false;
        }
        return true;
    };
    std::replace_if(text.begin(), text.end(), isUnknown, REPLACEMENT);
}

bool Fonts::Set::has(std::size_t face, char16_t character) const
{
    return characters[face] != nullptr && FcCharSetHasChar(characters[face], character) == FcTrue;
}

const std::vector<std::string>& Fonts::folders()
{
    static const std::vector<std::string> folders{
        "/usr/share/fonts/truetype/dejavu", "/usr/share/fonts/opentype/terminus", "/usr/share/fonts/opentype/unifont",
        besideTheHost("displayapi-1/fonts")};
    return folders;
}

Fonts::Fonts(std::vector<std::string> folders) : mFolders(std::move(folders)) {}

Fonts::~Fonts() = default;

_PangoLayout* Fonts::layoutFor(Font font, std::u16string& text)
{
    const auto index = static_cast<std::size_t>(font);
    const Style& style = STYLES[index];
    const Set& look = load(mLook, false);
    if (look.characters[style.face] == nullptr)
        reportMissing(style.face);
    if (look.covers(style, text))
        return look.layouts[index];
    const Set& complete = load(mComplete, true);
    for (const std::size_t face : {BIWIDTH, UNIFONT}) {
        if (complete.characters[face] == nullptr)
            reportMissing(face);
    }
    complete.replaceUnknown(text);
    return complete.layouts[index];
}

Fonts::Set& Fonts::load(std::unique_ptr<Set>& set, bool complete)
{
    if (!set)
        set = std::make_unique<Set>(mFolders, complete ? FACE_COUNT : BIWIDTH);
    return *set;
}

void Fonts::reportMissing(std::size_t face)
{
    if (mReported[face])
        return;
    mReported[face] = true;
    std::fprintf(stderr, "displayapi: the font %s is missing; %s. Going on without it.\n", FACES[face].family,
                 FACES[face].cure);
}

} // namespace host
