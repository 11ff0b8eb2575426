#include "apps/deskphone/Screen.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"

#include <utility>

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::Display;
using DisplayAPI::List;
using DisplayAPI::ListItem;

namespace {

constexpr int LIST_WITH_A_WAY_BACK = 3;
constexpr int LIST_WITHOUT = 0;

} // namespace

Screen::Screen(Display& display, Screen* parent, const std::string& title)
    : Screen(display, parent, title, std::make_unique<List>(parent != nullptr ? LIST_WITH_A_WAY_BACK : LIST_WITHOUT))
{
}

Screen::Screen(Display& display, Screen* parent, const std::string& title, std::unique_ptr<List> list)
    : mDisplay(display), mParent(parent), mList(std::move(list))
{
    mList->setTitle(title);
    mList->addCommandListener(this);
}

Screen::~Screen() = default;

void Screen::open()
{
    std::call_once(mIsBuilt, [this] { mBuilder = std::thread([this] { build(); }); });
    mDisplay.setCurrent(mList.get());
}

void Screen::stopListening()
{
    mList->removeCommandListener(this);
    mList->size();
}

void Screen::stopWorking()
{
    if (mBuilder.joinable())
        mBuilder.join();
}

void Screen::commandAction(Command* command, DisplayAPI::Displayable*)
{
    if (command == List::BACK_COMMAND() && mParent != nullptr) {
        left();
        mParent->open();
        return;
    }
    const bool isChoice = command == List::SELECT_COMMAND() || command == List::RIGHT_COMMAND();
    const int row = isChoice ? mList->getSelectedIndex() : -1;
    if (row >= 0)
        chosen(row);
}

void Screen::renewRow(ListItem*& row, const std::string& text)
{
    const bool wasSelected = mList->getSelected() == row;
    const std::unique_ptr<ListItem> former(std::exchange(row, new ListItem(text, false)));
    mList->replace(former.get(), row);
    if (wasSelected)
        mList->setSelected(row);
}

} // namespace deskphone
