#pragma once

#include "DisplayAPI/Item.h"

#include <atomic>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class TextFieldPrivateIfc;

/// An item of a form that shows a label and a line of text, which the user types: the keypad writes, left and right
/// move the cursor.
///
/// Threads: safe from any thread. Off the GUI thread everything waits but getType(), getID(), getIcon() and
/// getFieldType(), which run where they are called, as does localeChanged(), which is the GUI thread's. A request that
/// nobody knows is completed without effect.
/// Ownership: as for Form; a field owns its GUI-thread side. Commands are not owned. A translation is not owned and has
/// to live while it is shown; null is an empty text. Texts are UTF-8.
class DISPLAYAPI_EXPORT TextField : public Item {
public:
    /// What stands before the label. Any value travels through; an unknown one shows nothing.
    enum IconImage : int {
        ICON_NONE = 0,
        ICON_WORK = 1,
        ICON_HOME = 2,
        ICON_MOBILE = 3,
        ICON_LETTER = 4,
        ICON_PERSON = 5,
        ICON_IMAGE = 6
    };

    /// What can stand in the field: what does not belong there is refused, and left out of what the application sets.
    /// Any value travels through; an unknown one is TEXT.
    enum FieldType : int {
        TEXT = 0,
        NUMBER = 1,           ///< digits
        TELEPHONE_NUMBER = 2, ///< digits, star, hash and plus, and what separates them
        PASSWORD = 3,         ///< a text that is shown as dots
        IP_ADDRESS = 4,       ///< "192.168.1.20"
        DATE = 5,             ///< "2026-11-22"
        TIME = 6,             ///< "23:59"
        NAME = 7              ///< a text whose words begin with a capital letter
    };

    /// The flag says whether the user can only read it. From another thread than the GUI thread a null label makes both
    /// texts empty, and a field that the user can edit.
    TextField(TranslationInfo* label, IconImage icon, TranslationInfo* text, FieldType type, bool readOnly);
    TextField(std::string label, IconImage icon, std::string text, FieldType type);

    TextField(const TextField&) = delete;
    TextField& operator=(const TextField&) = delete;
    ~TextField() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// "Textfield".
    std::string getType() override;

    /// Counts the text fields of the process, from 1.
    int getID() override;

    /// Both are GUI thread only.
    ItemPrivateIfc* getPrivateImpl() override;
    void localeChanged(std::string locale) override;

    /// A translated text follows the language until the user edits it. The form's listeners are told of the user's
    /// changes alone.
    void setString(TranslationInfo* text);
    void setString(const std::string& text);

    /// What is in the field: also of a password.
    std::string getString();

    void setLabel(TranslationInfo* label);
    void setLabel(const std::string& label);

    /// In the language of the moment.
    std::string getLabel();

    /// The text's length in characters; -1 where nobody answers.
    int size();

    void setIcon(IconImage icon);
    void setFieldType(FieldType type);

    /// What the constructor was given.
    IconImage getIcon() const { return mIcon; }
    FieldType getFieldType() const { return mFieldType; }

    /// In characters, 255 at first; what is beyond is cut off. Less than 0 is 0.
    void setMaxFieldLength(int characters);

    /// Whether the user can only read it.
    void setReadOnlyMode(bool on);
    bool getReadOnlyMode();

    /// What the form that it stands in raises when the user presses OK on it; null, as at first, is what the form
    /// raises otherwise.
    void setInformAppOnOk(Command* command);

    /// True is Form::OK_COMMAND(), false is null.
    void setInformAppOnOk(bool on);

private:
    struct Ops;

    static std::atomic<int> itemCount;

    TextField(IconImage icon, FieldType type);
    void create(TranslationInfo* label, IconImage icon, TranslationInfo* text, FieldType type, bool readOnly,
                const std::string& plainLabel, const std::string& plainText);
    void destroy();
    void applyString(TranslationInfo* translation, const std::string& text);
    void applyLabel(TranslationInfo* translation, const std::string& label);

    TextFieldPrivateIfc* mImplementation = nullptr;
    std::string mType = "Textfield";
    int mId;
    IconImage mIcon;
    FieldType mFieldType;
};

} // namespace DisplayAPI
