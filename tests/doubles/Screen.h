#pragma once

#include "DisplayAPI/Displayable.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "doubles/ScreenPrivate.h"

#include <string>

namespace doubles {

/// A displayable as an application's would be. Made on the GUI thread; deleted there, or on another one after its
/// display has let go of it.
class Screen : public DisplayAPI::Displayable {
public:
    explicit Screen(std::string screenName, ScreenPrivate::Kind kind = ScreenPrivate::SCREEN,
                    PegThing* widget = new PegWindow)
        : mPrivate(new ScreenPrivate(screenName, kind, widget))
    {
        name = std::move(screenName);
    }

    ~Screen() override
    {
        if (isGuiThread())
            deletePrivateSide(mPrivate);
        else
            postEvent(DESTROY);
    }

    void processGuiRequest(DisplayAPI::GuiRequestEvent& request) override
    {
        if (request.getType() == DESTROY)
            deletePrivateSide(mPrivate);
        signalComplete(request);
    }

    ScreenPrivate* getPrivateImpl() override { return mPrivate; }
    PegThing* widget() const { return mPrivate->getWidget(); }

    /// From here on the screen has no private side.
    void dropPrivate()
    {
        delete mPrivate;
        mPrivate = nullptr;
    }

private:
    static constexpr int DESTROY = 1;

    ScreenPrivate* mPrivate;
};

} // namespace doubles
