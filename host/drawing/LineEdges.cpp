#include "host/drawing/LineEdges.h"

#include "host/lcd/Utf8.h"

#include <pango/pango.h>

namespace host {

namespace {

/// Goes once over the clusters of a line, where Pango's own function looks for a character's cluster from the start.
class LineMeasure {
public:
    LineMeasure(PangoLayoutLine* line, const std::u16string& text)
        : mLine(line), mText(pango_layout_get_text(line->layout)), mEdges(text.size())
    {
        int count = 0;
        mBreaks = pango_layout_get_log_attrs_readonly(line->layout, &count);
        for (std::size_t unit = 0; unit < text.size(); ++unit) {
            mBytes.push_back(mUnits.size());
            mUnits.resize(mUnits.size() + toUtf8({&text[unit], 1}).size(), unit);
        }
        mUnits.push_back(text.size());
    }

    std::vector<TextEdges> edges()
    {
        int x = 0;
        for (GSList* run = mLine->runs; run != nullptr; run = run->next)
            x = measureRun(static_cast<PangoLayoutRun*>(run->data), x);
        share();
        return std::move(mEdges);
    }

private:
    /// Returns where the next one begins.
    int measureRun(PangoLayoutRun* run, int x)
    {
        std::vector<int> lefts{x}; // of the glyphs
        for (int glyph = 0; glyph < run->glyphs->num_glyphs; ++glyph)
            lefts.push_back(lefts.back() + run->glyphs->glyphs[glyph].geometry.width);
        PangoGlyphItemIter cluster;
        for (gboolean is = pango_glyph_item_iter_init_start(&cluster, run, mText); is == TRUE;
             is = pango_glyph_item_iter_next_cluster(&cluster))
            measureCluster(cluster, lefts);
        return lefts.back();
    }

    /// In a run that is read from the right the last glyph is that of the first character.
    void measureCluster(const PangoGlyphItemIter& cluster, const std::vector<int>& lefts)
    {
        const bool fromTheRight = cluster.start_glyph > cluster.end_glyph;
        const int first = fromTheRight ? cluster.end_glyph + 1 : cluster.start_glyph;
        const int count = (fromTheRight ? cluster.start_glyph + 1 : cluster.end_glyph) - first;
        std::vector<int> clusters(static_cast<std::size_t>(count)); // there is but one
        PangoGlyphString glyphs{count, cluster.glyph_item->glyphs->glyphs + first, clusters.data(), count};
        const int left = lefts[static_cast<std::size_t>(first)];
        const std::size_t begin = mUnits[static_cast<std::size_t>(cluster.start_index)];
        const std::size_t end = mUnits[static_cast<std::size_t>(cluster.end_index)];
        for (std::size_t unit = begin; unit < end; ++unit) {
            const auto x = [&](bool trailing) {
                int place = 0;
                pango_glyph_string_index_to_x_full(
                    &glyphs, mText + cluster.start_index, cluster.end_index - cluster.start_index,
                    &cluster.glyph_item->item->analysis, const_cast<PangoLogAttr*>(mBreaks + begin),
                    static_cast<int>(mBytes[unit]) - cluster.start_index, trailing ? TRUE : FALSE, &place);
                return PANGO_PIXELS(left + place);
            };
            if (begins(unit))
                mEdges[unit].begin = x(false);
            if (begins(unit + 1))
                mEdges[unit].end = x(true);
        }
    }

    /// Marks stand where their letter does.
    void share()
    {
        for (std::size_t unit = 1; unit < mEdges.size(); ++unit)
            if (!begins(unit))
                mEdges[unit].begin = mEdges[unit - 1].begin;
        for (std::size_t unit = mEdges.size(); unit-- > 1;)
            if (!begins(unit))
                mEdges[unit - 1].end = mEdges[unit].end;
    }

    bool begins(std::size_t unit) const
    {
        return unit == 0 || unit >= mEdges.size() || mBreaks[unit].is_cursor_position != 0;
    }

    PangoLayoutLine* mLine;
    const char* mText;
    const PangoLogAttr* mBreaks;
    std::vector<std::size_t> mBytes; ///< where each unit begins in the text
    std::vector<std::size_t> mUnits; ///< of which each byte of the text is
    std::vector<TextEdges> mEdges;
};

} // namespace

std::vector<TextEdges> edgesOf(_PangoLayoutLine* line, const std::u16string& text)
{
    return LineMeasure(line, text).edges();
}

} // namespace host
