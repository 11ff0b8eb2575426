#include "DisplayAPI/CallBackMainItem.h"
#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/List.h"
#include "apps/examples/Example.h"
#include "kit/DetailsRow.h"
#include "kit/Subscription.h"
#include "kit/WayBack.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslatorIfc.h"

#include <memory>
#include <string>

using DisplayAPI::CallBackMainItem;
using DisplayAPI::CallLogMainItem;
using DisplayAPI::Command;
using DisplayAPI::List;
using DisplayAPI::ListItem;

namespace {

namespace kit = DisplayAPI::kit;

/// Has words for the one text that the library looks up by itself.
class Words : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override
    {
        return key == "Caller.Unknown.XXX" ? "Unknown caller" : key;
    }
};

CallPartyIdentifier gAda("Ada", "4711"), gBert("Bert", "4712"), gNobody;

/// Shows a call's details where the panel has them, and when the call was where it has not.
template <typename Details>
void show(List& details, std::unique_ptr<kit::DetailsRow<Details>> row)
{
    details.clear();
    if (row->details().getPrivateImpl() != nullptr)
        details.append(row.release());
    else
        details.append("Today 10:41");
}

/// In the order of the log.
void showDetails(List& details, int entry)
{
    using namespace DisplayAPI;
    if (entry == 0)
        show(details, std::make_unique<kit::DetailsRow<MissedItem>>(&gAda, "Today 10:41"));
    else if (entry == 1)
        show(details, std::make_unique<kit::DetailsRow<DialledItem>>(&gBert, &gAda, "Today 10:41", "00:10", true));
    else
        show(details, std::make_unique<kit::DetailsRow<ReceivedItem>>(&gNobody, "Today 10:41", "01:23"));
}

} // namespace

/// Calls, new ones in bold letters: OK shows the details of one, left goes back. The last row is a call-back.
int main()
{
    Words words;
    kit::Phone phone(examples::phoneSettings());
    phone.display().setTranslator(&words);
    List calls(0), details(kit::listType(kit::WayBack::EVERYWHERE));
    kit::Subscription choice(calls, [&](Command*) {
        const int entry = calls.getSelectedIndex();
        if (auto* const logged = dynamic_cast<CallLogMainItem*>(calls.getSelected()); logged != nullptr) {
            logged->setbold(false);
            showDetails(details, entry);
            phone.display().setCurrent(&details);
        }
    });
    kit::Subscription back(details, [&](Command* command) {
        if (command == List::BACK_COMMAND())
            phone.display().setCurrent(&calls);
    });
    phone.run(calls, [&] {
        calls.setTitle("Calls");
        details.setTitle("Details");
        calls.append(new CallLogMainItem(&gAda, "10:41", CallLogMainItem::ICON_MISSED, true, true));
        calls.append(new CallLogMainItem(&gBert, "10:40", CallLogMainItem::ICON_DIALLED, false, true));
        calls.append(new CallLogMainItem(&gNobody, "10:39", CallLogMainItem::ICON_RECEIVED, false, true));
        calls.append(new CallBackMainItem(&gBert, "10:38", CallBackMainItem::BUSY, CallBackMainItem::WAITING));
    });
}
