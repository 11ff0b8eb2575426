#include "TickerPrivate.h"

#include "support/RunningToolkit.h"
#include "utilities/ICC.h"
#include "widgets/TickerWidget.h"

#include <memory>

using DisplayAPI::TickerPrivate;
using test::StartedToolkit;

namespace {

const std::string GREETING = "Gr\xC3\xBC\xC3\x9F \xE4\xB8\xAD";

class TickerPrivateTest : public testing::Test {
protected:
    StartedToolkit toolkit;
    std::unique_ptr<TickerPrivate> ticker = std::make_unique<TickerPrivate>(GREETING);
};

TEST_F(TickerPrivateTest, ItsTextIsTheWidgets)
{
    auto* const widget = static_cast<TickerWidget*>(ticker->getWidget());
    EXPECT_EQ(widget->getText(), ICC::fromUTF8toUNICODE(GREETING));
    ticker->setText("other");
    EXPECT_EQ(widget->getText(), ICC::fromUTF8toUNICODE("other"));
    widget->setText(ICC::fromUTF8toUNICODE(GREETING));
    EXPECT_EQ(ticker->getText(), GREETING);
    delete widget;
}

TEST_F(TickerPrivateTest, DeletesAWidgetThatNobodyHasAskedFor)
{
    ticker.reset(); // a leak checker says so otherwise
}

TEST_F(TickerPrivateTest, LeavesAWidgetAliveThatSomebodyHasAskedFor)
{
    const std::unique_ptr<PegThing> widget(ticker->getWidget());
    EXPECT_EQ(ticker->getWidget(), widget.get());
    ticker.reset();
    EXPECT_EQ(static_cast<TickerWidget&>(*widget).getText(), ICC::fromUTF8toUNICODE(GREETING));
}

TEST_F(TickerPrivateTest, IsEmptyWhenItsWidgetHasBeenDeleted)
{
    delete ticker->getWidget();
    EXPECT_EQ(ticker->getWidget(), nullptr);
    EXPECT_EQ(ticker->getText(), "");
    ticker->setText("other");
    EXPECT_EQ(ticker->getText(), "");
}

TEST_F(TickerPrivateTest, IsNoPartOfTheScreenAsText)
{
    EXPECT_EQ(ticker->serialise(), "");
}

} // namespace
