#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/widgets/form/TextBoxWindow.h"
#include "variants/form/TextBoxPrivate.h"
#include "widgets/ApplicationWatch.h"

namespace DisplayAPI {

/// A text box's data, and what hears its window and the language.
struct TextBoxSide::Impl final : public PegThing {
    Impl(TextBoxSide& box, TextBox* facade, Panel panelOfBox, Lines lines);
    ~Impl() override;

    int Message(const PegMessage& message) override;

    std::string string() const;
    void setText(TranslatedText newText, bool cursorAtEnd);
    void setMaximum(int characters);
    void setTitle(TranslatedText newTitle);

    /// Tells the display when a text box on screen looks different. The last thing that an operation does.
    void changed();
    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    TextBoxSide& self;
    TextBox* const owner;
    const Panel panel;
    WatchedWidget<host::TextBoxWindow> window;
    OwnershipDelegate<host::TextBoxWindow> ownership{window.slot(), true};
    TranslatedText title;
    int maximum = 0;

private:
    void showText(bool cursorAtEnd);
    void languageChanged();
    std::string linesAsText() const;

    const ApplicationWatch mApplication{*this};
    TranslatedText mText; ///< what the application has set, until the user edits it
};

} // namespace DisplayAPI
