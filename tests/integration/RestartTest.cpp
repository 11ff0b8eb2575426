// The toolkit is started and stopped under widgets that live on.

#include "DisplayEventFilter.h"
#include "support/GuiLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "utilities/Threadable.h"

#include <gmock/gmock.h>

using DisplayAPI::DisplayEventFilter;
using DisplayAPI::Widget;
using test::GuiLoop;
using test::TestWidget;
using testing::ElementsAre;

TEST(RestartTest, CallsRunWhereTheyAreMadeBeforeTheStartAndAfterTheStop)
{
    TestWidget widget;
    const unsigned int self = Threadable::currentThreadId();
    unsigned int gui = 0;
    widget.postEvent(1);
    {
        GuiLoop loop;
        gui = loop.threadId();
        widget.postEvent(2);
    }
    widget.postEvent(3);

    EXPECT_THAT(widget.codes(), ElementsAre(1, 2, 3));
    EXPECT_THAT(widget.threads(), ElementsAre(self, gui, self));
}

TEST(RestartTest, TheLoopCanBeStartedAndStoppedManyTimes)
{
    TestWidget widget;
    for (int round = 0; round < 20; ++round) {
        GuiLoop loop;
        widget.postEventAsync(round);
        widget.postEvent(round);
        ASSERT_EQ(widget.threads().back(), loop.threadId());
    }
    EXPECT_EQ(widget.codes().size(), 40u);
    EXPECT_TRUE(Widget::isGuiThread()) << "no GUI thread is recorded any more";
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), nullptr);
}

TEST(RestartTest, WhatIsQueuedBeforeTheStopIsStillCarriedOut)
{
    TestWidget widget;
    {
        GuiLoop loop;
        for (int code = 0; code < 500; ++code)
            widget.postEventAsync(code);
    }
    EXPECT_EQ(widget.codes().size(), 500u);
}
