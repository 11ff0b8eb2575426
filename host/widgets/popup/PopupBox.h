#pragma once

#include "host/lcd/Icons.h"
#include "host/widgets/popup/CommandBar.h"
#include "host/widgets/popup/PopupStatus.h"
#include "toolkit/PString.h"
#include "toolkit/PegWindow.h"

#include <functional>
#include <utility>
#include <vector>

namespace host {

/// The frame of every popup: a header, a body, and a bar of commands at the foot. It stands in the middle of the panel,
/// as high as what is in it; on two lines it takes both. What has no room is left out: lines of the body from its end,
/// then the header.
/// Keys go to the field in the body, if there is one, then to the bar; a key that neither wants goes to the target.
/// It makes no decision of its own: whoever hears the bar takes it off the screen.
class PopupBox : public PegWindow {
public:
    /// A text, cut with an ellipsis, with an icon before it and a mark where it ends; null is none of them.
    struct Line {
        Line() = default;
        Line(PegString lineText, const Icon* before = nullptr, const Icon* behind = nullptr)
            : text(std::move(lineText)), icon(before), mark(behind)
        {
        }

        bool isEmpty() const { return text.empty() && icon == nullptr && mark == nullptr; }

        PegString text;
        const Icon* icon = nullptr;
        const Icon* mark = nullptr;
    };

    PopupBox();

    /// An empty one takes no room.
    void setHeader(Line line);
    const PegString& header() const { return mHeader.text; }

    /// Empty where it is not shown.
    PegRect headerArea() const { return parts().header; }

    void setBody(std::vector<Line> lines);
    const std::vector<Line>& body() const { return mBody; }

    /// One for each line; empty where that is not shown.
    std::vector<PegRect> bodyAreas() const { return parts().lines; }

    /// Stands under the lines and has the focus; the box's property. Null takes the present one out and deletes it.
    void setField(Field* field);
    Field* field() const { return mField; }

    /// Gives the field and the bar as much room as they want by now.
    void fitField() { layOut(); }

    /// The pixels that a field has at most where nothing else is in the box, and `height` of the panel is free.
    static int roomForField(int height);

    /// Pixels at the panel's top that stay free.
    void setFreeAbove(int height);

    /// Status lines at the panel's top while the box is on screen, and room for them. On two lines there is only room.
    void setStatusLines(int lines);
    void setStatusText(int line, std::string text);

    CommandBar& bar() { return *mBar; }

    /// Adds them to the bar, and room for it; none gives the room back.
    void setCommands(std::vector<PegString> texts);

    /// Told what the bar tells, and the keys that nobody wants, as PM_KEY. Not owned; null is nobody.
    void setMessageTarget(PegThing* target);

    /// Called when a key has gone down, whoever wants it, before that one gets it.
    void setKeyHeard(std::function<void()> heard) { mKeyHeard = std::move(heard); }

    int Message(const PegMessage& message) override;
    void Draw(PegPainter& painter) override;
    void VisibilityChanged() override;

private:
    /// Where the parts stand; one that is not there is empty. Painting and laying out both ask here.
    struct Parts {
        PegRect box;
        PegRect header;
        std::vector<PegRect> lines;
        PegRect field;
        PegRect bar;
    };

    Parts parts() const;
    void layOut();

    Line mHeader;
    std::vector<Line> mBody;
    CommandBar* mBar;
    Field* mField = nullptr;
    PegThing* mTarget = nullptr;
    std::function<void()> mKeyHeard = [] {};
    int mFreeAbove = 0;
    int mLinesAbove = 0;
    PopupStatus mStatus;
};

} // namespace host
