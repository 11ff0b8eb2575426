#include "host/widgets/popup/PopupBox.h"

#include "apps/examples/Example.h"

namespace {

/// Says what was chosen, in place of the question.
class Answer : public PegThing {
public:
    explicit Answer(host::PopupBox& box) : mBox(box) {}

    int Message(const PegMessage& message) override
    {
        if (message.wType == PM_CLICKED)
            mBox.setHeader(examples::text(message.iData == 0 ? "Deleted." : "Kept."));
        return 0;
    }

private:
    host::PopupBox& mBox;
};

} // namespace

/// A question: left and right choose an answer, OK gives it.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    auto* const box = new host::PopupBox;
    Answer answer(*box);
    box->setHeader(examples::text("Delete entry?"));
    box->setBody({examples::text("Ada"), examples::text("030 1234567")});
    box->setCommands({examples::text("Yes"), examples::text("No")});
    box->setMessageTarget(&answer);
    examples::show(box);
    phone.run();
}
