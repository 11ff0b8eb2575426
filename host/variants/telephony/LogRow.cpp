#include "host/variants/telephony/LogRow.h"

#include "DisplayAPI/CallBackMainItemPrivateIfc.h"
#include "DisplayAPI/CallLogMainItemPrivateIfc.h"
#include "DisplayAPI/DialledItemPrivateIfc.h"
#include "DisplayAPI/ForwardedItemPrivateIfc.h"
#include "DisplayAPI/MissedItemPrivateIfc.h"
#include "DisplayAPI/ReceivedItemPrivateIfc.h"

#include <sstream>
#include <utility>

namespace DisplayAPI {

void LogLines::add(OwnedText text, const host::Icon* icon)
{
    look.lines.push_back({.text = text.shown(), .icon = icon});
    texts.push_back(std::move(text));
}

void LogLines::addParty(const CallPartyIdentifier* party, const host::Icon* icon)
{
    add(OwnedText(party != nullptr ? *party : CallPartyIdentifier()), icon);
}

void LogLines::addText(const std::string& text)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        add(OwnedText(line));
}

LogRow::LogRow(const char* name, LogLines lines) : texts(std::move(lines.texts)), item(new host::LinesRow(name))
{
    item->show(std::move(lines.look));
}

void LogRow::localeChanged()
{
    host::LinesLook look = item->look();
    for (std::size_t line = 0; line < texts.size(); ++line)
        look.lines[line].text = texts[line].shown();
    item->show(std::move(look));
}

void LogRow::setBold(bool on)
{
    host::LinesLook look = item->look();
    look.lines.front().bold = on;
    item->show(std::move(look));
}

template <typename Interface>
LogRowSide<Interface>::LogRowSide(std::unique_ptr<LogRow> row) : mRow(std::move(row))
{
}

template <typename Interface>
LogRowSide<Interface>::~LogRowSide() = default;

template <typename Interface>
void LogRowSide<Interface>::localeChanged(std::string)
{
    mRow->localeChanged();
}

template <typename Interface>
void LogRowSide<Interface>::releaseOwnership()
{
    mRow->ownership.releaseOwnership();
}

template <typename Interface>
void LogRowSide<Interface>::gainOwnership()
{
    mRow->ownership.gainOwnership();
}

template <typename Interface>
KestrelListBoxItem* LogRowSide<Interface>::getKestrelListItem()
{
    return mRow->item;
}

template class LogRowSide<CallLogMainItemPrivateIfc>;
template class LogRowSide<CallBackMainItemPrivateIfc>;
template class LogRowSide<DialledItemPrivateIfc>;
template class LogRowSide<ForwardedItemPrivateIfc>;
template class LogRowSide<MissedItemPrivateIfc>;
template class LogRowSide<ReceivedItemPrivateIfc>;

} // namespace DisplayAPI
