#include "DisplayAPI/CheckBoxItem.h"

#include "CheckBoxItemPrivate.h"
#include "OfRow.h"
#include "Operations.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 10,
    CREATE_TRANSLATED = 11,
    IS_CHECKED = 12,
    SWAP_CHECKED = 13,
    SET_CHECKED = 14,
    DESTROY = 15
};

} // namespace

struct CheckBoxItem::Ops
    : Operations<Waits<CREATE, &CheckBoxItem::create>, Waits<CREATE_TRANSLATED, &CheckBoxItem::createTranslated>,
                 Waits<IS_CHECKED, ofRow<&CheckBoxItemPrivate::isChecked>>,
                 Waits<SWAP_CHECKED, ofRow<&CheckBoxItemPrivate::swapChecked>>,
                 Waits<SET_CHECKED, ofRow<&CheckBoxItemPrivate::setChecked>>, Waits<DESTROY, &CheckBoxItem::destroy>> {
};

/// On the GUI thread the image stays behind.
CheckBoxItem::CheckBoxItem(TranslationInfo* text, Image* image, bool, bool) : ListItem(nullptr)
{
    Ops::call<CREATE_TRANSLATED>(*this, implementation(), text, isGuiThread() ? nullptr : image);
}

CheckBoxItem::CheckBoxItem(std::string text, Image*, bool, bool) : ListItem(nullptr)
{
    Ops::call<CREATE>(*this, implementation(), text);
}

CheckBoxItem::~CheckBoxItem()
{
    Ops::call<DESTROY>(*this, implementation());
}

void CheckBoxItem::create(const std::string& text)
{
    take(new CheckBoxItemPrivate(text));
}

void CheckBoxItem::createTranslated(TranslationInfo* text, Image* image)
{
    take(new CheckBoxItemPrivate(text, image));
}

/// The former row goes when the new one is there.
void CheckBoxItem::take(ListItemPrivateIfc* row)
{
    destroy();
    setImplementation(row);
}

void CheckBoxItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

bool CheckBoxItem::isChecked()
{
    return Ops::call<IS_CHECKED>(*this, implementation());
}

void CheckBoxItem::swapChecked()
{
    Ops::call<SWAP_CHECKED>(*this, implementation());
}

void CheckBoxItem::setChecked(bool on)
{
    Ops::call<SET_CHECKED>(*this, implementation(), on);
}

void CheckBoxItem::setPartyDetails(CallPartyIdentifier*, TranslationInfo*, eCheckBoxBranchLine) {}

CallPartyIdentifier* CheckBoxItem::getPartyDetails()
{
    return nullptr;
}

void CheckBoxItem::setCheckedPassive(bool) {}

void CheckBoxItem::setAutoCheck(bool) {}

} // namespace DisplayAPI
