#pragma once

#include "DisplayAPI/ListItem.h"
#include "utilities/CallPartyIdentifier.h"

namespace DisplayAPI {

/// A row that shows an entry of a phonebook: an icon that tells what kind of number it is, and a text.
///
/// Threads: safe from any thread. Off the GUI thread the constructors, the destructor and getText() wait; setText()
/// posts, without effect as for every row. A request that nobody knows is completed without effect.
/// Ownership: as for ListItem. A translation is not owned and has to outlive the row; null is an empty text.
class DISPLAYAPI_EXPORT PhonebookItem : public ListItem {
public:
    /// The icon in front of an entry; any value travels through, and an unknown one has none.
    enum IconType : int {
        ICON_NONE = 0,
        ICON_WORK = 1,
        ICON_HOME = 2,
        ICON_MOBILE = 3,
        ICON_LETTER = 4,
        ICON_PERSON = 5,
        ICON_IMAGE = 6
    };

    /// A preferred entry is bold. The text is UTF-8, `flag` is handed to the row as it is.
    PhonebookItem(IconType icon, bool isPreferred, std::string text, bool flag);

    /// Off the GUI thread the translation does not travel: the row has an empty text then.
    PhonebookItem(IconType icon, bool isPreferred, TranslationInfo* text, bool flag);
    PhonebookItem(const PhonebookItem&) = delete;
    PhonebookItem& operator=(const PhonebookItem&) = delete;
    ~PhonebookItem() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// What getPrivateImplemetation() answers. GUI thread only.
    ListItemPrivateIfc* getPrivateImpl();

    /// An entry stays as it has been made: these do nothing.
    void rewritePhonebookListItem(IconType icon, bool isPreferred, const std::string& text, bool flag);
    void rewritePhonebookListItem(IconType icon, bool isPreferred, TranslationInfo* text, bool flag);

    /// The icon for a kind of number; ICON_NONE for one that is unknown. From any thread.
    static IconType callPartyIconToIconType(const CallPartyIdentifier::PhoneNumberIconType& type);

private:
    struct Ops;

    void create(IconType icon, bool isPreferred, std::string text, bool flag);
    void create(IconType icon, bool isPreferred, TranslationInfo* text, bool flag);
    template <typename Text>
    void createRow(IconType icon, bool isPreferred, Text text, bool flag);
};

} // namespace DisplayAPI
