#pragma once

#include "DisplayAPI/DisplayPrivateIfc.h"
#include "utilities/Rect.h"

#include <gmock/gmock.h>

namespace doubles {

class MockDisplayPrivate : public DisplayAPI::DisplayPrivateIfc {
public:
    using Displayable = DisplayAPI::Displayable;
    using Rects = std::vector<DisplayAPIUtils::Rect>;
    using Request = DisplayAPI::DisplayRequestEvent;

    ~MockDisplayPrivate() override { die(); }

    MOCK_METHOD(void, die, ());
    MOCK_METHOD(void, setCurrent, (Displayable*), (override));
    MOCK_METHOD(Displayable*, getCurrent, (), (override));
    MOCK_METHOD(void, exec, (), (override));
    MOCK_METHOD(void, shutdown, (), (override));
    MOCK_METHOD(void, show, (), (override));
    MOCK_METHOD(void, hide, (), (override));
    MOCK_METHOD(std::string, serialise, (), (override));
    MOCK_METHOD(std::string, serialiseByRect, (const Rects&, bool), (override));
    MOCK_METHOD(void, subscribe, (DisplayAPI::DisplayEventIfc*), (override));
    MOCK_METHOD(void, unSubscribe, (), (override));
    MOCK_METHOD(void, displayChanged, (), (override));
    MOCK_METHOD(void, widgetDismissed, (DisplayAPI::DisplayablePrivateIfc*), (override));
    MOCK_METHOD(void, localeChanged, (std::string), (override));
    MOCK_METHOD(void, skinChanged, (std::string), (override));
    MOCK_METHOD(void, dateFormatChanged, (std::string), (override));
    MOCK_METHOD(void, timeFormatChanged, (std::string), (override));
    MOCK_METHOD(DisplayAPIUtils::Rect*, getDisplayArea, (), (override));
    MOCK_METHOD(void, setMaximised, (bool), (override));
    MOCK_METHOD(void, createServerDisplay, (Displayable*), (override));
    MOCK_METHOD(void, setTranslator, (TranslatorIfc*), (override));
    MOCK_METHOD(void, postEvent, (Request*), (override));
    MOCK_METHOD(void, postEventAsync, (Request*), (override));
    MOCK_METHOD(void, purgeOwnMessage, (DisplayAPI::Display*, int, int, Displayable*), (override));
    MOCK_METHOD(Rects*, getDisplayedRects, (), (override));
    MOCK_METHOD(void, setSystemWindowSize, (int), (override));
    MOCK_METHOD(void, setSystemWindowText, (int, std::string), (override));
    MOCK_METHOD(void, setSystemWindowTop, (int), (override));
    MOCK_METHOD(void, showTimeInSystemWindow, (bool), (override));
    MOCK_METHOD(void, setTimeInSystemWindow, (int, int, int), (override));
    MOCK_METHOD(void, setTimer, (std::string), (override));
    MOCK_METHOD(void, stopTimer, (), (override));
    MOCK_METHOD(void, setSoftwareType, (const std::string&), (override));
    MOCK_METHOD(void, copy, (const std::string&), (override));
    MOCK_METHOD(std::string, paste, (), (const, override));
    MOCK_METHOD(void, setStatusMessage, (const std::string&, unsigned int), (override));
    MOCK_METHOD(std::string, dateFormat, (), (const, override));
    MOCK_METHOD(std::string, timeFormat, (), (const, override));
};

} // namespace doubles
