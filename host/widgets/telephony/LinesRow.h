#pragma once

#include "host/lcd/Icons.h"
#include "toolkit/PString.h"
#include "widgets/KestrelListBoxItem.h"

#include <string>
#include <vector>

namespace host {

/// What a row of a telephone's list looks like: lines of text, each with a place for an icon in front; at the end of
/// the first one marks, and a time or a duration.
struct LinesLook {
    struct Line {
        PegString text;
        const Icon* icon = nullptr;
        bool bold = false;
        int indent = 0;      ///< in pixels, the icon's too
        bool dimmed = false; ///< grey

        friend bool operator==(const Line&, const Line&) = default;
    };

    std::vector<Line> lines = std::vector<Line>(1); ///< one at least
    bool hasIcons = true;                           ///< texts line up behind the icons, where there is one or not
    std::vector<const Icon*> marks;                 ///< in the order of reading; none is null
    PegString end;                                  ///< behind the marks
    bool endRuns = false;                           ///< the end changes by itself as time passes
    bool dimmed = false;                            ///< grey

    friend bool operator==(const LinesLook&, const LinesLook&) = default;
};

int heightOf(const LinesLook& look, const KestrelListBox::Layout& layout);
void draw(PegPainter& painter, const KestrelListBoxItem::Place& place, const LinesLook& look);

/// The texts that are not empty: those of the lines, and behind the first one the end.
KestrelListBoxItem::Description describe(std::string name, const LinesLook& look);

/// A row that shows such a look. GUI thread only.
class LinesRow : public KestrelListBoxItem {
public:
    /// `name` is the row's in the screen as text.
    explicit LinesRow(std::string name) : KestrelListBoxItem(PegString()), mName(std::move(name)) {}

    const LinesLook& look() const { return mLook; }

    /// Paints the row again where the look differs, and moves what stands below it where the number of lines does.
    /// Whoever hears the list is told last; of an end alone nobody is.
    void show(LinesLook look, PegString text);

    /// The text of the row is that of the first line.
    void show(LinesLook look);

    /// Another end, of which no more is painted than itself where it is as wide as the one before.
    void showEnd(PegString end);

    int heightIn(const Layout& layout) const override { return heightOf(mLook, layout); }
    void Draw(PegPainter& painter, const Place& place) const override { draw(painter, place, mLook); }
    Description describe() const override { return host::describe(mName, mLook); }

private:
    std::string mName;
    LinesLook mLook;
};

} // namespace host
