#pragma once

#include "DisplayAPI/PhonebookItem.h"
#include "DisplayAPI/SelectionFieldPrivateIfc.h"
#include "DisplayAPI/TranslatedText.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

class Form;

/// The GUI-thread side of a selection field, whatever the panel.
class DISPLAYAPI_EXPORT SelectionFieldSide : public SelectionFieldPrivateIfc {
public:
    ~SelectionFieldSide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void localeChanged(std::string locale) override;

    void setFieldContents(MenuCommand* command) override;
    void setSelectionIndex(int index) override;
    int getSelectionIndex() override;
    void setSelectionCommand(MenuCommand* command) override;
    MenuCommand* getSelectionCommand() override;
    void appendSelection(MenuCommand* command) override;
    void clearSelections(MenuCommand* contents) override;
    void setInformAppOnOk(bool on) override;
    void setReadOnlyMode(bool on) override;
    bool getReadOnlyMode() override;
    int getHighlightedIndex() override;
    void displayCurrentSelection(bool on) override;
    void setLabel(const std::string& label) override;

    /// What its form raises when the user has chosen; null where the application does not want to be informed.
    MenuCommand* commandForOk();

protected:
    SelectionFieldSide(TranslatedText label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form,
                       Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The selection field of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT SelectionFieldPrivate : public SelectionFieldSide {
public:
    SelectionFieldPrivate(const std::string& label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form);
    SelectionFieldPrivate(TranslationInfo* label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form);
};

/// The selection field of the 208 x 42 panel.
class DISPLAYAPI_EXPORT SelectionFieldPrivateWP1 : public SelectionFieldSide {
public:
    SelectionFieldPrivateWP1(const std::string& label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form);
    SelectionFieldPrivateWP1(TranslationInfo* label, PhonebookItem::IconType icon, MenuCommand* contents, Form* form);
};

} // namespace DisplayAPI
