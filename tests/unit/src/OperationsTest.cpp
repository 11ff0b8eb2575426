#include "Operations.h"

#include "doubles/Recorder.h"
#include "host/toolkit/MessagePool.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "utilities/Threadable.h"

#include <gmock/gmock.h>

#include <cstdlib>

using namespace DisplayAPI;
using doubles::Recorder;
using testing::ElementsAre;
using testing::IsEmpty;

// No unnamed namespace: the compiler warns of rows that derive from such types.
namespace test {

enum class Mode { DIAL, EDIT };

/// Something that travels with its request.
struct Party {
    explicit Party(std::string partyName) : name(std::move(partyName)) { ++alive; }
    Party(const Party&) = delete;
    Party& operator=(const Party&) = delete;
    ~Party() { --alive; }

    std::string name;
    inline static int alive = 0;
};

template <typename... Args>
void note(const char* name, const Args&... args)
{
    Recorder::instance().note(nullptr, name, args...);
}

class PhonePrivate {
public:
    virtual ~PhonePrivate() = default;
    virtual void setText(std::string text) { note("setText", text); }
    virtual void setText(Party* text) { note("setParty", text); }
    virtual void change(std::string& text) { text += "!"; }
    virtual void setMode(const Mode& mode) { note("setMode", static_cast<int>(mode)); }
    virtual void clear() { note("clear"); }
    virtual int line() { return 4; }
    virtual unsigned int colour() const { return 0xFFFFFFFFu; }
    virtual Mode mode() const { return Mode::EDIT; }
    virtual const std::string& title() const { return mTitle; }
    virtual bool isBusy(int index) { return note("isBusy", index), true; }

    virtual void setAll(const std::string& a, int i, bool on, Party* p, unsigned int j, std::string b, Mode m,
                        const Party* q, bool off, const std::string& c, void* r)
    {
        note("setAll", a, i, on, p, static_cast<int>(j), b, static_cast<int>(m), q, off, c, r);
    }

    virtual void setParties(std::unique_ptr<Party> first, int number, std::unique_ptr<Party> second)
    {
        note("setParties", first->name, number, second != nullptr ? second->name : std::string("nobody"));
    }

private:
    std::string mTitle = "title";
};

int twice(PhonePrivate& phone, int number)
{
    return 2 * number * phone.line();
}

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SET_TEXT = 2,
    SET_PARTY = 3,
    SET_MODE = 4,
    CLEAR = 5,
    LINE = 6,
    COLOUR = 7,
    MODE = 8,
    TITLE = 9,
    IS_BUSY = 10,
    SET_ALL = 11,
    SET_PARTIES = 12,
    TWICE = 13,
    COUNT = 14,
    CHANGE = 15,
    LINE_BY_ARGUMENT = 16
};

class Phone : public Widget {
public:
    Phone() { Ops::call<CREATE>(*this, mImplementation); }
    ~Phone() override { Ops::call<DESTROY>(*this, mImplementation); }

    void processGuiRequest(GuiRequestEvent& request) override
    {
        ++handled;
        isKnown = Ops::carryOut(*this, mImplementation, request);
        signalComplete(request);
    }

    /// What the class's operations are made of.
    template <int CODE, typename... Args>
    auto call(Args&&... args)
    {
        return Ops::call<CODE>(*this, mImplementation, std::forward<Args>(args)...);
    }

    int lineOfConst() const { return Ops::call<LINE>(*this, mImplementation); }

    int handled = 0;
    bool isKnown = false;

private:
    void create() { mImplementation = new PhonePrivate; }

    void destroy()
    {
        delete mImplementation;
        mImplementation = nullptr;
    }

    int count(bool isLong) { return isLong ? 100 : 1; }

    using Ops = Operations<Posts<CREATE, &Phone::create>, Waits<DESTROY, &Phone::destroy>,
                           Posts<SET_TEXT, taking<std::string>(&PhonePrivate::setText)>,
                           Posts<SET_PARTY, taking<Party*>(&PhonePrivate::setText)>,
                           Superseding<Posts<SET_MODE, &PhonePrivate::setMode>>,
                           Superseding<Waits<CLEAR, &PhonePrivate::clear>, SET_TEXT, SET_PARTY, CLEAR>,
                           Waits<LINE, &PhonePrivate::line, -1, &GuiRequestEvent::returnValue1>,
                           Waits<COLOUR, &PhonePrivate::colour, 7u, &GuiRequestEvent::returnValue2>,
                           Waits<MODE, &PhonePrivate::mode, Mode::DIAL, &GuiRequestEvent::returnValue4>,
                           Waits<TITLE, &PhonePrivate::title>, Posts<IS_BUSY, &PhonePrivate::isBusy, false>,
                           Posts<SET_ALL, &PhonePrivate::setAll>, Posts<SET_PARTIES, &PhonePrivate::setParties>,
                           Waits<TWICE, &twice, 0>, Waits<COUNT, &Phone::count>, Waits<CHANGE, &PhonePrivate::change>,
                           Waits<LINE_BY_ARGUMENT, &PhonePrivate::line, 0, &GuiRequestEvent::ptrParam1>>;

    PhonePrivate* mImplementation = nullptr;
};

} // namespace test

using namespace test;

namespace {

class OperationsTest : public test::SteppedTest {
protected:
    OperationsTest() { Recorder::instance().clear(); }

    std::vector<std::string> reached()
    {
        auto texts = Recorder::instance().texts();
        Recorder::instance().clear();
        return texts;
    }

    /// What a worker gets while the GUI thread carries out what it posts.
    template <typename Ask>
    auto fromWorker(Ask ask)
    {
        decltype(ask()) answer{};
        test::Worker worker([&] { answer = ask(); });
        while (!worker.hasReturned())
            gui.step();
        return answer;
    }

    /// The first record that is queued.
    const GuiRequestEvent& queuedRecord() { return *static_cast<const GuiRequestEvent*>(gui.messages().front().pData); }

    std::unique_ptr<Party> anna() { return std::make_unique<Party>("Anna"); }

    Phone phone;
};

} // namespace

// The call

TEST_F(OperationsTest, RunAtOnceOnTheGuiThread)
{
    phone.call<SET_TEXT>("text");
    phone.call<SET_MODE>(Mode::EDIT);
    EXPECT_EQ(phone.call<LINE>(), 4);
    EXPECT_EQ(gui.queued(), 0);
    EXPECT_EQ(phone.handled, 0) << "no record was made";
    EXPECT_THAT(reached(), ElementsAre("setText(\"text\")", "setMode(1)"));
}

TEST_F(OperationsTest, RunAtOnceOnEveryThreadUntilAGuiThreadIsRecorded)
{
    Widget::setGuiThreadId(0);
    test::onOtherThread([&] { EXPECT_EQ(phone.call<LINE>(), 4); });
    EXPECT_EQ(phone.handled, 0);
}

TEST_F(OperationsTest, PostElsewhereAndReturn)
{
    test::onOtherThread([&] { phone.call<SET_TEXT>("text"); });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(SET_TEXT));
    EXPECT_THAT(reached(), IsEmpty());
    gui.runAll();
    EXPECT_THAT(reached(), ElementsAre("setText(\"text\")"));
}

TEST_F(OperationsTest, WaitElsewhereUntilTheGuiThreadHasAnswered)
{
    int line = 0;
    test::Worker worker([&] { line = phone.call<LINE>(); });
    gui.waitForQueued(1);
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
    worker.join();
    EXPECT_EQ(line, 4);
}

TEST_F(OperationsTest, PrivateSideIsReadOnTheGuiThreadAlone)
{
    std::unique_ptr<Phone> late;
    test::onOtherThread([&] {
        late = std::make_unique<Phone>();
        late->call<SET_TEXT>("posted before there was a private side");
    });
    gui.runAll();
    EXPECT_THAT(reached(), ElementsAre("setText(\"posted before there was a private side\")"));
}

TEST_F(OperationsTest, ConstFunctionsCallAsOthersDo)
{
    EXPECT_EQ(phone.lineOfConst(), 4);
    EXPECT_EQ(fromWorker([&] { return phone.lineOfConst(); }), 4);
}

TEST_F(OperationsTest, PostedOneWithAnAnswerReturnsTheNeutralOne)
{
    bool busy = true;
    test::onOtherThread([&] { busy = phone.call<IS_BUSY>(3); });
    EXPECT_FALSE(busy);
    gui.runAll();
    EXPECT_THAT(reached(), ElementsAre("isBusy(3)"));
    EXPECT_TRUE(phone.call<IS_BUSY>(3));
}

TEST_F(OperationsTest, FacadesOwnAndFreeFunctionsAreCalledTheSameWay)
{
    EXPECT_EQ(phone.call<COUNT>(true), 100);
    EXPECT_EQ(phone.call<TWICE>(3), 24);
    EXPECT_EQ(fromWorker([&] { return phone.call<COUNT>(true); }), 100);
    EXPECT_EQ(fromWorker([&] { return phone.call<TWICE>(3); }), 24);
}

// Answers

TEST_F(OperationsTest, AnswersKeepTheirTypeAndValue)
{
    EXPECT_EQ(fromWorker([&] { return phone.call<COLOUR>(); }), 0xFFFFFFFFu);
    EXPECT_EQ(fromWorker([&] { return phone.call<MODE>(); }), Mode::EDIT);
    EXPECT_EQ(fromWorker([&] { return phone.call<TITLE>(); }), "title");
    EXPECT_EQ(fromWorker([&] { return phone.call<LINE_BY_ARGUMENT>(); }), 4);
}

TEST_F(OperationsTest, WithoutAPrivateSideAnswersAreNeutral)
{
    GuiRequestEvent destroy(&phone, DESTROY);
    phone.processGuiRequest(destroy);
    for (const bool isWorker : {false, true}) {
        const auto ask = [&](auto question) { return isWorker ? fromWorker(question) : question(); };
        EXPECT_EQ(ask([&] { return phone.call<LINE>(); }), -1);
        EXPECT_EQ(ask([&] { return phone.call<COLOUR>(); }), 7u);
        EXPECT_EQ(ask([&] { return phone.call<MODE>(); }), Mode::DIAL);
        EXPECT_EQ(ask([&] { return phone.call<TITLE>(); }), "");
        EXPECT_EQ(ask([&] { return phone.call<TWICE>(3); }), 0);
        EXPECT_EQ(ask([&] { return phone.call<COUNT>(true); }), 100) << "the facade is there";
    }
}

TEST_F(OperationsTest, PurgedAndLostQuestionsAnswerNeutrally)
{
    int line = 0;
    test::Worker worker([&] { line = phone.call<LINE>(); });
    gui.waitForQueued(1);
    phone.purgeOwnMessage(LINE);
    worker.join();
    EXPECT_EQ(line, -1);

    const host::MessagePool::Drained nothingLeft;
    host::MessagePool::failAllocations(1);
    test::onOtherThread([&] { line = phone.call<LINE>(); });
    EXPECT_EQ(line, -1);
}

// The record

TEST_F(OperationsTest, ArgumentsStandInTheFieldsOfTheirKindInOrder)
{
    Party party("party");
    int object = 0;
    test::onOtherThread(
        [&] { phone.call<SET_ALL>("a", -3, true, &party, 0xFFFFFFFEu, "b", Mode::EDIT, &party, false, "c", &object); });
    const GuiRequestEvent& record = queuedRecord();
    EXPECT_EQ(record.stringParam1 + record.stringParam2 + record.stringParam3, "abc");
    EXPECT_THAT((std::vector<int>{record.intParam1, record.intParam2, record.intParam3}), ElementsAre(-3, -2, 1));
    EXPECT_TRUE(record.boolParam1);
    EXPECT_FALSE(record.boolParam2);
    EXPECT_EQ(record.ptrParam1, &party);
    EXPECT_EQ(record.ptrParam2, &party);
    EXPECT_EQ(record.ptrParam3, &object);
    gui.runAll();
    EXPECT_THAT(reached(),
                ElementsAre(doubles::callText("setAll", std::string("a"), -3, true, &party, -2, std::string("b"), 1,
                                              &party, false, std::string("c"), &object)));
}

TEST_F(OperationsTest, HandFilledRecordIsCarriedOutAndAnswered)
{
    GuiRequestEvent text(&phone, SET_TEXT);
    text.stringParam1 = "by hand";
    phone.processGuiRequest(text);
    EXPECT_TRUE(phone.isKnown);
    EXPECT_THAT(reached(), ElementsAre("setText(\"by hand\")"));

    int line = 0;
    for (void* GuiRequestEvent::*field : {&GuiRequestEvent::returnValue1, &GuiRequestEvent::returnValue3}) {
        GuiRequestEvent question(&phone, LINE);
        question.*field = &line;
        phone.processGuiRequest(question);
        EXPECT_EQ(line, 4) << "the field is the first";
    }
}

TEST_F(OperationsTest, AnswerComesThroughTheFieldOfItsRow)
{
    unsigned int colour = 0;
    GuiRequestEvent second(&phone, COLOUR);
    second.returnValue2 = &colour;
    phone.processGuiRequest(second);
    EXPECT_EQ(colour, 0xFFFFFFFFu);

    Mode mode = Mode::DIAL;
    GuiRequestEvent fourth(&phone, MODE);
    fourth.returnValue4 = &mode;
    phone.processGuiRequest(fourth);
    EXPECT_EQ(mode, Mode::EDIT);
}

TEST_F(OperationsTest, TextMayBeChangedInItsRecord)
{
    GuiRequestEvent record(&phone, CHANGE);
    record.stringParam1 = "text";
    phone.processGuiRequest(record);
    EXPECT_EQ(record.stringParam1, "text!");
}

TEST_F(OperationsTest, CodesWithoutARowAreNotCarriedOut)
{
    for (const int code : {-1, 17, 1000}) {
        GuiRequestEvent record(&phone, code);
        phone.processGuiRequest(record);
        EXPECT_FALSE(phone.isKnown) << code;
    }
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_F(OperationsTest, UnknownRequestIsReportedOnStderr)
{
    testing::internal::CaptureStderr();
    reportUnknownRequest("./src/Phone", 292, GuiRequestEvent(&phone, 17));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "./src/Phone:292 received unknown gui request 17\n");
}

// Superseding

TEST_F(OperationsTest, SupersedingOnePurgesTheOlderOfItsCode)
{
    test::onOtherThread([&] {
        phone.call<SET_MODE>(Mode::DIAL);
        phone.call<SET_TEXT>("stays");
        phone.call<SET_MODE>(Mode::EDIT);
    });
    gui.runAll();
    EXPECT_THAT(reached(), ElementsAre("setText(\"stays\")", "setMode(1)"));
}

TEST_F(OperationsTest, SupersedingOnePurgesTheCodesThatItNames)
{
    test::Worker worker([&] {
        phone.call<SET_MODE>(Mode::EDIT);
        phone.call<SET_TEXT>("goes");
        phone.call<CLEAR>();
    });
    gui.waitForQueued(2);
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(SET_MODE, CLEAR));
    gui.runAll();
}

TEST_F(OperationsTest, SupersedingOnePurgesNothingOnTheGuiThread)
{
    test::onOtherThread([&] { phone.call<SET_TEXT>("stays"); });
    phone.call<CLEAR>();
    gui.runAll();
    EXPECT_THAT(reached(), ElementsAre("clear()", "setText(\"stays\")"));
}

TEST_F(OperationsTest, CodesThatAreSupersededLastAsLongAsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    static constexpr int SUPERSEDED = 42;
    static Phone* const posted = &phone;
    static test::SteppedLoop* const loop = &gui;
    const auto endWithCalls = [] {
        std::atexit([] {
            test::onOtherThread([] {
                posted->call<SET_MODE>(Mode::DIAL);
                posted->call<SET_MODE>(Mode::EDIT);
            });
            std::_Exit(loop->queued() == 1 ? SUPERSEDED : 99);
        });
        test::onOtherThread([] { posted->call<SET_MODE>(Mode::EDIT); });
        std::exit(99);
    };
    EXPECT_EXIT(endWithCalls(), testing::ExitedWithCode(SUPERSEDED), "");
}

// Objects that travel with their record

TEST_F(OperationsTest, OwnedObjectsReachThePrivateSide)
{
    phone.call<SET_PARTIES>(anna(), 1, std::make_unique<Party>("Bert"));
    test::onOtherThread([&] { phone.call<SET_PARTIES>(anna(), 2, nullptr); });
    EXPECT_EQ(Party::alive, 1);
    gui.runAll();
    EXPECT_EQ(Party::alive, 0);
    EXPECT_THAT(reached(), ElementsAre("setParties(\"Anna\", 1, \"Bert\")", "setParties(\"Anna\", 2, \"nobody\")"));
}

TEST_F(OperationsTest, OwnedObjectsOfAHandFilledRecordReachThePrivateSide)
{
    GuiRequestEvent record(&phone, SET_PARTIES);
    record.ptrParam1 = new Party("Anna");
    record.ptrParam2 = new Party("Bert");
    record.intParam1 = 3;
    phone.processGuiRequest(record);
    EXPECT_THAT(reached(), ElementsAre("setParties(\"Anna\", 3, \"Bert\")"));
    EXPECT_EQ(Party::alive, 0);
}

TEST_F(OperationsTest, PurgedAndDequeuedRecordsFreeWhatTheyOwn)
{
    const auto post = [&] { phone.call<SET_PARTIES>(anna(), 1, anna()); };
    test::onOtherThread(post);
    phone.purgeOwnMessage(SET_PARTIES);
    EXPECT_EQ(Party::alive, 0);

    test::onOtherThread(post);
    std::unique_ptr<GuiRequestEvent> dequeued(phone.dequeueOwnMessage(SET_PARTIES));
    EXPECT_EQ(Party::alive, 2);
    dequeued.reset();
    EXPECT_EQ(Party::alive, 0);
}

TEST_F(OperationsTest, LostRecordsFreeWhatTheyOwn)
{
    const host::MessagePool::Drained nothingLeft;
    host::MessagePool::failAllocations(1);
    test::onOtherThread([&] { phone.call<SET_PARTIES>(anna(), 1, anna()); });
    EXPECT_EQ(Party::alive, 0);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_F(OperationsTest, WithoutAPrivateSideOwnedObjectsAreFreed)
{
    GuiRequestEvent destroy(&phone, DESTROY);
    phone.processGuiRequest(destroy);
    phone.call<SET_PARTIES>(anna(), 1, anna());
    test::onOtherThread([&] { phone.call<SET_PARTIES>(anna(), 1, anna()); });
    gui.runAll();
    EXPECT_EQ(Party::alive, 0);
}

// Through the helper

namespace {

class HelperPhone : public Widget {
public:
    void clear() { Ops::call<CLEAR>(*this, mSide); }
    int line() { return Ops::call<LINE>(*this, mSide); }

    void processGuiRequest(GuiRequestEvent& request) override
    {
        ++handled;
        Ops::carryOut(*this, mSide, request);
        signalComplete(request);
    }

    int handled = 0;

private:
    using Ops = HelperOperations<Posts<CLEAR, &PhonePrivate::clear>, Waits<LINE, &PhonePrivate::line, -1>>;

    PhonePrivate mPrivate;
    PhonePrivate* mSide = &mPrivate;
};

} // namespace

TEST_F(OperationsTest, HelpersOnesMakeARecordOnTheGuiThreadToo)
{
    HelperPhone helped;
    helped.clear();
    EXPECT_EQ(helped.line(), 4);
    EXPECT_EQ(helped.handled, 2);
    EXPECT_EQ(gui.queued(), 0);
    EXPECT_EQ(fromWorker([&] { return helped.line(); }), 4);
    test::onOtherThread([&] { helped.clear(); });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CLEAR));
    gui.runAll();
    EXPECT_THAT(reached(), ElementsAre("clear()", "clear()"));
}

// What the compiler refuses. A table asserts these of each of its rows.

namespace {

struct Odd {
    void fourTexts(std::string, std::string, std::string, std::string) {}
    void fourNumbers(int, unsigned int, Mode, int) {}
    void threeFlags(bool, bool, bool) {}
    void fourObjects(Party*, Party*, Party*, std::unique_ptr<Party>) {}
    void longNumber(long) {}
    void real(double) {}
    void literal(const char*) {}
    void rows(std::vector<int>) {}
    void full(std::string, std::string, std::string, int, int, int, bool, bool, Party*, Party*, Party*) {}
    int ofParty(Party*) { return 0; }
    bool flag() { return false; }
    unsigned int number() { return 0; }
};

static_assert(ArgumentsFit<Posts<0, &Odd::full>>);
static_assert(!ArgumentsFit<Posts<0, &Odd::fourTexts>>);
static_assert(!ArgumentsFit<Posts<0, &Odd::fourNumbers>>);
static_assert(!ArgumentsFit<Posts<0, &Odd::threeFlags>>);
static_assert(!ArgumentsFit<Posts<0, &Odd::fourObjects>>);
static_assert(!ArgumentsFit<Posts<0, &Odd::longNumber>>);
static_assert(!ArgumentsFit<Posts<0, &Odd::real>>);
static_assert(!ArgumentsFit<Posts<0, &Odd::literal>>);
static_assert(!ArgumentsFit<Posts<0, &Odd::rows>>);

static_assert(NeutralAnswerFits<Waits<0, &Odd::number>>);
static_assert(NeutralAnswerFits<Waits<0, &Odd::number, 1u>>);
static_assert(!NeutralAnswerFits<Waits<0, &Odd::number, -1>>);
static_assert(!NeutralAnswerFits<Waits<0, &Odd::flag, nullptr>>);
static_assert(!NeutralAnswerFits<Waits<0, &Odd::real, 0>>, "it has no answer");
static_assert(!NeutralAnswerFits<Posts<0, &Odd::flag>>, "what would the caller get?");
static_assert(NeutralAnswerFits<Posts<0, &Odd::flag, false>>);

static_assert(AnswerFieldIsFree<Waits<0, &Odd::ofParty>>);
static_assert(!AnswerFieldIsFree<Waits<0, &Odd::ofParty, 0, &GuiRequestEvent::ptrParam1>>);
static_assert(AnswerFieldIsFree<Waits<0, &Odd::ofParty, 0, &GuiRequestEvent::ptrParam2>>);
static_assert(AnswerFieldIsFree<Waits<0, &Odd::flag, false, &GuiRequestEvent::ptrParam1>>);

template <typename Side>
concept MayBeNamedAs = requires(HelperPhone& phone, Side side)
{
    HelperOperations<Waits<LINE, &PhonePrivate::line, -1>>::call<LINE>(phone, std::forward<Side>(side));
};

static_assert(MayBeNamedAs<PhonePrivate*&> && MayBeNamedAs<PhonePrivate* const&>);
static_assert(!MayBeNamedAs<PhonePrivate*>, "a copy has been read on the caller's thread");

} // namespace
