#pragma once

#include "unit/src/FacadeTest.h"

#include <memory>

namespace test {

/// Of a popup's facade, from the GUI thread and from a worker.
template <typename Facade>
class PopupFacadeTest : public FacadeTest, public testing::WithParamInterface<From> {
protected:
    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// Makes a popup on the given hardware, in the place of a former one, and tells how its private side has been made:
    /// "LampPrivate(popup, true)".
    template <typename... Args>
    std::vector<std::string> made(int variant, Args... args)
    {
        popup.reset();
        reached();
        setHardwareVariant(variant);
        run([&] { popup = std::make_unique<Facade>(args...); });
        expectAllOnGuiThread();
        const std::string printed = doubles::printed(popup.get());
        std::vector<std::string> calls = reached();
        for (std::string& call : calls)
            call.replace(call.find(printed), printed.size(), "popup");
        return calls;
    }

    std::unique_ptr<Facade> popup;
};

} // namespace test
