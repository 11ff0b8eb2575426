#pragma once

#include "toolkit/PString.h"
#include "toolkit/PegThing.h"

/// A line of text that runs from one edge to the other where it is too long for its area, and stands still where it
/// fits, where texts of the current language begin. It rests for a moment each time that its beginning has come to the
/// edge; where the user wants less motion, it turns page by page. Costs nothing while it is not visible, and next to
/// nothing while something covers it. GUI thread only.
class TickerWidget : public PegThing {
public:
    explicit TickerWidget(PegString text);

    int Message(const PegMessage& message) override;
    void Draw(PegPainter& painter) override;
    void Resize(const PegRect& area) override;

    /// The text begins anew.
    void setText(PegString text);
    const PegString& getText() const;

protected:
    void VisibilityChanged() override;

private:
    void beginAnew();
    void step();
    int nextOffset() const;
    int timeHere() const;
    bool fits() const;
    bool isCovered() const;

    PegString mText;
    int mTextWidth = 0;
    int mOffset = 0; ///< how many pixels have gone out at the edge
};
