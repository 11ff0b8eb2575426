#include "DisplayAPI/KVXList.h"

#include "KVXListPrivate.h"
#include "Operations.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 40,
    SET_NUM_DISPLAY_LINES = 42,
    SET_DISPLAY_COLOUR = 43,
    SET_DISPLAY_TEXT = 44,
    SET_TRANSLATED_DISPLAY_TEXT = 45,
    CLEAR_DISPLAY = 46,
    SELECTION_HAS_CHANGED = 47
};

/// The list's own side is a KVX list's.
KVXListPrivateIfc& kvx(ListBoxPrivateIfc& list)
{
    return static_cast<KVXListPrivateIfc&>(list);
}

void setLines(ListBoxPrivateIfc& list, unsigned int lines)
{
    kvx(list).numtitlelines(lines);
}

void setColour(ListBoxPrivateIfc& list, int colour)
{
    kvx(list).titlecolour(colour);
}

void setText(ListBoxPrivateIfc& list, unsigned int line, const std::string& text)
{
    kvx(list).titletext(line, text);
}

/// The translation is no owned argument: it may be set again while its line has it, and a request that is lost must not
/// free what the list owns.
void setTranslation(ListBoxPrivateIfc& list, unsigned int line, TranslationInfo* text)
{
    kvx(list).titletext(line, text);
}

void clearLines(ListBoxPrivateIfc& list)
{
    kvx(list).cleartitle();
}

bool hasMoved(ListBoxPrivateIfc& list)
{
    return kvx(list).selectionchanged();
}

} // namespace

struct KVXList::Ops : Operations<Posts<CREATE, &KVXList::createKvx>, Posts<SET_NUM_DISPLAY_LINES, &setLines>,
                                 Posts<SET_DISPLAY_COLOUR, &setColour>, Posts<SET_DISPLAY_TEXT, &setText>,
                                 Posts<SET_TRANSLATED_DISPLAY_TEXT, &setTranslation>, Posts<CLEAR_DISPLAY, &clearLines>,
                                 Waits<SELECTION_HAS_CHANGED, &hasMoved>> {};

KVXList::KVXList() : List(nullptr)
{
    Ops::call<CREATE>(*this, implementation());
}

// What is queued runs while the object is still a KVXList.
KVXList::~KVXList()
{
    waitForEarlierRequests();
}

void KVXList::createKvx()
{
    name = "KVXList";
    setImplementation(new KVXListPrivate(this));
}

void KVXList::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return List::processGuiRequest(request);
    signalComplete(request);
}

void KVXList::setNumDisplayLines(unsigned int lines)
{
    Ops::call<SET_NUM_DISPLAY_LINES>(*this, implementation(), lines);
}

void KVXList::setDisplayColour(int colour)
{
    Ops::call<SET_DISPLAY_COLOUR>(*this, implementation(), colour);
}

void KVXList::setDisplayText(unsigned int line, const std::string& text)
{
    Ops::call<SET_DISPLAY_TEXT>(*this, implementation(), line, text);
}

void KVXList::setDisplayText(unsigned int line, TranslationInfo* text)
{
    Ops::call<SET_TRANSLATED_DISPLAY_TEXT>(*this, implementation(), line, text);
}

void KVXList::clearDisplay()
{
    Ops::call<CLEAR_DISPLAY>(*this, implementation());
}

bool KVXList::selectionHasChanged() const
{
    return Ops::call<SELECTION_HAS_CHANGED>(*this, implementation());
}

void KVXList::appendToAlternativeDisplay(ListItem* item)
{
    append(item);
}

void KVXList::localeChanged(const std::string&) {}

void KVXList::restoreFocusAndShowHighlight() {}

void KVXList::setSelectionHighlight(bool) {}

void KVXList::setUsedWithTab(bool) {}

void KVXList::setWrapAround(bool) {}

} // namespace DisplayAPI
