#include "DisplayAPI/ListItem.h"

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "Request.h"
#include "Variant.h"
#include "utilities/ICC.h"
#include "variants/list/ListItemPrivate.h"
#include "variants/list/ListItemPrivateWP1.h"
#include "widgets/KestrelListBoxItem.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, CREATE_TRANSLATED = 1, DESTROY = 2, SET_TEXT = 3, GET_TEXT = 6 };

} // namespace

ListItem::ListItem()
{
    if (isGuiThread())
        create(std::string(), true);
    else
        postEventAsync(request(this, CREATE, std::string(), false));
}

ListItem::ListItem(std::string text, bool flag)
{
    if (isGuiThread())
        create(text, flag);
    else
        postEventAsync(request(this, CREATE, std::move(text), flag));
}

ListItem::ListItem(TranslationInfo* text, bool flag)
{
    if (isGuiThread())
        create(text, flag);
    else
        postEventAsync(request(this, CREATE_TRANSLATED, text, flag));
}

ListItem::ListItem(ListItemPrivateIfc* implementation) : mImplementation(implementation)
{
    name = "ListItem";
}

ListItem::~ListItem()
{
    if (isGuiThread())
        destroy();
    else
        postEvent(DESTROY);
}

template <typename Text>
void ListItem::create(const Text& text, bool flag)
{
    name = "ListItem";
    if (isFullPanel())
        mImplementation = new ListItemPrivate(text, flag);
    else
        mImplementation = new ListItemPrivateWP1(text, flag);
}

void ListItem::destroy()
{
    delete mImplementation;
    mImplementation = nullptr;
}

void ListItem::processGuiRequest(GuiRequestEvent& request)
{
    switch (request.getType()) {
    case CREATE: create(request.stringParam1, request.boolParam1); break;
    case CREATE_TRANSLATED: create(pointer<TranslationInfo>(request.ptrParam1), request.boolParam1); break;
    case DESTROY: destroy(); break;
    case SET_TEXT: break; // a row's text is fixed
    case GET_TEXT:
        if (mImplementation != nullptr)
            answer<std::string>(request, currentText());
        break;
    default: break;
    }
    signalComplete(request);
}

ListItemPrivateIfc* ListItem::getPrivateImplemetation()
{
    return mImplementation;
}

std::string ListItem::getText()
{
    if (isGuiThread())
        return currentText();
    std::string text;
    postEvent(request(this, GET_TEXT, into(text)));
    return text;
}

std::string ListItem::currentText()
{
    return mImplementation != nullptr ? ICC::fromUNICODEtoUTF8(mImplementation->getKestrelListItem()->DataGet())
                                      : std::string();
}

void ListItem::setText(std::string text)
{
    if (!isGuiThread())
        postEventAsync(request(this, SET_TEXT, std::move(text)));
}

void ListItem::setText(TranslationInfo* text)
{
    if (!isGuiThread())
        postEventAsync(request(this, SET_TEXT, text));
}

void ListItem::enableContextMenuArrow(bool) {}

} // namespace DisplayAPI
