#pragma once

#include "unit/src/FacadeTest.h"
#include "utilities/CallPartyIdentifier.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace test {

/// Of the facade of a call log's row, from the GUI thread and from a worker.
template <typename Row>
class LogRowFacadeTest : public FacadeTest, public testing::WithParamInterface<From> {
protected:
    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// Makes a row on the given hardware, in the place of a former one, and tells what has reached private sides.
    template <typename... Args>
    std::vector<std::string> made(int variant, Args... args)
    {
        row.reset();
        reached();
        setHardwareVariant(variant);
        run([&] { row = std::make_unique<Row>(args...); });
        expectAllOnGuiThread();
        return reached();
    }

    /// Has a record carried out, and tells what has reached private sides.
    std::vector<std::string> carriedOut(
        int code, const std::function<void(DisplayAPI::GuiRequestEvent&)>& fill = [](auto&) {})
    {
        reached();
        carryOut(GetParam(), *row, code, fill);
        expectAllOnGuiThread();
        return reached();
    }

    CallPartyIdentifier ada{"Ada", "4711"}, bert{"Bert", "4712"};
    std::unique_ptr<Row> row;
};

/// There is no current application as long as it lives.
class NoApplication {
public:
    NoApplication() { KestrelApplication::setCurrentApplication(nullptr); }
    NoApplication(const NoApplication&) = delete;
    NoApplication& operator=(const NoApplication&) = delete;
    ~NoApplication() { KestrelApplication::setCurrentApplication(mApplication); }

private:
    KestrelApplication* mApplication = KestrelApplication::getCurrentApplication();
};

/// The same of a call's details, which have a private side on the full panel alone.
template <typename Details>
class DetailsFacadeTest : public LogRowFacadeTest<Details> {
protected:
    using Fill = std::function<void(DisplayAPI::GuiRequestEvent&)>;
    using LogRowFacadeTest<Details>::row;

    template <typename... Args>
    void expectSideOnTheFullPanelAlone(const std::string& making, Args... args)
    {
        EXPECT_THAT(this->made(1, args...), testing::ElementsAre(making));
        EXPECT_NE(row->getPrivateImpl(), nullptr);
        for (const int variant : {0, 2}) {
            EXPECT_THAT(this->made(variant, args...), testing::IsEmpty());
            EXPECT_EQ(row->getPrivateImpl(), nullptr);
        }
    }

    /// Code 0 makes the side, in place of a former one, and `end` deletes it, once.
    void expectCodesToMakeAndEnd(int end, const Fill& fill, const std::string& making)
    {
        const std::string ending = '~' + making.substr(0, making.find('(')) + "()";
        EXPECT_THAT(this->carriedOut(0, fill), testing::ElementsAre(ending, making));
        EXPECT_THAT(this->carriedOut(end), testing::ElementsAre(ending));
        EXPECT_EQ(row->getPrivateImpl(), nullptr);
        EXPECT_THAT(this->carriedOut(end), testing::IsEmpty());
        EXPECT_THAT(this->carriedOut(0, fill), testing::ElementsAre(making));
    }

    /// From a worker it is the test's end that shows that they are completed.
    void expectNothingOfCodes(const std::vector<int>& unknown)
    {
        for (const int code : unknown)
            EXPECT_THAT(this->carriedOut(code), testing::IsEmpty());
        EXPECT_NE(row->getPrivateImpl(), nullptr);
    }
};

} // namespace test
