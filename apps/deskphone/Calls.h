#pragma once

#include "apps/deskphone/Ear.h"
#include "apps/deskphone/OwnLines.h"
#include "apps/exchange/SignedCalls.h"
#include "apps/exchange/Telephony.h"

#include <cstdint>
#include <ctime>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace deskphone {

/// A call that this telephone takes part in, or is asked to.
struct PhoneCall {
    exchange::CallEvent last = {};              ///< what was told of it last
    std::time_t moment = 0;                     ///< of its begin
    std::optional<std::int64_t> talkSince = {}; ///< on the telephony's clock; nothing while nobody has answered
    exchange::Party dialled = {};               ///< OUTGOING: as the user has chosen it, and the network knows it

    exchange::CallId id() const { return last.call; }
    exchange::CallState state() const { return last.state; }

    /// The name by which the user has called it, the one that the network knows, or the number.
    std::string party() const;

    /// How long the two have spoken until then; 0 where they have not.
    std::int64_t spokenUntil(std::int64_t then) const { return talkSince ? then - *talkSince : 0; }
};

/// All calls of the telephone, as the network tells them.
///
/// Threads: what the network tells is taken at once on its thread, which waits for nothing, and becomes true in the
/// order in which it came on the threads that answer the user, of which one runs at a time: there the calls are read,
/// and listeners are told. Make and delete it on the GUI thread.
class Calls : private exchange::TelephonyListener {
public:
    using Listener = std::function<void()>;
    using CallListener = std::function<void(const PhoneCall&)>;

    /// `telephony` outlives it.
    explicit Calls(exchange::Telephony& telephony);
    ~Calls() override;

    /// The user's own name for a number, or nothing: it stands before what the network says. From any thread. Before
    /// startListening().
    void setNames(std::function<std::string(const std::string& number)> names) { mNames = std::move(names); }

    /// Hears what happens from now on, and of each call that lives already. REQUIRES: all listeners have been added,
    /// which are called on other threads from now on.
    void startListening();

    /// Tells what has happened by now, and of each call that still lives that it has ended, `now` on the telephony's
    /// clock; then nothing is heard any more. Not on the GUI thread.
    void endAll(std::int64_t now);

    /// Nothing is heard after this. Not on the GUI thread.
    void stopListening();

    // The rest on the threads that answer the user, and before there are any on the GUI thread.

    exchange::Telephony& telephony() { return mTelephony; }
    OwnLines& lines() { return mLines; }

    /// Calls go out on this line from now on, as OwnLines says.
    void chooseLine(exchange::LineNumber line);

    /// Those that are not over, the one that began first in front.
    std::vector<const PhoneCall*> all() const;

    /// Null where it is over.
    const PhoneCall* find(exchange::CallId call) const;

    /// The one that the user has to do with now: that he speaks on, else that he has dialled, else that he has not
    /// taken leave of. Null where there is none but ringing ones.
    const PhoneCall* current() const;

    /// Whether there is one that the user has answered or dialled.
    bool isInCall() const { return current() != nullptr; }

    /// Calls somebody, without a line on the one that calls go out on. NO_CALL where the network has no such number.
    exchange::CallId place(const exchange::Party& party) { return place(mLines.outgoing().number, party); }
    exchange::CallId place(exchange::LineNumber line, const exchange::Party& party);

    /// Called with each change of a call, its end included: then it is in no list any more.
    void addCallListener(CallListener listener) { mCallListeners.push_back(std::move(listener)); }

    /// Called with each change of a line, and when it has been chosen.
    void addLineListener(std::function<void(const exchange::Line&)> listener)
    {
        mLineListeners.push_back(std::move(listener));
    }

    /// Called after changes, once for all that have come meanwhile, and when somebody has asked for it.
    void addListener(Listener listener) { mListeners.push_back(std::move(listener)); }

    /// Shows beside the panel that the handset is lifted, call or not. From any thread.
    void setLifted(bool on) { mSigns.setLifted(on); }

    /// Has the listeners called again, soon. From any thread; does not wait.
    void callListeners();

private:
    struct News {
        std::deque<exchange::CallEvent> calls;
        std::deque<exchange::Line> lines;
    };

    void callChanged(const exchange::CallEvent& event) override;
    void lineChanged(const exchange::Line& line) override;

    void catchUp();
    void accept(exchange::CallEvent event);
    void giveName(exchange::Party& party) const;
    void acceptEnds(std::int64_t now);
    void tellOf(const exchange::Line& line);

    exchange::Telephony& mTelephony;
    OwnLines mLines;
    exchange::SignedCalls mSigns;
    std::function<std::string(const std::string&)> mNames;
    std::map<exchange::CallId, PhoneCall> mCalls;
    std::map<exchange::CallId, exchange::Party> mDialled; ///< calls of which nothing has been told yet
    std::vector<CallListener> mCallListeners;
    std::vector<std::function<void(const exchange::Line&)>> mLineListeners;
    std::vector<Listener> mListeners;
    Ear mWake;
    std::mutex mMutex; ///< guards what follows; nothing is called under it
    News mNews;
    bool mIsWoken = false;
};

} // namespace deskphone
