#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupConfirm.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"

#include <string>
#include <utility>

using DisplayAPI::Command;
using DisplayAPI::List;
using DisplayAPI::MenuCommand;
using DisplayAPI::PopupConfirm;

namespace {

constexpr int TEN_SECONDS = 10'000;
constexpr const char* NO_ANSWER = "No answer";

} // namespace

/// A list of people: OK asks whether to delete one, and waits ten seconds for the answer.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    MenuCommand yes("Yes", 1), no("No", 2);
    List people(0);
    PopupConfirm question(true);
    question.setText("Delete?");
    question.setState(PopupConfirm::QUESTION);
    question.addCommand(&yes);
    question.addCommand(&no);
    question.setDefaultCommand(&no);
    question.setTimeout(TEN_SECONDS);

    DisplayAPI::kit::Subscription ask(people, [&](Command*) {
        question.setLine2Text(people.getSelected()->getText());
        question.show();
    });
    std::string outcome = NO_ANSWER;
    DisplayAPI::kit::Subscription answer(question, [&](Command* command) {
        if (command == &yes)
            outcome = "Deleted";
        else if (command == &no)
            outcome = "Kept";
        else if (command == PopupConfirm::HIDDEN_COMMAND())
            people.setTitle(std::exchange(outcome, NO_ANSWER));
    });
    phone.run(people, [&] {
        people.setTitle("People");
        people.append("Ada");
        people.append("Bert");
    });
}
