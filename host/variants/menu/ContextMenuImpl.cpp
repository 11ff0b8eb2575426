#include "host/variants/menu/ContextMenuImpl.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "utilities/TranslatorIfc.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

constexpr const char* BACK_KEY = "Back";
constexpr const char* BACK_ARROW = "\u2190"; ///< understood in every language

constexpr int mostRows(Panel panel)
{
    return panel == Panel::FULL ? 5 : 2;
}

/// The small panel's stands in its place of the screen's text: see Display::serialiseByRect().
constexpr const char* nameIn(Panel panel)
{
    return panel == Panel::FULL ? "ContextMenu" : "ContextMenu20Line2";
}

} // namespace

ContextMenuSide::Impl::Impl(ContextMenuSide& menu, ContextMenu* facade, bool wayBack, Panel panelOfMenu)
    : Popup(menu, facade, nullptr), panel(panelOfMenu), leftGoesBack(wayBack || panel == Panel::FULL),
      hasBackRow(wayBack && panel == Panel::SMALL)
{
    box->setField(column);
    column->setMessageTarget(this);
    clear();
}

ContextMenuSide::Impl::~Impl()
{
    if (box != nullptr)
        column->setMessageTarget(nullptr);
}

void ContextMenuSide::Impl::hear(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: moved(); break;
    case PM_CLICKED: choose(message.iData); break;
    case PM_KEY: key(message.iData); break;
    default: break;
    }
}

void ContextMenuSide::Impl::moved()
{
    userHasMoved = true;
    changed();
}

/// What neither the column nor a bar has a use for.
void ContextMenuSide::Impl::key(int key)
{
    const int row = column->current();
    if (key == PK_LEFT && leftGoesBack)
        leave();
    else if (key == PK_RIGHT && rightEqualsOk && row >= 0)
        choose(row);
    else if (key == PK_RIGHT && commandAt(row) != nullptr && rows[static_cast<std::size_t>(row)].second != nullptr)
        raiseAndLeave(rows[static_cast<std::size_t>(row)].second);
}

void ContextMenuSide::Impl::choose(int row)
{
    raiseAndLeave(commandAt(row));
}

void ContextMenuSide::Impl::raiseAndLeave(Command* command)
{
    if (!Command::exists(command) || raise(command))
        leave();
}

Command* ContextMenuSide::Impl::commandAt(int row) const
{
    return row >= 0 && row < size() ? rows[static_cast<std::size_t>(row)].command : nullptr;
}

int ContextMenuSide::Impl::defaultRow() const
{
    const auto found = std::ranges::find(rows, defaultCommand, &Row::command);
    return found != rows.end() ? static_cast<int>(found - rows.begin()) : 0;
}

void ContextMenuSide::Impl::opened()
{
    userHasMoved = false;
    selectFirst();
}

void ContextMenuSide::Impl::selectFirst()
{
    if (box != nullptr)
        column->setCurrent(defaultRow());
}

void ContextMenuSide::Impl::add(Command* command, Command* second, bool marked)
{
    const auto entry = texts.entryOf(command, second, marked);
    if (box == nullptr || !entry)
        return;
    const int row = size();
    rows.push_back({command, second});
    column->insert(row, *entry);
    if (!userHasMoved && (row == 0 || command == defaultCommand))
        column->setCurrent(row);
    box->fitField();
    changed();
}

void ContextMenuSide::Impl::clear()
{
    rows.clear();
    defaultCommand = nullptr;
    userHasMoved = false;
    if (box == nullptr)
        return;
    column->clear();
    if (hasBackRow)
        column->insert(0, {.text = backText(), .leadsBack = true});
    layOut();
    changed();
}

void ContextMenuSide::Impl::setDefault(Command* command)
{
    defaultCommand = command;
    if (userHasMoved)
        return;
    selectFirst();
    changed();
}

PegString ContextMenuSide::Impl::backText() const
{
    return ICC::fromUTF8toUNICODE(backTranslator != nullptr ? backTranslator->translate(BACK_KEY) : BACK_ARROW);
}

void ContextMenuSide::Impl::showWayBack()
{
    if (box == nullptr || !hasBackRow)
        return;
    column->setText(size(), backText());
    changed();
}

/// A command that has gone keeps the text that it had.
void ContextMenuSide::Impl::languageChanged()
{
    if (box == nullptr)
        return;
    for (int row = 0; row < size(); ++row)
        if (auto text = texts.textOf(commandAt(row)))
            column->setText(row, std::move(*text));
    if (hasBackRow)
        column->setText(size(), backText());
    layOut();
    changed();
}

void ContextMenuSide::Impl::layOut()
{
    if (box == nullptr)
        return;
    const int free = std::clamp(statusLines, 0, mostRows(panel) - 1);
    column->setMostRows(mostRows(panel) - free);
    box->setStatusLines(free);
}

void ContextMenuSide::Impl::setStatusLines(int lines)
{
    statusLines = lines;
    layOut();
    changed();
}

std::string ContextMenuSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    std::string contents;
    for (int row = column->top(); row < column->count() && column->rowArea(row).bottom >= column->rowArea(row).top;
         ++row)
        if (isVisible(column->rowArea(row), visible))
            contents +=
                screen::subItem("ContextMenuItem", screen::textLine(0, ICC::fromUNICODEtoUTF8(column->at(row).text)));
    return screen::object(nameIn(panel), contents);
}

} // namespace DisplayAPI
