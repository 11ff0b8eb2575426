#include "pictures/StatusScreens.h"
#include "variants/form/TextBoxPrivate.h"

namespace {

const std::string LIST =
    "Milk, bread, twelve eggs, two pounds of potatoes, soap, and the blue shirt from the cleaner's "
    "which has been there since May.";

/// A text box as the user writes in it.
class TextBoxPictures : public StatusScreens {
protected:
    ~TextBoxPictures() override { takeOff(); }

    /// As a display does it.
    DisplayAPI::TextBoxSide& show(bool twoLine)
    {
        takeOff();
        if (!isTwoLines())
            mBox = std::make_unique<DisplayAPI::TextBoxPrivate>(nullptr);
        else if (twoLine)
            mBox = std::make_unique<DisplayAPI::TextBoxPrivate2LineWP1>(nullptr);
        else
            mBox = std::make_unique<DisplayAPI::TextBoxPrivateWP1>(nullptr);
        mBox->releaseOwnership();
        gpPresent->Add(mBox->getWidget());
        return *mBox;
    }

    void press(std::initializer_list<int> keys)
    {
        for (const int key : keys)
            mBox->getWidget()->Message({.wType = PM_KEY, .iData = key});
    }

private:
    void takeOff()
    {
        if (mBox == nullptr)
            return;
        mBox->gainOwnership();
        gpPresent->Remove(mBox->getWidget());
        mBox.reset();
    }

    std::unique_ptr<DisplayAPI::TextBoxSide> mBox;
};

} // namespace

TEST_P(TextBoxPictures, TextGoesOnInTheNextLine)
{
    auto& box = show(false);
    box.setTitle("Notes");
    box.setText(LIST, false);
    expectScreen("text-box");
    press({PK_DOWN, PK_DOWN, PK_RIGHT, '5'});
    expectScreen("text-box-candidate");
}

TEST_P(TextBoxPictures, TwoLinesAndNoTitleOnTheSmallPanel)
{
    auto& box = show(true);
    box.setTitle("Notes");
    box.setText(LIST, true);
    expectScreen("text-box-end");
}

TEST_P(TextBoxPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    auto& box = show(true);
    box.setText("خبز وحليب وبيض وزبدة وجبن وشاي وسكر وملح وفلفل", false);
    expectScreen("text-box-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, TextBoxPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
