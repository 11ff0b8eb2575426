#include "host/drawing/PangoFonts.h"

#include "host/drawing/PangoThreads.h"

#include <algorithm>
#include <cstdio>
#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>
#include <string_view>

namespace host {

namespace {

/// Of every look, behind its own. Biwidth has Chinese, Japanese and Korean in 14 dots, which leaves air in a line of 16
/// pixels; Unifont has everything, in 16.
constexpr auto LARGE_FAMILIES = ",Biwidth,Unifont";

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

std::string descriptionOf(const FontStyle& style)
{
    return std::string(style.families) + LARGE_FAMILIES + (style.bold ? " Bold " : " ") + std::to_string(style.pixels) +
           "px";
}

PangoLayout* createLayout(PangoContext* context, const FontStyle& style)
{
    PangoLayout* layout = pango_layout_new(context);
    PangoFontDescription* font = pango_font_description_from_string(descriptionOf(style).c_str());
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
struct PangoFonts::Set {
    Set(const std::vector<std::string>& folders, std::size_t faces);
    ~Set();
    Set(const Set&) = delete;
    Set& operator=(const Set&) = delete;

    void startPango();
    void stopPango();
    void noteFace(FcPattern* pattern);
    bool covers(const FontStyle& style, std::u16string_view text) const;
    void replaceUnknown(std::u16string& text) const;
    bool has(std::size_t face, char16_t character) const;

    FcConfig* config;
    PangoFontMap* map = nullptr;
    PangoContext* context = nullptr;
    std::array<PangoLayout*, STYLE_COUNT> layouts{};
    std::array<FcCharSet*, FACE_COUNT> characters{}; ///< null where the face is missing
};

PangoFonts::Set::Set(const std::vector<std::string>& folders, std::size_t faces) : config(FcConfigCreate())
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

PangoFonts::Set::~Set()
{
    if (map != nullptr)
        stopPango();
    FcConfigDestroy(config);
}

void PangoFonts::Set::startPango()
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
        layouts[i] = createLayout(context, styleOf(static_cast<Font>(i)));
}

void PangoFonts::Set::stopPango()
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

void PangoFonts::Set::noteFace(FcPattern* pattern)
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

bool PangoFonts::Set::covers(const FontStyle& style, std::u16string_view text) const
{
    return std::all_of(text.begin(), text.end(),
                       [&](char16_t character) { return has(style.face, character) || has(style.helper, character); });
}

void PangoFonts::Set::replaceUnknown(std::u16string& text) const
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

bool PangoFonts::Set::has(std::size_t face, char16_t character) const
{
    return characters[face] != nullptr && FcCharSetHasChar(characters[face], character) == FcTrue;
}

PangoFonts::PangoFonts(std::vector<std::string> folders) : mFolders(std::move(folders)) {}

PangoFonts::~PangoFonts() = default;

_PangoLayout* PangoFonts::layoutFor(Font font, std::u16string& text)
{
    const auto index = static_cast<std::size_t>(font);
    const FontStyle& style = styleOf(font);
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

PangoFonts::Set& PangoFonts::load(std::unique_ptr<Set>& set, bool complete)
{
    if (!set)
        set = std::make_unique<Set>(mFolders, complete ? FACE_COUNT : BIWIDTH);
    return *set;
}

void PangoFonts::reportMissing(std::size_t face)
{
    if (mReported[face])
        return;
    mReported[face] = true;
    std::fprintf(stderr, "displayapi: the font %s is missing; %s. Going on without it.\n", FACES[face].family,
                 FACES[face].cure);
}

} // namespace host
