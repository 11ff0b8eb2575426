#pragma once

#include "support/ContractRow.h"
#include "support/From.h"
#include "support/Worker.h"
#include "utilities/Threadable.h"

#include <gmock/gmock.h>

#include <utility>

namespace test {

/// Checks one row of a contract, or the codes that nobody knows, from one thread.
template <typename Subject>
class ContractCheck {
public:
    using Row = ContractRow<Subject>;
    using Carrier = typename Subject::Carrier;

    ContractCheck(SteppedLoop& gui, From from) : mGui(gui), mFrom(from) {}

    void row(const Row& row)
    {
        operation(row, true);
        record(row, true, true);
        record(row, true, false);
        endWhileQueued(row);
        if (!Subject::CAN_BE_BARE)
            return;
        operation(row, false);
        record(row, false, true);
    }

    void unknown(int code, bool isCompleted)
    {
        SCOPED_TRACE("code " + std::to_string(code));
        Subject subject(true);
        typename Carrier::Done done;
        settle();
        carry(subject, Carrier::make(*subject, code, {}, &done));
        EXPECT_EQ(done.times(), isCompleted ? 1 : 0);
        EXPECT_THAT(arrivals(), testing::IsEmpty());
        subject.end();
    }

private:
    /// What a call has come to.
    struct Outcome {
        std::string answer;
        std::vector<int> posted;
        bool waited = false;
    };

    void operation(const Row& row, bool hasSide)
    {
        SCOPED_TRACE(hasSide ? "the operation" : "the operation without a private side");
        Subject subject(hasSide);
        settle();
        const Outcome outcome = perform(row, subject);
        const bool isPosted = mFrom == From::WORKER;
        EXPECT_EQ(outcome.posted, isPosted ? std::vector{row.code} : std::vector<int>{});
        EXPECT_EQ(outcome.waited, isPosted && row.waits) << "whether it waits";
        EXPECT_EQ(outcome.answer, hasSide && (row.waits || !isPosted) ? row.answer(subject) : row.neutral);
        EXPECT_EQ(arrivals(), hasSide ? row.arrives(subject) : std::vector<std::string>());
        subject.end();
    }

    /// A record that is filled by hand; without the address of a variable for the answer where that is not wanted.
    void record(const Row& row, bool hasSide, bool isAsked)
    {
        SCOPED_TRACE(!hasSide  ? "a record without a private side"
                     : isAsked ? "a record"
                               : "a record without an address");
        Subject subject(hasSide);
        typename Carrier::Done done;
        settle();
        auto* const filled = Carrier::make(*subject, row.code, row.filling(subject), &done);
        const auto carryIt = [&] { carry(subject, filled); };
        if (isAsked) {
            const std::string answer = row.ask(*filled, row.slot, carryIt);
            EXPECT_EQ(answer, hasSide ? row.answer(subject) : row.neutral);
        } else {
            carryIt();
        }
        EXPECT_EQ(done.times(), 1) << "how often it has been completed";
        const bool arrives = hasSide && (isAsked || !row.needsAddress);
        EXPECT_EQ(arrivals(), arrives ? row.arrives(subject) : std::vector<std::string>());
        subject.end();
    }

    /// What is queued when the GUI thread deletes the facade never runs, and who waits is woken.
    void endWhileQueued(const Row& row)
    {
        if (!Subject::PURGES || row.readsAfterwards || mFrom == From::GUI_THREAD)
            return;
        SCOPED_TRACE("deleted while the request is queued");
        Subject subject(true);
        settle();
        std::string answer;
        Worker worker([&] { answer = row.call(subject); });
        EXPECT_EQ(worker.isBlocked(), row.waits);
        waitUntil([&] { return mGui.queued() > 0 || worker.hasReturned(); });
        EXPECT_EQ(mGui.queued(), 1) << "requests of the call that are queued";
        subject.end();
        worker.join();
        EXPECT_EQ(answer, row.neutral);
        EXPECT_THAT(arrivals(), testing::IsEmpty());
    }

    Outcome perform(const Row& row, Subject& subject)
    {
        if (mFrom == From::GUI_THREAD)
            return {row.call(subject), Carrier::queuedCodes(mGui)};
        Outcome outcome;
        Worker worker([&] { outcome.answer = row.call(subject); });
        outcome.waited = worker.isBlocked();
        outcome.posted = Carrier::queuedCodes(mGui);
        while (!worker.hasReturned())
            mGui.step();
        worker.join();
        mGui.runAll();
        return outcome;
    }

    void carry(Subject& subject, typename Carrier::Record* filled)
    {
        if (mFrom == From::WORKER) {
            onOtherThread([&] { Carrier::post(*subject, filled); });
            mGui.runAll();
        } else {
            Carrier::carryOut(*subject, *filled);
            delete filled;
        }
    }

    void settle()
    {
        mGui.runAll();
        doubles::Recorder::instance().clear();
    }

    /// What has reached the private side, all of it on the GUI thread.
    std::vector<std::string> arrivals()
    {
        std::vector<std::string> texts;
        for (const doubles::Call& call : doubles::Recorder::instance().calls()) {
            if (!Subject::isArrival(call.text))
                continue;
            EXPECT_EQ(call.thread, Threadable::currentThreadId()) << call.text;
            texts.push_back(call.text);
        }
        doubles::Recorder::instance().clear();
        return texts;
    }

    SteppedLoop& mGui;
    From mFrom;
};

} // namespace test
