#pragma once

#include "support/HardwareVariant.h"
#include "unit/src/FacadeTest.h"

#include <memory>
#include <string>
#include <vector>

namespace test {

/// How a test says on which panel it is: by the application's variant, or by the production data.
struct SaysVariant {
    explicit SaysVariant(int variant) { setHardwareVariant(variant); }
};

/// Base of the tests of a facade that is made and deleted from either thread. `Panel` says the panel for as long as the
/// facade is being made.
template <typename Facade, typename Panel>
class MadeFacadeTest : public FacadeTest, public testing::WithParamInterface<From> {
protected:
    /// While there still is what the test has given it.
    void TearDown() override { end(); }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// Makes one on such hardware, and tells how its private side has been made.
    template <typename... Args>
    std::vector<std::string> made(int variant, Args... args)
    {
        end();
        reached();
        [[maybe_unused]] const Panel panel(variant);
        run([&] { facade = std::make_unique<Facade>(args...); });
        expectAllOnGuiThread();
        return reached();
    }

    void end()
    {
        run([&] { facade.reset(); });
    }

    std::unique_ptr<Facade> facade;
};

} // namespace test
