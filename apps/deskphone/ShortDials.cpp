#include "apps/deskphone/ShortDials.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/ShortDialBook.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

using DisplayAPI::AbbreviatedItem;

namespace {

const ShortDial& entryAt(int row)
{
    return SHORT_DIALS.at(static_cast<std::size_t>(row));
}

} // namespace

ShortDials::ShortDials(Telephone& telephone, Place* parent, CallScreen& call)
    : Screen(telephone, parent, "Menu.short.dials"), mCall(call)
{
    setDialer(call);
    setRowMenu({{"Row.call", [this] { chosen(mMenuRow); }},
                {"Row.copy", [this] { this->telephone().copy(entryAt(mMenuRow).telephone); }}});
}

void ShortDials::build()
{
    for (const ShortDial& entry : SHORT_DIALS)
        list().append(new AbbreviatedItem(entry.number, entry.icon, entry.name, false));
}

void ShortDials::chosen(int row)
{
    mCall.begin(*this, entryAt(row).name, entryAt(row).telephone);
}

void dial(CallScreen& call, Place& from, const std::string& typed)
{
    if (const ShortDial* const entry = shortDialOf(typed); entry != nullptr)
        call.begin(from, entry->name, entry->telephone);
    else
        call.begin(from, typed, typed);
}

} // namespace deskphone
