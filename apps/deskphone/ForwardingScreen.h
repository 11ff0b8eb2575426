#pragma once

#include "apps/deskphone/NumberQuestion.h"
#include "apps/deskphone/Screen.h"

#include <array>
#include <mutex>
#include <string>

namespace deskphone {

class Calls;

/// To whom calls go on: always, when the telephone is busy or wants no calls, and when nobody answers. Choosing a row
/// asks for a number, or ends what it says. It holds for all lines.
class ForwardingScreen : public Screen {
public:
    ForwardingScreen(Telephone& telephone, Place* parent, Calls& calls);

    void stopListening() override;

private:
    static constexpr std::size_t KINDS = 3;

    void build() override;
    void chosen(int row) override;

    std::string shown(std::size_t kind);
    std::string number(std::size_t kind) const;
    void set(std::size_t kind, const std::string& number);

    Calls& mCalls;
    NumberQuestion mTarget;
    Text& mOff;
    std::array<Text*, KINDS> mTexts{};
    std::array<DisplayAPI::ListItem*, KINDS> mRows{};
    mutable std::mutex mMutex; ///< guards what follows; nothing is called under it
    std::array<std::string, KINDS> mNumbers;
};

} // namespace deskphone
