#include "DisplayAPI/ListItem.h"

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "utilities/ICC.h"
#include "variants/list/ListItemPrivate.h"
#include "widgets/KestrelListBoxItem.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, CREATE_TRANSLATED = 1, DESTROY = 2, SET_TEXT = 3, GET_TEXT = 6 };

/// A row's text is fixed.
void leaveText(ListItemPrivateIfc&, TranslationInfo*, const std::string&) {}

std::string textOf(ListItemPrivateIfc& row)
{
    return ICC::fromUNICODEtoUTF8(row.getKestrelListItem()->DataGet());
}

} // namespace

struct ListItem::Ops
    : Operations<Posts<CREATE, taking<std::string, bool>(&ListItem::create)>,
                 Posts<CREATE_TRANSLATED, taking<TranslationInfo*, bool>(&ListItem::create)>,
                 Waits<DESTROY, &ListItem::destroy>, Posts<SET_TEXT, &leaveText>, Waits<GET_TEXT, &textOf>> {};

ListItem::ListItem() : ListItem(nullptr)
{
    createEmpty();
}

ListItem::ListItem(std::string text, bool flag) : ListItem(nullptr)
{
    Ops::call<CREATE>(*this, mImplementation, std::move(text), flag);
}

ListItem::ListItem(TranslationInfo* text, bool flag) : ListItem(nullptr)
{
    Ops::call<CREATE_TRANSLATED>(*this, mImplementation, text, flag);
}

ListItem::ListItem(ListItemPrivateIfc* implementation) : mImplementation(implementation)
{
    name = "ListItem";
}

ListItem::~ListItem()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void ListItem::createEmpty()
{
    Ops::call<CREATE>(*this, mImplementation, std::string(), isGuiThread());
}

void ListItem::create(std::string text, bool flag)
{
    createRow(std::move(text), flag);
}

void ListItem::create(TranslationInfo* text, bool flag)
{
    createRow(text, flag);
}

template <typename Text>
void ListItem::createRow(Text text, bool flag)
{
    if (isFullPanel())
        mImplementation = new ListItemPrivate(std::move(text), flag);
    else
        mImplementation = new ListItemPrivateWP1(std::move(text), flag);
}

void ListItem::destroy()
{
    delete mImplementation;
    mImplementation = nullptr;
}

void ListItem::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

ListItemPrivateIfc* ListItem::getPrivateImplemetation()
{
    return mImplementation;
}

std::string ListItem::getText()
{
    return Ops::call<GET_TEXT>(*this, mImplementation);
}

void ListItem::setText(std::string text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, nullptr, text);
}

void ListItem::setText(TranslationInfo* text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, text, std::string());
}

void ListItem::enableContextMenuArrow(bool) {}

} // namespace DisplayAPI
