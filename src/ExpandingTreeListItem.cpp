#include "DisplayAPI/ExpandingTreeListItem.h"

#include "ExpandingTreeListItemPrivate.h"
#include "Operations.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request { DESTROY = 2, CREATE = 10, CREATE_TRANSLATED = 11 };

} // namespace

struct ExpandingTreeListItem::Ops : Operations<Posts<CREATE, &ExpandingTreeListItem::create>,
                                               Posts<CREATE_TRANSLATED, &ExpandingTreeListItem::createTranslated>,
                                               Waits<DESTROY, &ExpandingTreeListItem::destroy>> {};

ExpandingTreeListItem::ExpandingTreeListItem(std::string text, int level) : ListItem(nullptr), mLevel(level)
{
    Ops::call<CREATE>(*this, implementation(), std::move(text));
}

ExpandingTreeListItem::ExpandingTreeListItem(TranslationInfo* text, int level) : ListItem(nullptr), mLevel(level)
{
    Ops::call<CREATE_TRANSLATED>(*this, implementation(), text);
}

ExpandingTreeListItem::ExpandingTreeListItem(ListItemPrivateIfc* implementation, int level)
    : ListItem(implementation), mLevel(level)
{
}

ExpandingTreeListItem::~ExpandingTreeListItem()
{
    Ops::call<DESTROY>(*this, implementation());
}

/// Once: the list that the row stands in knows its side.
void ExpandingTreeListItem::create(std::string text)
{
    if (implementation() == nullptr)
        setImplementation(new ExpandingTreeListItemPrivate(TranslatedText(std::move(text))));
}

void ExpandingTreeListItem::createTranslated(TranslationInfo* text)
{
    if (implementation() == nullptr)
        setImplementation(new ExpandingTreeListItemPrivate(TranslatedText(text)));
}

void ExpandingTreeListItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

} // namespace DisplayAPI
