#pragma once

#include "DisplayAPI/ListItem.h"

namespace DisplayAPI {

/// A row that shows an entry of the short dial list: its number or an icon, and a text.
///
/// Threads: safe from any thread. Off the GUI thread the constructors, the destructor and getText() wait; setText()
/// posts, without effect as for every row. A request that nobody knows is completed without effect.
/// Ownership: as for ListItem. A translation is not owned and has to outlive the row; null is an empty text.
class DISPLAYAPI_EXPORT AbbreviatedItem : public ListItem {
public:
    /// What stands in front of the text; any value travels through, and for an unknown one nothing does.
    enum IconType : int {
        ICON_NUMBER = 0, ///< the number of the entry
        ICON_WORK = 1,
        ICON_HOME = 2,
        ICON_MOBILE = 3,
        ICON_LETTER = 4,
        ICON_PERSON = 5,
        ICON_IMAGE = 6
    };

    /// `number` is the one that the user dials; the text is UTF-8, `flag` is handed to the row as it is.
    AbbreviatedItem(int number, IconType icon, std::string text, bool flag);
    AbbreviatedItem(int number, IconType icon, TranslationInfo* text, bool flag);
    AbbreviatedItem(const AbbreviatedItem&) = delete;
    AbbreviatedItem& operator=(const AbbreviatedItem&) = delete;
    ~AbbreviatedItem() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// What getPrivateImplemetation() answers. GUI thread only.
    ListItemPrivateIfc* getPrivateImpl();

private:
    struct Ops;

    void create(int number, IconType icon, std::string text, bool flag);
    void create(int number, IconType icon, TranslationInfo* text, bool flag);
    template <typename Text>
    void createRow(int number, IconType icon, Text text, bool flag);
};

} // namespace DisplayAPI
