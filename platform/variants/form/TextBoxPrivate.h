#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/TextBox.h"
#include "DisplayAPI/TextBoxPrivateIfc.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a text box, whatever the panel.
class DISPLAYAPI_EXPORT TextBoxSide : public DisplayablePrivate, public TextBoxPrivateIfc {
public:
    ~TextBoxSide() override;

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

    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    std::string getText() override;
    void setText(const std::string& text, bool cursorAtEnd) override;
    void setText(TranslationInfo* text) override;
    int getSize() override;
    void setMaxSize(int characters) override;
    int getMaxSize() override;
    void clear() override;
    void hide() override;
    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;

protected:
    /// What is below the title: all that there is room for, one line, or two lines and no title.
    enum class Lines { ALL, ONE, TWO };

    TextBoxSide(TextBox* owner, Panel panel, Lines lines);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The text box of the 240 x 128 panel and its narrow form. `owner` is the facade, not owned; as for the others.
class DISPLAYAPI_EXPORT TextBoxPrivate : public TextBoxSide {
public:
    explicit TextBoxPrivate(TextBox* owner);
};

/// The text box of the 208 x 42 panel, with one line of text.
class DISPLAYAPI_EXPORT TextBoxPrivateWP1 : public TextBoxSide {
public:
    explicit TextBoxPrivateWP1(TextBox* owner);
};

/// The same with two.
class DISPLAYAPI_EXPORT TextBoxPrivate2LineWP1 : public TextBoxSide {
public:
    explicit TextBoxPrivate2LineWP1(TextBox* owner);
};

} // namespace DisplayAPI
