#pragma once

#include "DisplayAPI/Item.h"
#include "DisplayAPI/PhonebookItem.h"

#include <atomic>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Form;
class MenuCommand;
class SelectionFieldPrivateIfc;

/// An item of a form that shows a label and one of several choices: left and right go to the next one, OK shows all of
/// them.
///
/// Threads: safe from any thread. Off the GUI thread everything waits but getType(), getID() and getLabel(), which run
/// where they are called, as do getCommands() and localeChanged(), which are the GUI thread's. A request that nobody
/// knows is completed without effect.
/// Ownership: as for Form; a field owns its GUI-thread side. Choices and forms are not owned. A translation is not
/// owned and has to live while it is shown; null is an empty text.
class DISPLAYAPI_EXPORT SelectionField : public Item {
public:
    /// For a form, into which it is put by Form::append() or Form::setFormOptions(). `contents` is what the field shows
    /// first, and may be null; form and flag have no effect.
    SelectionField(TranslationInfo* label, MenuCommand* contents, Form* form, bool flag);
    SelectionField(TranslationInfo* label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form, bool flag);
    SelectionField(std::string label, MenuCommand* contents, Form* form, bool flag);
    SelectionField(std::string label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form, bool flag);

    /// Adopts a GUI-thread side made elsewhere, or starts without one.
    explicit SelectionField(SelectionFieldPrivateIfc* implementation);

    SelectionField(const SelectionField&) = delete;
    SelectionField& operator=(const SelectionField&) = delete;
    ~SelectionField() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// "Selectionfield".
    std::string getType() override;

    /// Counts the selection fields of the process, from 1.
    int getID() override;

    /// Both are GUI thread only.
    ItemPrivateIfc* getPrivateImpl() override;
    void localeChanged(std::string locale) override;

    /// What the field shows while nothing is selected, or the selection is not to be shown. Null is nothing.
    void setFieldContents(MenuCommand* command);

    /// -1 selects nothing; others that there are not are ignored. The form's listeners are told of the user's choices
    /// alone.
    void setSelectionIndex(int index);

    /// -1 where nothing is selected.
    int getSelectionIndex();

    /// Selects that choice; ignored where it is none.
    void setSelectionCommand(MenuCommand* command);

    /// Null where nothing is selected.
    MenuCommand* getSelectionCommand();

    /// A further choice, behind the others. Null is ignored.
    void appendSelection(MenuCommand* command);

    /// There are no choices any more, and nothing is selected. `contents` is for setFieldContents(), unless it is null.
    void clearSelections(MenuCommand* contents);

    /// The choices in order. GUI thread only.
    const std::vector<MenuCommand*>& getCommands() const { return mCommands; }

    /// Whether what is chosen with OK is raised as a command of the form that it stands in, too. It is not at first.
    void setInformAppOnOk(bool on);

    /// Whether the user can only read it.
    void setReadOnlyMode(bool on);
    bool getReadOnlyMode();

    /// The choice that the user stands on while he sees all of them; -1 otherwise.
    int getHighlightedIndex() const;

    /// Whether the field shows what is selected; it does at first.
    void displayCurrentSelection(bool on);

    void setLabel(const std::string& label);

    /// The label cannot be asked for: an empty text.
    std::string getLabel() const;

    /// There is no such menu: does nothing.
    void setContextMenuSuppressed();

private:
    struct Ops;

    static std::atomic<int> itemCount;

    void create(const std::string& label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form, bool flag);
    void createTranslated(TranslationInfo* label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form,
                          bool flag);
    void destroy();
    void appendChoice(MenuCommand* command);
    void clearChoices(MenuCommand* contents);

    SelectionFieldPrivateIfc* mImplementation = nullptr;
    std::string mType = "Selectionfield";
    int mId;
    std::vector<MenuCommand*> mCommands;
};

} // namespace DisplayAPI
