#include "host/lcd/Lcd.h"
#include "pictures/PictureTest.h"
#include "support/VirtualTime.h"
#include "widgets/KestrelApplication.h"
#include "widgets/KestrelListBox.h"
#include "widgets/TickerWidget.h"

namespace {

const std::string NEWS = "The canteen is closed on Friday. Sandwiches are to be had at the gate from 11:30 on.";
const std::string ARABIC_NEWS = "المقصف مغلق يوم الجمعة، وتتوفر الشطائر عند البوابة الرئيسية من الساعة 11:30.";
const std::string JAPANESE_NEWS =
    "金曜日は食堂が休みです。11時30分から正門でサンドイッチを販売します。どうぞご利用ください。";

constexpr int REST = 1500;
constexpr int STEP = 40;

/// A list with a ticker on every panel.
class TickerPictures : public test::VirtualTime, public PictureTest, public testing::WithParamInterface<host::Variant> {
protected:
    TickerPictures()
    {
        setHardwareVariant(GetParam() == host::Variant::WP1 ? 0 : 1);
        start(GetParam());
    }
    ~TickerPictures() override { setHardwareVariant(1); }

    KestrelListBox& showWithTicker(const std::string& news)
    {
        KestrelListBox& list = showList("Main menu", rooms(9));
        list.Add(new TickerWidget(text(news)));
        list.setTickerShown(true);
        return list;
    }

    /// Paints after each step, so that what is seen has been reached by partial repaints.
    void passSteps(int count)
    {
        for (int i = 0; i < count; ++i) {
            host::Lcd::current()->paint();
            pass(STEP);
        }
    }

    void expectScreen(const std::string& screen)
    {
        expectPicture(std::string(host::nameOf(GetParam())) + "-ticker-" + screen);
    }

private:
    static void setHardwareVariant(int variant)
    {
        KestrelApplication::getCurrentApplication()->setHardwareVariant(variant);
    }
};

TEST_P(TickerPictures, ShortTextStands)
{
    showWithTicker("Closed on Friday");
    pass(60000);
    expectScreen("short");
}

TEST_P(TickerPictures, LongTextBeginsAtTheEdge)
{
    showWithTicker(NEWS);
    pass(REST - 1);
    expectScreen("long");
}

TEST_P(TickerPictures, LongTextRuns)
{
    showWithTicker(NEWS);
    pass(REST);
    passSteps(45);
    expectScreen("running");
}

TEST_P(TickerPictures, EndAndBeginningAreSeenTogether)
{
    KestrelListBox& list = showWithTicker(NEWS);
    pass(REST);
    const bool wp1 = GetParam() == host::Variant::WP1;
    const int width = host::Lcd::current()->textWidth(wp1 ? host::Font::FIXED : host::Font::TEXT, text(NEWS));
    passSteps((width - 80) / 2);
    press(PK_DOWN);
    expectScreen("round");
    list.Invalidate();
    expectScreen("round");
}

TEST_P(TickerPictures, ArabicRunsTheOtherWay)
{
    showWithTicker(ARABIC_NEWS);
    expectScreen("arabic");
    pass(REST);
    passSteps(45);
    expectScreen("arabic-running");
}

TEST_P(TickerPictures, Japanese)
{
    showWithTicker(JAPANESE_NEWS);
    pass(REST);
    passSteps(45);
    expectScreen("japanese-running");
}

INSTANTIATE_TEST_SUITE_P(Panels, TickerPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& panel) { return std::string(host::nameOf(panel.param)); });

} // namespace
