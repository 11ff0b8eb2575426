#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupNotification.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"
#include "utilities/CallPartyIdentifier.h"

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::List;
using DisplayAPI::PopupNotification;

namespace {

constexpr int FIVE_SECONDS = 5'000;

/// Hears of the end of a notification, which keeps its listeners: this one is made before it.
class End : public CommandListener {
public:
    explicit End(List& news) : mNews(news) {}

    void commandAction(Command* command, Displayable*) override
    {
        if (command == PopupNotification::HIDDEN_COMMAND())
            mNews.setTitle("That was it");
    }

private:
    List& mNews;
};

} // namespace

/// A list of news: OK shows the first in a popup that a key takes away, the second in one that goes after five seconds.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    List news(0);
    End end(news);
    PopupNotification sent, forwarded;
    sent.setText("Sent");
    sent.setType(PopupNotification::SUCCESS);
    sent.setLine2PrefixText("To");
    sent.setLine2Icon(PopupNotification::ICON_LETTER);
    sent.setPartyDetails(CallPartyIdentifier("Ada", "4711"));
    sent.setLine3Text("Just now");
    sent.setDismissible(true);
    CallPartyIdentifier caller("Bert", "4712"), called("Cleo", "4713");
    forwarded.setForwardNotification(caller, called, DisplayAPI::FORWARDED_BUSY);
    forwarded.setTimeout(FIVE_SECONDS);
    forwarded.addCommandListener(&end);

    DisplayAPI::kit::Subscription choice(news,
                                         [&](Command*) { (news.getSelectedIndex() == 0 ? sent : forwarded).show(); });
    phone.run(news, [&] {
        news.setTitle("News");
        news.append("A letter");
        news.append("A call");
    });
}
