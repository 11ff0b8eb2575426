#include "DisplayAPI/CallForwardItem.h"

#include "OfRow.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/telephony/CallForwardItemPrivate.h"

namespace DisplayAPI {

namespace {

/// They win over the list item's, which has 0 to 3 and 6. Of these, what stands at 3 does no harm where a text is set,
/// and what stands at 6 answers the text as well.
enum Request {
    CREATE = 0,
    CREATE_TRANSLATED = 1,
    CREATE_PLAIN = 2,
    LOCALE_CHANGED = 3,
    CHECK = 4,
    UNCHECK = 5,
    GET_TEXT = 6,
    SWAP_CHECK = 7,
    GET_CHECK = 8,
    SET_TEXT_MAIN = 9,
    SET_TEXT_MAIN_TRANSLATED = 10,
    SET_TEXT_BRANCH = 11,
    SET_TEXT_BRANCH_TRANSLATED = 12,
    SET_READONLY = 13,
    SET_CF_ICON_VISIBLE = 14,
    CLEAN_BRANCHES = 15,
    ICON_TYPE = 16,
    DESTROY = 17
};

using Ifc = CallForwardItemPrivateIfc;
using Icon = CallLogMainItem::IconType;
using BranchLine = CallForwardItem::eCallForwardBranchLine;

Icon forwardingIcon(ListItemPrivateIfc& row)
{
    const Icon icon = ofRow<&Ifc::iconType>(row);
    const bool isForwarding =
        icon >= CallLogMainItem::ICON_FORWARDING_ALWAYS && icon <= CallLogMainItem::ICON_FORWARDING_NO_ANSWER;
    return isForwarding ? icon : CallLogMainItem::NO_ICON;
}

} // namespace

struct CallForwardItem::Ops
    : Operations<Waits<CREATE, taking<Icon, std::string, bool, bool>(&CallForwardItem::create)>,
                 Waits<CREATE_TRANSLATED, taking<Icon, TranslationInfo*, bool, bool>(&CallForwardItem::create)>,
                 Waits<CREATE_PLAIN, taking<TranslationInfo*>(&CallForwardItem::create)>,
                 Posts<LOCALE_CHANGED, &ListItemPrivateIfc::localeChanged>, Posts<CHECK, ofRow<&Ifc::check>>,
                 Posts<UNCHECK, ofRow<&Ifc::uncheck>>, Waits<GET_TEXT, ofRow<&Ifc::getText>>,
                 Posts<SWAP_CHECK, ofRow<&Ifc::swapCheck>>, Waits<GET_CHECK, ofRow<&Ifc::getCheck>>,
                 Posts<SET_TEXT_MAIN, ofRow<taking<std::string>(&Ifc::setTextMain)>>,
                 Posts<SET_TEXT_MAIN_TRANSLATED, ofRow<taking<TranslationInfo*>(&Ifc::setTextMain)>>,
                 Posts<SET_TEXT_BRANCH, ofRow<taking<std::string, TranslationInfo*, BranchLine>(&Ifc::setTextBranch)>>,
                 Posts<SET_TEXT_BRANCH_TRANSLATED,
                       ofRow<taking<TranslationInfo*, TranslationInfo*, BranchLine>(&Ifc::setTextBranch)>>,
                 Posts<SET_READONLY, ofRow<&Ifc::setReadonly>>,
                 Posts<SET_CF_ICON_VISIBLE, ofRow<&Ifc::setCFIconVisible>>,
                 Posts<CLEAN_BRANCHES, ofRow<&Ifc::cleanBranches>>, Waits<ICON_TYPE, &forwardingIcon>,
                 Waits<DESTROY, &CallForwardItem::destroy>> {};

CallForwardItem::CallForwardItem(Icon icon, std::string text, bool isChecked, bool isReadonly) : ListItem(nullptr)
{
    Ops::call<CREATE>(*this, implementation(), icon, std::move(text), isChecked, isReadonly);
}

CallForwardItem::CallForwardItem(Icon icon, TranslationInfo* text, bool isChecked, bool isReadonly) : ListItem(nullptr)
{
    Ops::call<CREATE_TRANSLATED>(*this, implementation(), icon, text, isChecked, isReadonly);
}

CallForwardItem::CallForwardItem(TranslationInfo* text) : ListItem(nullptr)
{
    Ops::call<CREATE_PLAIN>(*this, implementation(), text);
}

CallForwardItem::~CallForwardItem()
{
    Ops::call<DESTROY>(*this, implementation());
}

void CallForwardItem::create(Icon icon, std::string text, bool isChecked, bool isReadonly)
{
    createRow(icon, std::move(text), isChecked, isReadonly);
}

void CallForwardItem::create(Icon icon, TranslationInfo* text, bool isChecked, bool isReadonly)
{
    createRow(icon, text, isChecked, isReadonly);
}

void CallForwardItem::create(TranslationInfo* text)
{
    createRow(text);
}

template <typename... Args>
void CallForwardItem::createRow(Args... args)
{
    name = "CallForwardItem";
    destroy();
    if (isFullPanel())
        setImplementation(new CallForwardItemPrivate(std::move(args)...));
    else
        setImplementation(new CallForwardItemPrivateWP1(std::move(args)...));
}

void CallForwardItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

ListItemPrivateIfc* CallForwardItem::getPrivateImpl()
{
    return implementation();
}

void CallForwardItem::check()
{
    Ops::call<CHECK>(*this, implementation());
}

void CallForwardItem::uncheck()
{
    Ops::call<UNCHECK>(*this, implementation());
}

void CallForwardItem::swapCheck()
{
    Ops::call<SWAP_CHECK>(*this, implementation());
}

bool CallForwardItem::getCheck()
{
    return Ops::call<GET_CHECK>(*this, implementation());
}

void CallForwardItem::setTextMain(TranslationInfo* text)
{
    Ops::call<SET_TEXT_MAIN_TRANSLATED>(*this, implementation(), text);
}

void CallForwardItem::setTextMain(const std::string& text)
{
    Ops::call<SET_TEXT_MAIN>(*this, implementation(), text);
}

void CallForwardItem::setTextBranch(TranslationInfo* text, TranslationInfo* label, BranchLine line)
{
    Ops::call<SET_TEXT_BRANCH_TRANSLATED>(*this, implementation(), text, label, line);
}

void CallForwardItem::setTextBranch(const std::string& text, TranslationInfo* label, BranchLine line)
{
    Ops::call<SET_TEXT_BRANCH>(*this, implementation(), text, label, line);
}

void CallForwardItem::setReadonly(bool on, bool showsMark)
{
    Ops::call<SET_READONLY>(*this, implementation(), on, showsMark);
}

void CallForwardItem::setCFIconVisible(bool on)
{
    Ops::call<SET_CF_ICON_VISIBLE>(*this, implementation(), on);
}

void CallForwardItem::cleanBranches()
{
    Ops::call<CLEAN_BRANCHES>(*this, implementation());
}

std::string CallForwardItem::getText()
{
    return Ops::call<GET_TEXT>(*this, implementation());
}

void CallForwardItem::localeChanged(std::string locale)
{
    Ops::call<LOCALE_CHANGED>(*this, implementation(), std::move(locale));
}

CallLogMainItem::IconType CallForwardItem::iconType() const
{
    return Ops::call<ICON_TYPE>(*this, implementation());
}

} // namespace DisplayAPI
