#include "unit/tests/Door.h"

#include <gtest/gtest-spi.h>

#include <set>

using namespace test;

namespace {

using DisplayAPI::GuiRequestEvent;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;
using Complaints = std::vector<std::string>;

// Where a check finds what is wrong.
const std::string OPERATION = "the operation";
const std::string BARE_OPERATION = "the operation without a private side";
const std::string RECORD = "a record";
const std::string UNASKED_RECORD = "a record without an address";
const std::string BARE_RECORD = "a record without a private side";
const std::string END = "deleted while the request is queued";

// What the door keeps, but for what a test has said of it wrongly.
const Filling WIDE{.int1 = 90, .int2 = 3};

Contract<Doors> opens(int code = 2, Filling filling = WIDE, const char* arrival = "open(90, 3)")
{
    Contract<Doors> contract("");
    return contract.posts("open", code, [](Doors& d) { d->open(90, 3); }).record(filling).arrives(arrival);
}

Contract<Doors> measures(int answer = 90, int neutral = -1)
{
    Contract<Doors> contract("");
    return contract.waits("angle", 3, answer, neutral, [](Doors& d) { return d->angle(); }).arrives("angle()");
}

/// What is complained of in the check's hands.
template <typename Body>
Complaints complaintsIn(Body body)
{
    testing::TestPartResultArray results;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        SteppedLoop gui;
        body(gui);
    }
    Complaints complaints;
    for (int i = 0; i < results.size(); ++i)
        complaints.push_back(results.GetTestPartResult(i).message());
    return complaints;
}

std::string lastLine(std::string text)
{
    text.erase(text.find_last_not_of('\n') + 1);
    const auto colon = text.rfind(": ");
    return colon == std::string::npos ? text : text.substr(colon + 2);
}

class FacadeContractTest : public testing::TestWithParam<From> {
protected:
    ~FacadeContractTest() override { Door::completions = 1; }

    static bool fromWorker() { return GetParam() == From::WORKER; }

    template <typename Subject>
    static Complaints complaints(const Contract<Subject>& contract)
    {
        return complaintsIn(
            [&](SteppedLoop& gui) { ContractCheck<Subject>(gui, GetParam()).row(contract.rows().back()); });
    }

    static Complaints complaintsOfUnknown(int code, bool isCompleted)
    {
        return complaintsIn(
            [=](SteppedLoop& gui) { ContractCheck<Doors>(gui, GetParam()).unknown(code, isCompleted); });
    }

    /// Where the row is broken.
    template <typename Subject>
    static std::set<std::string> places(const Contract<Subject>& contract)
    {
        std::set<std::string> places;
        for (const std::string& complaint : complaints(contract))
            places.insert(lastLine(complaint));
        return places;
    }

    /// Expects those places, and more where the GUI thread is asked by another.
    static void expectPlaces(const std::set<std::string>& found, std::set<std::string> expected,
                             const std::set<std::string>& more = {})
    {
        if (fromWorker())
            expected.insert(more.begin(), more.end());
        EXPECT_EQ(found, expected);
    }
};

} // namespace

TEST_P(FacadeContractTest, KeptContractIsNotComplainedOf)
{
    EXPECT_THAT(complaints(opens()), IsEmpty());
    EXPECT_THAT(complaints(measures()), IsEmpty());
}

TEST_P(FacadeContractTest, WrongCodeIsNoticed)
{
    expectPlaces(places(opens(4)), {RECORD, UNASKED_RECORD}, {OPERATION, BARE_OPERATION});
}

TEST_P(FacadeContractTest, WrongFieldOfTheRecordIsNoticed)
{
    expectPlaces(places(opens(2, {.int1 = 3, .int2 = 90})), {RECORD, UNASKED_RECORD});
}

TEST_P(FacadeContractTest, WrongArrivalIsNoticed)
{
    expectPlaces(places(opens(2, WIDE, "open(3, 90)")), {OPERATION, RECORD, UNASKED_RECORD});
}

TEST_P(FacadeContractTest, CallThatArrivesTwiceIsNoticed)
{
    auto contract = Contract<Doors>("")
                        .posts("openTwice", 2, [](Doors& d) { d->openTwice(90, 3); })
                        .record(WIDE)
                        .arrives("open(90, 3)");
    expectPlaces(places(contract), {OPERATION}, {BARE_OPERATION, END});
}

TEST_P(FacadeContractTest, WrongAnswerIsNoticed)
{
    expectPlaces(places(measures(80)), {OPERATION, RECORD});
}

TEST_P(FacadeContractTest, WrongAnswerWhereNobodyAnswersIsNoticed)
{
    expectPlaces(places(measures(90, 0)), {BARE_OPERATION}, {END});
}

TEST_P(FacadeContractTest, AnswerThroughAnotherFieldIsNoticed)
{
    expectPlaces(places(measures().through(&GuiRequestEvent::returnValue1)), {RECORD});
}

TEST_P(FacadeContractTest, RecordThatIsAskedWithoutAnAddressIsNoticed)
{
    expectPlaces(places(measures().needsAddress()), {UNASKED_RECORD});
}

TEST_P(FacadeContractTest, PostedCallThatWaitsIsNoticedFromAWorker)
{
    auto contract =
        Contract<Doors>("").posts("angle", 3, 90, -1, [](Doors& d) { return d->angle(); }).arrives("angle()");
    expectPlaces(places(contract), {}, {OPERATION, BARE_OPERATION, END});
}

TEST_P(FacadeContractTest, WaitingCallThatPostsIsNoticedFromAWorker)
{
    auto contract =
        Contract<Doors>("").waits("open", 2, [](Doors& d) { d->open(90, 3); }).record(WIDE).arrives("open(90, 3)");
    expectPlaces(places(contract), {}, {OPERATION, BARE_OPERATION, END});
}

TEST_P(FacadeContractTest, CallThatStaysOnTheWorkerIsNoticed)
{
    auto contract = Contract<DoorsWithSides>("")
                        .posts("openHere", 2, [](DoorsWithSides& d) { d->openHere(90, 3); })
                        .record(WIDE)
                        .arrives("open(90, 3)");
    expectPlaces(places(contract), {}, {OPERATION, END});
    const Complaints all = complaints(contract);
    EXPECT_THAT(all, Contains(HasSubstr("currentThreadId()")).Times(fromWorker() ? 2 : 0));
    EXPECT_THAT(all, Contains(HasSubstr("is empty")).Times(fromWorker() ? 1 : 0));
}

TEST_P(FacadeContractTest, FacadeWithoutPrivateSideIsOnlyMadeWhereItCanBe)
{
    const auto measure = [](auto& d) { return d->angleOrWorse(); };
    expectPlaces(places(Contract<Doors>("").waits("angle", 3, 90, -1, measure).arrives("angle()")), {BARE_OPERATION},
                 {END});
    expectPlaces(places(Contract<DoorsWithSides>("").waits("angle", 3, 90, -1, measure).arrives("angle()")), {}, {END});
}

TEST_P(FacadeContractTest, FacadeThatIsReadAfterwardsIsNotDeletedMeanwhile)
{
    expectPlaces(places(measures(90, 0).readsAfterwards()), {BARE_OPERATION});
}

TEST_P(FacadeContractTest, RecordThatIsCompletedTwiceOrNotAtAllIsNoticed)
{
    for (const int completions : {0, 2}) {
        Door::completions = completions;
        expectPlaces(places(opens()), {RECORD, UNASKED_RECORD, BARE_RECORD});
    }
}

TEST_P(FacadeContractTest, UnknownCodeIsCompletedOrLeftAsIsSaid)
{
    EXPECT_THAT(complaintsOfUnknown(7, true), IsEmpty());
    EXPECT_THAT(complaintsOfUnknown(7, false), SizeIs(1));
    Door::completions = 0;
    EXPECT_THAT(complaintsOfUnknown(7, false), IsEmpty());
    EXPECT_THAT(complaintsOfUnknown(7, true), SizeIs(1));
}

TEST_P(FacadeContractTest, UnknownCodeThatHasAnEffectIsNoticed)
{
    EXPECT_THAT(complaintsOfUnknown(2, true), UnorderedElementsAre(HasSubstr("open(-1, -1)")));
}

INSTANTIATE_TEST_SUITE_P(From, FacadeContractTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });
