#pragma once

#include "DisplayAPI/DisplayablePrivate.h"

namespace DisplayAPI {

/// What the GUI-thread sides of the screens that a list box fills have in common, lists themselves excepted. GUI thread
/// only.
class DISPLAYAPI_EXPORT ListScreenSide : public DisplayablePrivate {
public:
    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    bool hasCaption() override;
    void setSysWindowSize(int lines) override;
    void setSysWindowText(std::string text, int line) override;
    bool hasSystemWindow() override;

    struct Screen; ///< the data, which the derived class has

protected:
    virtual Screen& screen() = 0;
};

} // namespace DisplayAPI
