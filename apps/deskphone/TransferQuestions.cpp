#include "apps/deskphone/TransferQuestions.h"

#include "apps/deskphone/PhoneBook.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"

#include <algorithm>

namespace deskphone {

using exchange::CallId;

TransferQuestions::TransferQuestions(Telephone& telephone, Calls& calls) : mTelephone(telephone), mCalls(calls)
{
    calls.addListener([this] { withdraw(); });
}

void TransferQuestions::ask(CallId call)
{
    Question& question = questionFor(call);
    question.call = call;
    question.number.ask([this, call](const std::string& number) { passOn(call, digitsOf(number)); });
}

void TransferQuestions::stopListening()
{
    for (Question& question : mQuestions)
        question.number.stopListening();
}

TransferQuestions::Question& TransferQuestions::questionFor(CallId call)
{
    for (const CallId wanted : {call, exchange::NO_CALL})
        if (const auto found = std::ranges::find(mQuestions, wanted, &Question::call); found != mQuestions.end())
            return *found;
    DisplayAPI::kit::onGuiThread([this] { mQuestions.emplace_back(mTelephone); });
    return mQuestions.back();
}

/// By the time that the number is typed a call that rang may have been answered.
void TransferQuestions::passOn(CallId call, const std::string& number)
{
    const PhoneCall* const goesOn = mCalls.find(call);
    if (goesOn != nullptr && goesOn->state() == exchange::CallState::INCOMING)
        mCalls.telephony().deflect(call, number);
    else
        mCalls.telephony().transferTo(call, number);
}

/// Of a call that is over nothing is asked any more.
void TransferQuestions::withdraw()
{
    for (Question& question : mQuestions)
        if (question.call != exchange::NO_CALL && mCalls.find(question.call) == nullptr) {
            question.call = exchange::NO_CALL;
            question.number.withdraw();
        }
}

} // namespace deskphone
