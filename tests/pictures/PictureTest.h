#pragma once

#include "host/Phone.h"
#include "toolkit/PString.h"
#include "toolkit/PegMessage.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

class KestrelListBox;
class KestrelListBoxItem;

/// A running panel with widgets on it, driven by keys and compared with reference pictures.
///
/// With DISPLAYAPI_UPDATE_PICTURES=1 in the environment the screens become the references: look at them before they are
/// checked in.
class PictureTest : public testing::Test {
protected:
    PictureTest();
    ~PictureTest() override;

    void start(host::Variant variant);

    /// Puts the list of the panel on the screen, as wide as the panel, with rows and the focus.
    KestrelListBox& showList(const std::string& title, const std::vector<std::string>& rows);

    /// Sends the key to the list. Paints after each press, so that what is seen has been reached by partial repaints.
    void press(PegKey key, int times = 1);

    /// Paints what is dirty and compares the panel with reference `name`.
    void expectPicture(const std::string& name);

    static PegString text(const std::string& utf8);

private:
    std::vector<std::unique_ptr<KestrelListBoxItem>> mItems;
    KestrelListBox* mList = nullptr;
};

/// "Room 1" to "Room `count`".
std::vector<std::string> rooms(int count);
