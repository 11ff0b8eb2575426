#pragma once

#include "DisplayAPI/Displayable.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class TextBoxPrivateIfc;
class Ticker;

/// A screen with a page of text, which the user reads and edits: the keypad writes, the arrows move the cursor. On two
/// lines of text it shows one, below its title, or two without a title.
///
/// Threads: off the GUI thread everything waits that is carried there. addCommandListener() and removeCommandListener()
/// are not: they are the GUI thread's. A request that nobody knows is completed without effect.
/// Ownership: a text box owns its GUI-thread side. Listeners are not owned. A translation is not owned and has to live
/// while it is shown; null is an empty text. Texts are UTF-8.
class DISPLAYAPI_EXPORT TextBox : public Displayable {
public:
    /// What a text box could be asked to take; it takes any text.
    enum TextBoxType : int { ANY_TEXT = 0 };

    /// The flag asks for two lines of text on the panel that has room for two; elsewhere it has no effect.
    explicit TextBox(bool twoLine);

    /// Without a GUI-thread side: nothing is shown, and every question has its neutral answer.
    TextBox(std::string title, std::string text);

    /// Adopts a GUI-thread side made elsewhere, or starts without one.
    explicit TextBox(TextBoxPrivateIfc* implementation);

    TextBox(const TextBox&) = delete;
    TextBox& operator=(const TextBox&) = delete;
    ~TextBox() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// What the text box raises: one object each per process, recognised by its address. Here.
    static Command* SELECT_COMMAND(); ///< OK
    static Command* RIGHT_COMMAND();  ///< the right key at the text's end
    static Command* BACK_COMMAND();   ///< the left key at the text's beginning

    /// What is in it, as the user sees it.
    std::string getText();

    /// The flag says where the cursor goes: to the text's end, for whoever goes on writing, or else to its beginning.
    void setText(std::string& text, bool cursorAtEnd);

    /// Follows the language until the user edits it. The cursor goes to its beginning.
    void setText(TranslationInfo* text);

    /// The text's length in characters; -1 where nobody answers.
    int getSize();

    /// In characters; what is beyond is cut off. Less than 0 is 0. 1,000 at first.
    void setMaxSize(int characters);
    int getMaxSize();

    void clear();

    /// Takes it off its display.
    void hide();

    void setTitle(const std::string& title);
    void setTitle(TranslationInfo* title);

    /// GUI thread only; nothing where there is no GUI-thread side. A listener is added once; null is ignored.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// Deletes the GUI-thread side: nothing is shown any more.
    void cleanup();

    /// These do nothing, and answer with what a text box begins with.
    void insert(std::string& text, int position);
    void setTextBoxType(TextBoxType type);
    TextBoxType getTextBoxType() const { return mTextBoxType; }
    void setReadOnlyMode(bool on);
    bool getReadOnlyMode() const;
    void setTicker(Ticker* ticker);
    Ticker* getTicker() const { return mTicker; }
    void hideOptionsItem();

private:
    struct Ops;

    void create();
    void destroy();

    TextBoxPrivateIfc* mImplementation = nullptr;
    bool mTwoLine = false;
    TextBoxType mTextBoxType = ANY_TEXT;
    Ticker* mTicker = nullptr;
};

/// The place of a cursor that nobody keeps: 0.
DISPLAYAPI_EXPORT int getCaretPosition();

} // namespace DisplayAPI
