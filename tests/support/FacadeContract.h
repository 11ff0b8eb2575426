#pragma once

#include "support/ContractCheck.h"
#include "variants/Panel.h"
#include "widgets/KestrelApplication.h"

#include <concepts>
#include <memory>

namespace test {

using DisplayAPI::Panel;

/// Makes private sides those of a panel; of the full one at the end.
class OnPanel {
public:
    explicit OnPanel(Panel panel) { set(panel); }
    ~OnPanel() { set(Panel::FULL); }
    OnPanel(const OnPanel&) = delete;
    OnPanel& operator=(const OnPanel&) = delete;

private:
    static void set(Panel panel)
    {
        KestrelApplication::getCurrentApplication()->setHardwareVariant(panel == Panel::FULL ? 1 : 0);
    }
};

/// What a double of the panel is called: of "LampPrivate", "LampPrivateWP1" on the small one.
inline std::string sideName(const std::string& onFullPanel)
{
    const auto* const application = KestrelApplication::getCurrentApplication();
    return KestrelApplication::getHardwareVariant(application) == 1 ? onFullPanel : onFullPanel + "WP1";
}

class ContractTest : public testing::Test {
public:
    explicit ContractTest(std::function<void()> body) : mBody(std::move(body)) {}

private:
    void TestBody() override { mBody(); }

    std::function<void()> mBody;
};

/// What a facade promises of its operations. Each is checked from the GUI thread and from a worker, on both panels, in
/// a test of its own that is named after the three: the call; a record filled by hand; the same without an address for
/// the answer; both without a private side; the facade's end while the request is queued. So are codes that nobody
/// knows.
///
///     const bool LAMP_CHECKED = Contract<LampSubject>("LampContract")
///                              .posts("blink", 2, [](LampSubject& l) { l->blink(500); })
///                              .record({.int1 = 500})
///                              .arrives("blink(500)")
///                              .waits("isLit", 3, true, false, [](LampSubject& l) { return l->isLit(); })
///                              .arrives("isLit()")
///                              .completes({4, 99})
///                              .check();
///
/// A subject is a facade with what its rows need, made anew for each check on the GUI thread. WidgetSubject has what
/// most need.
template <typename Subject>
class Contract {
    template <typename Call>
    using AnswerOf = std::invoke_result_t<Call, Subject&>;

public:
    explicit Contract(std::string suite) : mSuite(std::move(suite)) {}

    template <typename Call>
    Contract& posts(std::string name, int code, Call call, SourceLine where = SourceLine::current())
    {
        return add(std::move(name), code, false, call, where);
    }

    template <typename Call>
    Contract& waits(std::string name, int code, Call call, SourceLine where = SourceLine::current())
    {
        return add(std::move(name), code, true, call, where);
    }

    /// Questions: also what is answered, and what where nobody answers. One that posts gets the latter from a worker.
    /// The answer may be told by a function of the subject. The call has to return what the private function returns: a
    /// record is given the address of a variable of that type.
    template <typename Told, typename Call>
    Contract& posts(std::string name, int code, Told answer, AnswerOf<Call> neutral, Call call,
                    SourceLine where = SourceLine::current())
    {
        return add(std::move(name), code, false, answer, neutral, call, where);
    }

    template <typename Told, typename Call>
    Contract& waits(std::string name, int code, Told answer, AnswerOf<Call> neutral, Call call,
                    SourceLine where = SourceLine::current())
    {
        return add(std::move(name), code, true, answer, neutral, call, where);
    }

    // More of the last row

    /// The operation looks at its facade when its wait is over: nobody may delete the facade meanwhile.
    Contract& readsAfterwards()
    {
        mRows.back().readsAfterwards = true;
        return *this;
    }

    /// What the record of the call has in its fields; otherwise it has no arguments.
    Contract& record(Filling filling)
    {
        return record([=](Subject&) { return filling; });
    }

    template <std::invocable<Subject&> Fill>
    Contract& record(Fill filling)
    {
        mRows.back().filling = std::move(filling);
        return *this;
    }

    /// What reaches the private side, in order; otherwise nothing does. A function tells it of the subject after the
    /// call.
    template <typename... Calls>
    Contract& arrives(const char* call, Calls... more)
    {
        return arrives([=](Subject&) { return std::vector<std::string>{call, more...}; });
    }

    template <std::invocable<Subject&> Tell>
    Contract& arrives(Tell tell)
    {
        mRows.back().arrives = [tell](Subject& subject) {
            std::vector<std::string> calls;
            if constexpr (std::same_as<decltype(tell(subject)), std::string>)
                calls = {tell(subject)};
            else
                calls = tell(subject);
            for (std::string& call : calls)
                call = subject.arrival(call);
            return calls;
        };
        return *this;
    }

    /// The record's field for the answer's address, where it is not the usual one.
    Contract& through(typename Subject::Carrier::Slot field)
    {
        mRows.back().slot = field;
        return *this;
    }

    /// A record without an address for the answer is completed, and not asked.
    Contract& needsAddress()
    {
        mRows.back().needsAddress = true;
        return *this;
    }

    /// Codes that nobody knows: completed without effect, or left as they are.
    Contract& completes(std::vector<int> unknown)
    {
        mCompleted = std::move(unknown);
        return *this;
    }

    Contract& leaves(std::vector<int> unknown)
    {
        mLeft = std::move(unknown);
        return *this;
    }

    /// What has been said so far.
    const std::vector<ContractRow<Subject>>& rows() const { return mRows; }

    /// Makes the tests.
    bool check() const
    {
        for (const Panel panel : {Panel::SMALL, Panel::FULL})
            for (const From from : {From::GUI_THREAD, From::WORKER})
                check(panel, from);
        return true;
    }

private:
    using Row = ContractRow<Subject>;
    using Check = ContractCheck<Subject>;

    template <typename Call>
    Contract& add(std::string name, int code, bool waits, Call call, SourceLine where)
    {
        Row& row = mRows.emplace_back(Row{std::move(name), code, waits, where});
        row.call = [call](Subject& subject) { return call(subject), std::string(); };
        row.ask = [](auto&, auto, const auto& carry) { return carry(), std::string(); };
        return *this;
    }

    template <typename Told, typename Call>
    Contract& add(std::string name, int code, bool waits, Told answer, AnswerOf<Call> neutral, Call call,
                  SourceLine where)
    {
        using Answer = AnswerOf<Call>;
        Row& row = mRows.emplace_back(Row{std::move(name), code, waits, where});
        row.call = [call](Subject& subject) { return asText(call(subject)); };
        row.ask = [neutral](auto& record, auto slot, const auto& carry) {
            Answer variable = neutral;
            Row::Carrier::expect(record, &variable, slot);
            carry();
            return asText(variable);
        };
        row.answer = [answer](Subject& subject) {
            if constexpr (std::invocable<Told, Subject&>)
                return asText(Answer(answer(subject)));
            else
                return asText(Answer(answer));
        };
        row.neutral = asText(neutral);
        return *this;
    }

    void check(Panel panel, From from) const
    {
        const std::string there = "From" + nameOf(from) + (panel == Panel::FULL ? "OnFullPanel" : "OnSmallPanel");
        for (const Row& row : mRows)
            addTest(row.name + there, row.where, panel, from, [row](Check& check) { check.row(row); });
        const auto where = mRows.back().where;
        addTest("unknownCodes" + there, where, panel, from, [completed = mCompleted, left = mLeft](Check& check) {
            for (const int code : completed)
                check.unknown(code, true);
            for (const int code : left)
                check.unknown(code, false);
        });
    }

    template <typename Body>
    void addTest(const std::string& name, SourceLine where, Panel panel, From from, Body body) const
    {
        const auto test = [=] {
            const OnPanel there(panel);
            SteppedLoop gui;
            Check check(gui, from);
            body(check);
        };
        testing::RegisterTest(mSuite.c_str(), name.c_str(), nullptr, nullptr, where.file, where.line,
                              [=]() -> testing::Test* { return new ContractTest(test); });
    }

    std::string mSuite;
    std::vector<Row> mRows;
    std::vector<int> mCompleted;
    std::vector<int> mLeft;
};

/// A facade that needs nothing more for its rows. Not every one can be without a private side (CAN_BE_BARE) or purges
/// what is queued when it is deleted (PURGES).
template <typename Facade>
struct WidgetSubject {
    using Carrier = WidgetCarrier;
    static constexpr bool CAN_BE_BARE = true;
    static constexpr bool PURGES = true;

    Facade& operator*() const { return *facade; }
    Facade* operator->() const { return facade.get(); }
    ~WidgetSubject()
    {
        if (isEnded)
            static_cast<void>(facade.release());
    }

    /// The pointer stays as it is: another thread has read it.
    void end()
    {
        delete facade.get();
        isEnded = true;
    }

    /// Has the private side deleted by the request that the destructor posts: for facades that always make one.
    void endSide(int destroyCode)
    {
        const std::unique_ptr<Carrier::Record> destroy(Carrier::make(*facade, destroyCode, {}, nullptr));
        Carrier::carryOut(*facade, *destroy);
    }

    /// How a private side notes a call, and whether what has been noted is one: constructors and destructors are not.
    static std::string arrival(const std::string& call) { return call; }
    static bool isArrival(const std::string& note) { return note.find("::") != std::string::npos; }

    std::unique_ptr<Facade> facade;
    bool isEnded = false;
};

} // namespace test
