#include "widgets/TickerWidget.h"

#include "apps/examples/Example.h"
#include "widgets/KestrelListBoxItem.h"

namespace {

/// The news of the row that was chosen.
class News : public PegThing {
public:
    News(KestrelListBox& list, TickerWidget& ticker) : mList(list), mTicker(ticker) {}

    int Message(const PegMessage& message) override
    {
        if (message.wType == PM_CLICKED)
            mTicker.setText(examples::text(mList.currentRow() == 0 ? CANTEEN : WEATHER));
        return 0;
    }

    static constexpr const char* CANTEEN = "The canteen is closed on Friday. Sandwiches are to be had at the gate.";
    static constexpr const char* WEATHER = "Rain.";

private:
    KestrelListBox& mList;
    TickerWidget& mTicker;
};

} // namespace

/// A text on a list: it runs where it is too long, and stands still where it fits. OK chooses another one.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    KestrelListBoxItem canteen(examples::text("Canteen"));
    KestrelListBoxItem weather(examples::text("Weather"));
    KestrelListBox* const list = examples::newList();
    list->append(&canteen);
    list->append(&weather);
    auto* const ticker = new TickerWidget(examples::text(News::CANTEEN));
    list->Add(ticker); // the list's from now on, which places it
    list->setTickerShown(true);
    News news(*list, *ticker);
    list->setMessageTarget(&news);
    examples::show(list);
    phone.run();
}
