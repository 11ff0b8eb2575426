#pragma once

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "doubles/Mocks.h"
#include "host/lcd/Lcd.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/RowsOwner.h"
#include "support/RunningToolkit.h"
#include "unit/host/variants/list/ChangeCounter.h"
#include "variants/list/ExclusiveListPrivate.h"
#include "variants/list/ListBoxPrivate.h"
#include "variants/list/ListItemPrivate.h"

#include <gmock/gmock.h>

namespace test {

/// The classes of one panel.
struct PlainVariant {
    using ListBox = DisplayAPI::ListBoxPrivate;
    using Exclusive = DisplayAPI::ExclusiveListPrivate;
    using Row = DisplayAPI::ListItemPrivate;
};
struct WP1Variant {
    using ListBox = DisplayAPI::ListBoxPrivateWP1;
    using Exclusive = DisplayAPI::ExclusiveListPrivateWP1;
    using Row = DisplayAPI::ListItemPrivateWP1;
};
using Variants = testing::Types<PlainVariant, WP1Variant>;

/// A started toolkit, the facade that a list belongs to, its listener and its display.
template <typename Variant>
class ListVariantTest : public testing::Test {
protected:
    using Row = typename Variant::Row;

    template <typename ListBox>
    void attach(ListBox& list)
    {
        list.addCommandListener(&listener);
        list.connectDisplayChangedSignal(&display);
    }

    template <typename ListBox>
    KestrelListBox& boxOf(ListBox& list)
    {
        return *static_cast<KestrelListBox*>(list.getWidget());
    }

    /// As a display does it. The list takes it back with putAway().
    template <typename ListBox>
    void putOnScreen(ListBox& list)
    {
        gpPresent->Add(list.getWidget());
        list.releaseOwnership();
    }

    template <typename ListBox>
    void putAway(ListBox& list)
    {
        list.gainOwnership();
        gpPresent->Remove(list.getWidget());
    }

    template <typename ListBox>
    void press(ListBox& list, int key)
    {
        list.getWidget()->Message(keyMessage(key));
    }

    StartedToolkit toolkit;
    DisplayAPI::List owner{static_cast<DisplayAPI::ListBoxPrivateIfc*>(nullptr)};
    testing::StrictMock<doubles::MockCommandListener> listener;
    ChangeCounter display;
};

} // namespace test
