#pragma once

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "utilities/TranslatorIfc.h"

#include <gmock/gmock.h>

namespace doubles {

class MockCommandListener : public DisplayAPI::CommandListener {
public:
    MOCK_METHOD(void, commandAction, (DisplayAPI::Command*, DisplayAPI::Displayable*), (override));
    MOCK_METHOD(void, postCommandAction, (DisplayAPI::Command*, DisplayAPI::Displayable*), (override));
};

class MockDisplayEvent : public DisplayAPI::DisplayEventIfc {
public:
    MOCK_METHOD(void, displayChanged, (std::string), (override));
};

class MockTranslator : public TranslatorIfc {
public:
    MOCK_METHOD(std::string, translate, (const std::string&), (override));
};

} // namespace doubles
