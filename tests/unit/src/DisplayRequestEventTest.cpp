#include "DisplayAPI/DisplayRequestEvent.h"

#include "support/Worker.h"
#include "utilities/Rect.h"
#include "utilities/Semaphore.h"

#include <gtest/gtest.h>

#include <type_traits>

using DisplayAPI::Display;
using DisplayAPI::Displayable;
using DisplayAPI::DisplayRequestEvent;

static_assert(std::has_virtual_destructor_v<DisplayRequestEvent>);
static_assert(!std::is_copy_constructible_v<DisplayRequestEvent>);

namespace {

class DisplayRequestEventTest : public testing::Test {
protected:
    /// What every constructor does alike.
    void expectCommonFields(DisplayRequestEvent& request, int code)
    {
        EXPECT_EQ(request.requesterDisplay(), display);
        EXPECT_EQ(request.getType(), code);
        EXPECT_EQ(request.getSemaphore(), &semaphore);
        EXPECT_EQ(request.getCurrentDisplayable(), nullptr);
        EXPECT_EQ(request.getStringReturnValue(), nullptr);
    }

    // Never looked at by the record.
    Display* const display = reinterpret_cast<Display*>(0x1000);
    Displayable* const displayable = reinterpret_cast<Displayable*>(0x2000);
    Semaphore semaphore{Semaphore::NOT_AVAILABLE, 1, false};
};

} // namespace

TEST_F(DisplayRequestEventTest, CarriesAnIntAndAString)
{
    DisplayRequestEvent request(display, DisplayRequestEvent::SET_SYSTEM_WINDOW_TEXT, &semaphore, 3, "three");
    expectCommonFields(request, 15);
    EXPECT_EQ(request.getIntParam(), 3);
    EXPECT_EQ(request.getStringParam(), "three");
    EXPECT_FALSE(request.getBoolParam());
    EXPECT_EQ(request.getDisplayable(), nullptr);
}

TEST_F(DisplayRequestEventTest, CarriesAnIntWithAnEmptyString)
{
    DisplayRequestEvent request(display, DisplayRequestEvent::SET_SYSTEM_WINDOW_SIZE, &semaphore, -5);
    expectCommonFields(request, 14);
    EXPECT_EQ(request.getIntParam(), -5);
    EXPECT_EQ(request.getStringParam(), "");
    EXPECT_FALSE(request.getBoolParam());
    EXPECT_EQ(request.getDisplayable(), nullptr);
}

TEST_F(DisplayRequestEventTest, CarriesRectsAndAFlag)
{
    const DisplayRequestEvent::Rects rects{{0, 0, 1, 1}};
    DisplayRequestEvent request(display, DisplayRequestEvent::SERIALISE_BY_RECT, &semaphore, &rects, true);
    expectCommonFields(request, 12);
    EXPECT_EQ(request.getSerialisableRects(), &rects);
    EXPECT_TRUE(request.getBoolParam());
    EXPECT_EQ(request.getStringParam(), "");
    EXPECT_EQ(request.getIntParam(), 0);
    EXPECT_EQ(request.getDisplayable(), nullptr);
}

TEST_F(DisplayRequestEventTest, CarriesAFlag)
{
    DisplayRequestEvent request(display, DisplayRequestEvent::SET_MAXIMISED, &semaphore, true);
    expectCommonFields(request, 10);
    EXPECT_TRUE(request.getBoolParam());
    EXPECT_EQ(request.getSerialisableRects(), nullptr);
    EXPECT_EQ(request.getStringParam(), "");
    EXPECT_EQ(request.getIntParam(), 0);
    EXPECT_EQ(request.getDisplayable(), nullptr);
}

TEST_F(DisplayRequestEventTest, CarriesAString)
{
    DisplayRequestEvent request(display, DisplayRequestEvent::LOCALE_CHANGED, &semaphore, std::string("de"));
    expectCommonFields(request, 5);
    EXPECT_EQ(request.getStringParam(), "de");
    EXPECT_FALSE(request.getBoolParam());
    EXPECT_EQ(request.getSerialisableRects(), nullptr);
    EXPECT_EQ(request.getDisplayable(), nullptr);
}

TEST_F(DisplayRequestEventTest, CarriesADisplayable)
{
    DisplayRequestEvent request(display, DisplayRequestEvent::SET_CURRENT, &semaphore, displayable);
    expectCommonFields(request, 2);
    EXPECT_EQ(request.getDisplayable(), displayable);
    EXPECT_FALSE(request.getBoolParam());
    EXPECT_EQ(request.getStringParam(), "");
    EXPECT_EQ(request.getSerialisableRects(), nullptr);
    EXPECT_EQ(request.getIntParam(), 0);
}

TEST_F(DisplayRequestEventTest, ReturnsACopyOfItsString)
{
    const DisplayRequestEvent request(display, DisplayRequestEvent::COPY, &semaphore, std::string("kept"));
    request.getStringParam() = "changed";
    EXPECT_EQ(request.getStringParam(), "kept");
}

TEST_F(DisplayRequestEventTest, StoresTheDisplayedRectsThroughTheSlot)
{
    DisplayRequestEvent::Rects rects;
    DisplayRequestEvent::Rects* result = nullptr;
    DisplayRequestEvent request(display, DisplayRequestEvent::GET_DISPLAYED_RECTS, &semaphore, false);
    request.setDisplayedRectsReturnValue(&result);

    request.setDisplayedRects(&rects);

    EXPECT_EQ(result, &rects);
}

TEST_F(DisplayRequestEventTest, SkipsTheDisplayedRectsWithoutASlot)
{
    DisplayRequestEvent::Rects rects;
    DisplayRequestEvent withFlag(display, DisplayRequestEvent::GET_DISPLAYED_RECTS, &semaphore, false);
    DisplayRequestEvent withString(display, DisplayRequestEvent::COPY, &semaphore, std::string());
    DisplayRequestEvent withRects(display, DisplayRequestEvent::SERIALISE_BY_RECT, &semaphore, &rects, false);
    withFlag.setDisplayedRects(&rects);
    withString.setDisplayedRects(&rects);
    withRects.setDisplayedRects(&rects);
}

TEST_F(DisplayRequestEventTest, KeepsTheSlotsThatItIsGiven)
{
    Displayable* current = nullptr;
    std::string text;
    DisplayRequestEvent request(display, DisplayRequestEvent::GET_CURRENT, &semaphore, false);
    request.setCurrentDisplayable(&current);
    request.setStringReturnValue(&text);

    EXPECT_EQ(request.getCurrentDisplayable(), &current);
    EXPECT_EQ(request.getStringReturnValue(), &text);
}

TEST_F(DisplayRequestEventTest, CompletionGivesTheSemaphore)
{
    DisplayRequestEvent request(display, DisplayRequestEvent::SHOW, &semaphore, false);
    EXPECT_FALSE(semaphore.take(0));

    request.requestCompleted();

    EXPECT_TRUE(semaphore.take(0));
}

TEST_F(DisplayRequestEventTest, WaitsForTheSemaphore)
{
    DisplayRequestEvent request(display, DisplayRequestEvent::SHOW, &semaphore, false);
    test::Worker worker([&] { request.waitForCompletion(); });
    EXPECT_TRUE(worker.isBlocked());

    request.requestCompleted();
    worker.join();
}

TEST_F(DisplayRequestEventTest, WithoutASemaphoreWaitingAndCompletingDoNothing)
{
    DisplayRequestEvent request(display, DisplayRequestEvent::SET_SYSTEM_WINDOW_SIZE, nullptr, 1);
    request.waitForCompletion();
    request.requestCompleted();
    EXPECT_EQ(request.getSemaphore(), nullptr);
}

TEST_F(DisplayRequestEventTest, NumbersTheRequests)
{
    using R = DisplayRequestEvent;
    constexpr R::DisplayRequests IN_ORDER[] = {R::HIDE,
                                               R::SHOW,
                                               R::SET_CURRENT,
                                               R::GET_CURRENT,
                                               R::SHUTDOWN,
                                               R::LOCALE_CHANGED,
                                               R::DATE_FORMAT_CHANGED,
                                               R::TIME_FORMAT_CHANGED,
                                               R::SERIALISE,
                                               R::CREATE_SERVER_DISPLAY,
                                               R::SET_MAXIMISED,
                                               R::GET_DISPLAYED_RECTS,
                                               R::SERIALISE_BY_RECT};
    for (int code = 0; code < 13; ++code)
        EXPECT_EQ(IN_ORDER[code], code);

    constexpr R::DisplayRequests AFTER_THE_GAP[] = {R::SET_SYSTEM_WINDOW_SIZE,
                                                    R::SET_SYSTEM_WINDOW_TEXT,
                                                    R::SET_SYSTEM_WINDOW_TOP,
                                                    R::SHOW_TIME_IN_SYSTEM_WINDOW,
                                                    R::SET_TIME_IN_SYSTEM_WINDOW,
                                                    R::SET_TIMER,
                                                    R::STOP_TIMER,
                                                    R::SET_SOFTWARE_TYPE,
                                                    R::SET_STATUS_MESSAGE,
                                                    R::COPY,
                                                    R::PASTE};
    for (int code = 14; code <= 24; ++code)
        EXPECT_EQ(AFTER_THE_GAP[code - 14], code);
    static_assert(sizeof(R::DisplayRequests) == 4);
}
