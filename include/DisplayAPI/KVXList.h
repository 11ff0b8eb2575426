#pragma once

#include "DisplayAPI/List.h"

namespace DisplayAPI {

/// A list of a KVX screen: numbered display lines above its rows, in place of a title. On every panel its left key goes
/// back.
///
/// Threads and ownership as for List; here selectionHasChanged() waits as well. The list owns the translations of its
/// display lines. A title is not shown; setTitle() says so on standard output. No dialer opens over the list: the
/// dialer operations do nothing, but getDialer() answers what addDialer() has been given.
class DISPLAYAPI_EXPORT KVXList : public List {
public:
    KVXList();
    ~KVXList() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// Without effect: setDisplayText() says how many lines there are, and they have the list's colour.
    void setNumDisplayLines(unsigned int lines);
    void setDisplayColour(int colour);

    /// Sets a display line and makes it the last one: those below it are not shown until they are set again. A text
    /// that is empty or 24 blanks takes the line's text away and leaves the others. Lines count from 0; those past 5
    /// have no place. Texts are UTF-8. A translation is the list's as soon as this has been carried out by a list that
    /// is not cleaned up, and its text does not follow the language; null forgets the line's translation and leaves
    /// what is shown. One translation for one line. The display's status lines have the same place: use one or the
    /// other.
    void setDisplayText(unsigned int line, const std::string& text);
    void setDisplayText(unsigned int line, TranslationInfo* text);

    /// Takes no line away; says so on standard output.
    void clearDisplay();

    /// Whether the user has moved the selection since this was last asked.
    bool selectionHasChanged() const;

    /// append(): there is one display.
    void appendToAlternativeDisplay(ListItem* item);

    // These do nothing. The first one leaves List's operation of that name to whoever calls it as a List's: the GUI
    // thread hands a new locale on to the rows.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
    void localeChanged(const std::string& locale);
#pragma GCC diagnostic pop
    void restoreFocusAndShowHighlight();
    void setSelectionHighlight(bool on);
    void setUsedWithTab(bool used);
    void setWrapAround(bool on);

private:
    struct Ops;

    void createKvx();
};

} // namespace DisplayAPI
