#pragma once

#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "unit/src/FacadeTest.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBoxItem.h"

#include <memory>
#include <tuple>

namespace test {

/// Whoever makes and uses the row, and the hardware variant.
using RowParameters = std::tuple<From, int>;

/// Base of the tests of rows' facades, on each thread and each hardware variant.
template <typename Row>
class RowFacadeTest : public FacadeTest, public testing::WithParamInterface<RowParameters> {
protected:
    RowFacadeTest() { setHardwareVariant(variant()); }

    From from() const { return std::get<0>(GetParam()); }
    int variant() const { return std::get<1>(GetParam()); }
    void run(const std::function<void()>& work) { FacadeTest::run(from(), work); }

    /// Of "LampPrivate"; every variant but 1 has the small panel's class.
    std::string sideClass(const std::string& onFullPanel) const
    {
        return variant() == 1 ? onFullPanel : onFullPanel + "WP1";
    }

    template <typename... Args>
    void make(const Args&... args)
    {
        run([&] { row = std::make_unique<Row>(args...); });
    }

    std::string text()
    {
        std::string answer;
        run([&] { answer = row->getText(); });
        return answer;
    }

    /// The row in the screen as text.
    std::vector<std::string> texts()
    {
        std::vector<std::string> all;
        gui.call([&] {
            for (const PegString& line : row->getPrivateImplemetation()->getKestrelListItem()->describe().texts)
                all.push_back(ICC::fromUNICODEtoUTF8(line));
        });
        return all;
    }

    std::unique_ptr<Row> row;
};

inline std::string nameOfRowTest(const testing::TestParamInfo<RowParameters>& tested)
{
    return nameOf(std::get<0>(tested.param)) + "OnVariant" + std::to_string(std::get<1>(tested.param));
}

} // namespace test

#define INSTANTIATE_ON_VARIANTS(suite)                                                                                 \
    INSTANTIATE_TEST_SUITE_P(                                                                                          \
        Requests, suite,                                                                                               \
        testing::Combine(testing::Values(test::From::GUI_THREAD, test::From::WORKER), testing::Values(0, 1, 2)),       \
        test::nameOfRowTest)
