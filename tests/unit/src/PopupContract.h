#pragma once

#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

namespace test {

/// Whoever gets it deletes it.
inline TranslationInfo* ownedText()
{
    return new TranslationInfo("Key", nullptr);
}

/// A popup's facade for its contract. `FULL_NAME` is that of the full panel's private side.
template <typename Facade>
struct PopupSubject : WidgetSubject<Facade> {
    static constexpr int DESTROY = 1;
    static constexpr int INDEX = 3;

    template <typename... Args>
    explicit PopupSubject(bool hasSide, const char* fullName, Args... args) : name(sideName(fullName))
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().selectedIndex = INDEX;
        doubles::Answers::instance().isSelected = true;
        this->facade = std::make_unique<Facade>(args...);
        if (!hasSide)
            this->endSide(DESTROY);
    }

    std::string arrival(const std::string& call) const { return name + "::" + call; }

    static Filling translation(PopupSubject&) { return {.ptr1 = ownedText()}; }

    const std::string name;
    testing::NiceMock<doubles::MockCommandListener> mock;
    DisplayAPI::CommandListener* listener = &mock;
};

} // namespace test
