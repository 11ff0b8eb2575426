#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/Form.h"
#include "DisplayAPI/FormPrivateIfc.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a form, whatever the panel.
class DISPLAYAPI_EXPORT FormSide : public DisplayablePrivate, public FormPrivateIfc {
public:
    ~FormSide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    bool hasCaption() override;
    void setSysWindowSize(int lines) override;
    void setSysWindowText(std::string text, int line) override;
    bool hasSystemWindow() override;

    void destroy() override;
    void own(ItemPrivateIfc* item) override;
    void addCommandListener(CommandListener* listener) override;
    void addCommand(Command* command) override;
    void clearCommands() override;
    Item* getSelected() override;
    void setSelected(Item* item) override;
    void setTitle(std::string title) override;
    void setTitle(TranslationInfo* title) override;
    std::string title() override;
    void setReadonly(bool on) override;
    bool isReadonly() override;
    std::string getClipboard() override;
    void setClipboard(std::string text) override;
    void append(Item* item, PegThing* widget) override;
    void setAlternativeCommandHandling(bool on) override;
    void setSpellerLanguage(TranslatorIfc* translator) override;

protected:
    FormSide(Form* owner, Form::FormProportionType proportion, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The form of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT FormPrivate : public FormSide {
public:
    /// `owner` is the facade, not owned.
    FormPrivate(Form* owner, Form::FormProportionType proportion);
};

/// The form of the 208 x 42 panel.
class DISPLAYAPI_EXPORT FormPrivateWP1 : public FormSide {
public:
    /// `owner` is the facade, not owned.
    FormPrivateWP1(Form* owner, Form::FormProportionType proportion);
};

} // namespace DisplayAPI
