#pragma once

#include "DisplayAPI/Item.h"
#include "DisplayAPI/ItemPrivateIfc.h"
#include "doubles/Recorder.h"

#include <memory>
#include <string>
#include <utility>

namespace doubles {

/// The GUI-thread side of a recording item, around a widget that is somebody else's.
class TestItemSide : public DisplayAPI::ItemPrivateIfc {
public:
    explicit TestItemSide(PegThing* widget) : mWidget(widget) {}

    PegThing* getWidget() override { return mWidget; }
    void releaseOwnership() override { Recorder::instance().note(this, "releaseOwnership"); }
    void gainOwnership() override { Recorder::instance().note(this, "gainOwnership"); }
    void localeChanged(std::string locale) override { Recorder::instance().note(this, "localeChanged", locale); }

private:
    PegThing* mWidget;
};

/// An item that notes its end. Without a side where it is given none.
class TestItem : public DisplayAPI::Item {
public:
    explicit TestItem(std::string itemName, std::unique_ptr<DisplayAPI::ItemPrivateIfc> side = nullptr)
        : mName(std::move(itemName)), mSide(std::move(side))
    {
    }
    ~TestItem() override { Recorder::instance().note(this, "~" + mName); }

    void processGuiRequest(DisplayAPI::GuiRequestEvent& request) override { signalComplete(request); }
    DisplayAPI::ItemPrivateIfc* getPrivateImpl() override { return mSide.get(); }
    void localeChanged(std::string) override {}

private:
    const std::string mName;
    const std::unique_ptr<DisplayAPI::ItemPrivateIfc> mSide;
};

} // namespace doubles
