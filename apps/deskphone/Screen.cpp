#include "apps/deskphone/Screen.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"
#include "kit/WayBack.h"

#include <algorithm>
#include <utility>

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::List;
using DisplayAPI::ListItem;
namespace kit = DisplayAPI::kit;

namespace {

kit::WayBack wayBackTo(const Place* parent)
{
    return parent != nullptr ? kit::WayBack::EVERYWHERE : kit::WayBack::NOWHERE;
}

} // namespace

Screen::Screen(Telephone& telephone, Place* parent, const std::string& title)
    : Screen(telephone, parent, title, std::make_unique<List>(kit::listType(wayBackTo(parent))))
{
}

Screen::Screen(Telephone& telephone, Place* parent, const std::string& title, std::unique_ptr<List> list)
    : mTelephone(telephone), mParent(parent),
      mEar([this](Command* command, const ListItem* row) { answer(command, row); }), mList(std::move(list))
{
    mEar.listenTo(*mList);
    if (!title.empty())
        mList->setTitle(text(title).info());
}

Screen::~Screen() = default;

void Screen::open()
{
    std::call_once(mIsBuilt, [this] { mBuilder = std::thread([this] { build(); }); });
    mTelephone.arriveAt(*this);
    bringUp();
}

void Screen::bringUp()
{
    mTelephone.show(*mList);
}

void Screen::setTicker(DisplayAPI::Ticker& ticker)
{
    mList->setTicker(&ticker);
}

bool Screen::isShown()
{
    return mTelephone.display().getCurrent() == mList.get();
}

void Screen::stopListening()
{
    mEar.stop();
    if (mRowMenu != nullptr)
        mRowMenu->stopListening();
    if (mDialer != nullptr)
        mDialer->stopListening();
}

void Screen::stopWorking()
{
    if (mBuilder.joinable())
        mBuilder.join();
}

/// Commands arrive later than they are raised: what the user did to a screen that has been left meanwhile, or to a row
/// that has gone, is void.
void Screen::answer(Command* command, const ListItem* asked)
{
    if (!isShown())
        return;
    if (command == List::BACK_COMMAND() && mParent != nullptr) {
        left();
        mParent->open();
        return;
    }
    const bool isChoice = command == List::SELECT_COMMAND() || command == List::RIGHT_COMMAND();
    const int row = isChoice ? placeOf(asked) : -1;
    if (row < 0)
        return;
    if (command == List::RIGHT_COMMAND())
        openMenu(row);
    else
        chosen(row);
}

/// -1 where it has gone.
int Screen::placeOf(const ListItem* row) const
{
    const std::vector<ListItem*> rows = mList->getItems();
    const auto place = std::ranges::find(rows, row);
    return place != rows.end() ? static_cast<int>(place - rows.begin()) : -1;
}

void Screen::openMenu(int row)
{
    if (mRowMenu == nullptr)
        return chosen(row);
    menuOpens(row);
    mRowMenu->open();
}

void Screen::setRowMenu(const std::vector<RowMenu::Action>& actions)
{
    mRowMenu = std::make_unique<RowMenu>(mTelephone, actions);
}

void Screen::setDialer(CallScreen& call)
{
    mDialer = std::make_unique<Dialer>(mTelephone,
                                       [this, &call](const std::string& number) { call.begin(*this, number, number); });
    mList->addDialer(&mDialer->popup());
    mList->showDiallerOnInitialKeyEvent(true);
}

Text& Screen::text(const std::string& key, std::vector<Text::Argument> arguments)
{
    return mTexts.emplace_back(&mTelephone.languages(), key, std::move(arguments));
}

ListItem* Screen::append(Text& text)
{
    auto* const row = new ListItem(text.info(), false);
    mList->append(row);
    return row;
}

void Screen::renewRow(ListItem*& row, Text& text)
{
    kit::onGuiThread([&] {
        const bool wasSelected = mList->getSelected() == row;
        const std::unique_ptr<ListItem> former(std::exchange(row, new ListItem(text.info(), false)));
        mList->replace(former.get(), row);
        if (wasSelected)
            mList->setSelected(row);
    });
}

} // namespace deskphone
