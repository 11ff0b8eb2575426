#pragma once

#include "DisplayAPI/Widget.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class ListItemPrivateIfc;

/// A row of a List: a text that is fixed when the row is made.
///
/// Threads: constructors off the GUI thread post and return at once; the destructor and getText() wait.
/// A translation is not owned and has to outlive the row; null is an empty text.
/// Ownership: a row owns its GUI-thread side; rows that a list still holds when it is cleared or deleted go with it.
class DISPLAYAPI_EXPORT ListItem : public Widget {
public:
    // Texts are UTF-8.

    /// A row with an empty text. The flag is true on the GUI thread and false from any other.
    ListItem();

    /// `flag` is handed to the row as it is.
    ListItem(std::string text, bool flag);
    ListItem(TranslationInfo* text, bool flag);

    /// Adopts a GUI-thread side, which the row deletes; null leaves the row without one. Posts nothing.
    explicit ListItem(ListItemPrivateIfc* implementation);

    ListItem(const ListItem&) = delete;
    ListItem& operator=(const ListItem&) = delete;
    ~ListItem() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// The GUI-thread side; null until it has been made. GUI thread only.
    virtual ListItemPrivateIfc* getPrivateImplemetation();

    /// The row's text in UTF-8; empty where the row has no GUI-thread side. Waits.
    std::string getText();

    /// A row's text is fixed: these leave it as it is. They post and return at once.
    void setText(std::string text);
    void setText(TranslationInfo* text);

    /// Rows have no such arrow: does nothing.
    void enableContextMenuArrow(bool on);

protected:
    // For derived rows. Such a class starts from ListItem(nullptr), so that the GUI thread does not meet the object
    // before it is complete, and deletes its own private side by a request that its destructor waits for.

    /// What ListItem() does: makes a row with an empty text. Posts off the GUI thread, and returns at once.
    void createEmpty();

    /// GUI thread only; elsewhere only to be named, unread, in a call. The row owns the one that was set last; the one
    /// before is the caller's.
    ListItemPrivateIfc* const& implementation() const { return mImplementation; }
    void setImplementation(ListItemPrivateIfc* implementation) { mImplementation = implementation; }

    /// Deletes the private side. GUI thread only.
    void destroy();

private:
    struct Ops;

    void create(std::string text, bool flag);
    void create(TranslationInfo* text, bool flag);
    template <typename Text>
    void createRow(Text text, bool flag);

    ListItemPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
