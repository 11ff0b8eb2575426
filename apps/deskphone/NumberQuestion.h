#pragma once

#include "apps/deskphone/Dialer.h"

#include <functional>
#include <string>

namespace deskphone {

/// Asks the user for a number that is not called, such as the one to which calls are forwarded. Make and delete it on
/// the GUI thread.
class NumberQuestion {
public:
    using Answer = std::function<void(const std::string& number)>;

    /// `text` is the key of what is done with the number.
    NumberQuestion(Telephone& telephone, const std::string& text)
        : mDialer(
              telephone, [this](const std::string& number) { mAnswer(number); }, text)
    {
    }

    /// Calls `answer` when there is one, in the place of the one before; begins with `number`. On the threads that
    /// answer the user.
    void ask(Answer answer, const std::string& number = {})
    {
        mAnswer = std::move(answer);
        mDialer.openWith(number);
    }

    /// Takes the question off the screen, whatever lies on it.
    void withdraw() { mDialer.close(); }

    /// What the user chooses is not heard after this. Not on the GUI thread.
    void stopListening() { mDialer.stopListening(); }

private:
    Answer mAnswer;
    Dialer mDialer;
};

} // namespace deskphone
