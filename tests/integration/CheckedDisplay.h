#pragma once

#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayPrivate.h"
#include "StackModel.h"
#include "doubles/FakeStartUp.h"
#include "presentation/PRESCPresentationManager.h"

#include <gmock/gmock.h>

#include <string>

namespace test {

/// The real display stack, which compares itself with the model after each operation, on the GUI thread.
class CheckedDisplay : public DisplayAPI::DisplayPrivate {
public:
    using Screen = StackModel::Screen;

    explicit CheckedDisplay(bool installFilter)
        : DisplayPrivate(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, installFilter)
    {
        subscribe(&mObserver);
    }

    void setCurrent(DisplayAPI::Displayable* displayable) override
    {
        auto* const screen = static_cast<Screen*>(displayable);
        carryOut(
            "setCurrent", screen, [&] { DisplayPrivate::setCurrent(screen); }, [&] { mModel.setCurrent(screen); });
    }

    void widgetDismissed(DisplayAPI::DisplayablePrivateIfc* dismissed) override
    {
        Screen* const screen = ownerOf(dismissed);
        carryOut(
            "dismiss", screen, [&] { DisplayPrivate::widgetDismissed(dismissed); }, [&] { mModel.dismiss(screen); });
    }

    void show() override
    {
        carryOut(
            "show", nullptr, [&] { DisplayPrivate::show(); }, [&] { mModel.show(); });
    }

    void hide() override
    {
        carryOut(
            "hide", nullptr, [&] { DisplayPrivate::hide(); }, [&] { mModel.hide(); });
    }

    /// A screen that has just been made, or is about to be deleted.
    void add(Screen* screen)
    {
        mScreens.insert(screen);
        mModel.add(screen);
    }

    void remove(Screen* screen) { mScreens.erase(screen); }

    int steps() const { return mSteps; }

private:
    struct Observer : DisplayAPI::DisplayEventIfc {
        void displayChanged(std::string) override { ++notifications; }
        int notifications = 0;
    };

    /// Operations that an operation calls are a part of it.
    template <typename Real, typename Modelled>
    void carryOut(const char* name, Screen* screen, Real real, Modelled modelled)
    {
        if (mDepth++ == 0)
            modelled();
        real();
        if (--mDepth == 0)
            compare(std::string(name) + " " + (screen != nullptr ? screen->getName() : "null"));
    }

    Screen* ownerOf(const DisplayAPI::DisplayablePrivateIfc* side) const
    {
        for (Screen* screen : mScreens)
            if (screen->getPrivateImpl() == side)
                return screen;
        return nullptr;
    }

    std::vector<const PegThing*> shownWidgets() const
    {
        std::vector<const PegThing*> widgets;
        for (const PegThing* thing = gpPresent->First(); thing != nullptr; thing = thing->NextSibling())
            widgets.push_back(thing);
        return widgets;
    }

    std::vector<const PegThing*> expectedWidgets() const
    {
        std::vector<const PegThing*> widgets;
        for (const Screen* screen : mModel.onScreen)
            widgets.push_back(screen->widget());
        return widgets;
    }

    void compare(const std::string& operation)
    {
        SCOPED_TRACE("step " + std::to_string(++mSteps) + ": " + operation);
        const std::vector<DisplayAPI::Displayable*> stack(mModel.stack.begin(), mModel.stack.end());
        EXPECT_EQ(itemList(), stack);
        EXPECT_EQ(getCurrent(), mModel.current);
        EXPECT_EQ(shownWidgets(), expectedWidgets());
        EXPECT_EQ(gpPresent->Focus(), mModel.focus != nullptr ? mModel.focus->widget() : nullptr);
        EXPECT_EQ(mObserver.notifications, mModel.notifications);
        for (Screen* screen : mScreens) {
            EXPECT_EQ(screen->getPrivateImpl()->ownsWidget(), mModel.ownsWidget[screen]) << screen->getName();
            EXPECT_EQ(screen->getPrivateImpl()->attachedTo() == this, mModel.attached.count(screen) != 0)
                << screen->getName();
        }
    }

    StackModel mModel;
    Observer mObserver;
    std::set<Screen*> mScreens;
    int mDepth = 0;
    int mSteps = 0;
};

} // namespace test
