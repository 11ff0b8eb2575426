#pragma once

#include "host/widgets/edit/EditPage.h"
#include "host/widgets/status/StatusStrip.h"
#include "toolkit/PegWindow.h"

namespace host {

/// A page of text to write on: status lines where there are any, a title, and the page below them. The target is told
/// what the page has no use for: PM_CLICKED (OK), PM_LEFT and PM_RIGHT; PM_CURRENT_CHANGED when the user has changed
/// the text, and PM_ROW_CHANGED when he has moved to other lines than were in sight.
class TextBoxWindow : public PegWindow {
public:
    /// `mostLines` of text are shown and no more; 0 is as many as there is room for. Without a place for the title the
    /// page has that, too.
    TextBoxWindow(bool hasTitle, int mostLines);

    bool hasTitle() const { return mHasTitle; }

    /// An empty one takes no room.
    void setTitle(PegString title);
    PegRect titleArea() const { return parts().title; }

    EditPage& page() const { return *mPage; }
    StatusStrip& status() const { return *mStatus; }

    /// The cursor goes to where the text begins.
    void goToBeginning() { mPage->setCursor(0); }

    /// Not owned, may delete the window; null is nobody.
    void setMessageTarget(PegThing* target) { mTarget = target; }

    int Message(const PegMessage& message) override;
    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

private:
    struct Parts {
        PegRect status;
        PegRect title;
        PegRect page;
    };

    Parts parts() const;
    void layOut();
    void key(int key);
    void move(int key);
    void tell(std::uint16_t type);

    const bool mHasTitle;
    const int mMostLines;
    StatusStrip* mStatus;
    EditPage* mPage;
    PegString mTitle;
    PegRect mTitleArea; ///< where it has been painted
    PegThing* mTarget = nullptr;
};

} // namespace host
