#include "simulator/rpc/RpcScreen.h"

#include "host/Phone.h"
#include "simulator/rpc/RpcDispatcher.h"

#include <nlohmann/json.hpp>

namespace simulator {

Json screenAnswer(const Screen& screen)
{
    Json answer = {{"number", screen.number}, {"language", screen.words.language}};
    answer.update(screenForm(screen.picture, nameOf(host::variant())));
    answer["text"] = textOf(screen);
    return answer;
}

RpcRendering::Text RpcRendering::of(const ScreenPtr& screen)
{
    const std::lock_guard lock(mMutex);
    if (mScreen != screen)
        mText = std::make_shared<const std::string>(RpcDispatcher::toText(screenAnswer(*screen)));
    mScreen = screen;
    return mText;
}

} // namespace simulator
