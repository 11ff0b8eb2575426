#pragma once

#include "simulator/core/Screen.h"
#include "simulator/screen/Json.h"
#include "simulator/screen/ScreenJson.h"

#include <memory>
#include <mutex>
#include <string>

namespace simulator {

/// What clients get of a screen: its JSON form with the number, the language, and the screen as text.
Json screenAnswer(const Screen& screen);

/// Their answers as texts, made once for all clients. Safe from any thread.
class RpcRendering {
public:
    using Text = std::shared_ptr<const std::string>;

    Text of(const ScreenPtr& screen);

private:
    std::mutex mMutex;
    ScreenPtr mScreen;
    Text mText;
};

} // namespace simulator
