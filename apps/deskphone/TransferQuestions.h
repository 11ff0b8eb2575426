#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/NumberQuestion.h"

#include <deque>

namespace deskphone {

class Telephone;

/// Asks to whom a call goes on, each by itself: the question of one call lies unharmed below that of another, and goes
/// with its call. Make and delete it on the GUI thread.
class TransferQuestions {
public:
    TransferQuestions(Telephone& telephone, Calls& calls);

    /// Passes the call on to the number that the user types. On the threads that answer the user.
    void ask(exchange::CallId call);

    /// What the user chooses is not heard after this. REQUIRES: nothing is asked any more. Not on the GUI thread.
    void stopListening();

private:
    struct Question {
        explicit Question(Telephone& telephone) : number(telephone, "Call.transfer") {}

        exchange::CallId call = exchange::NO_CALL;
        NumberQuestion number;
    };

    Question& questionFor(exchange::CallId call);
    void passOn(exchange::CallId call, const std::string& number);
    void withdraw();

    Telephone& mTelephone;
    Calls& mCalls;
    std::deque<Question> mQuestions; ///< as many as have been open at once; those of NO_CALL are used again
};

} // namespace deskphone
