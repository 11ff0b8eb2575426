#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/SpellerLanguage.h"
#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/variants/popup/BarCommands.h"
#include "host/widgets/form/FormWindow.h"
#include "variants/form/FormPrivate.h"
#include "widgets/ApplicationWatch.h"

#include <memory>
#include <optional>

namespace DisplayAPI {

/// A form's data, and what hears its window and the language.
struct FormSide::Impl final : public PegThing, public host::FormListener {
    Impl(FormSide& form, Form* facade, Form::FormProportionType proportion, Panel panelOfForm);
    ~Impl() override;

    int Message(const PegMessage& message) override;
    void currentChanged() override;
    void valueChanged(host::FormField& field) override;
    void choicesShown(host::FormField& field) override;
    void chosen(host::FormField& field, bool isOther) override;
    void lookChanged() override { changed(); }
    void commandChosen(int command) override;
    void formKey(int key) override;

    void append(PegThing* item);
    void select(Item* item);
    Item* itemOf(const host::FormField* field) const;
    void setTitle(TranslatedText text);
    void setClipboard(std::string text);

    /// What the user types in, from now on, and while he works on the form. Null is the display's language.
    void setSpeller(TranslatorIfc* translator);
    void gotUser(bool on);

    /// Tells the display when a form on screen looks different.
    void changed();
    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    FormSide& self;
    Form* const owner;
    const Panel panel;
    WatchedWidget<host::FormWindow> window;
    OwnershipDelegate<host::FormWindow> ownership{window.slot(), true};
    BarCommands commands{[this] { return window != nullptr ? &window->bar() : nullptr; }, [this] { window->fitBar(); }};
    TranslatedText title;
    std::string clipboard;
    bool okSaves = false;
    bool isReadOnly = false;

private:
    /// False where the form is gone afterwards.
    bool raise(Command* command);
    template <typename Side>
    Side* sideOf(const host::FormField* field) const;
    Command* commandForOk() const;
    bool informOfChoice(const host::FormField& field);
    void languageChanged(const std::string& locale);
    void translateItems(const std::string& locale);
    std::vector<DisplayAPIUtils::Rect> besideChoices(const std::vector<DisplayAPIUtils::Rect>& visible) const;
    std::string fieldsAsText(const std::vector<DisplayAPIUtils::Rect>& visible) const;
    std::string choicesAsText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    TranslatorIfc* mSpeller = nullptr;
    std::optional<SpellerLanguage> mTyping;
    bool mHasUser = false;
    bool mIsTranslating = false; ///< and tells once, in the end
    const ApplicationWatch mApplication{*this};
    const std::shared_ptr<void> mLife = std::make_shared<int>();
};

} // namespace DisplayAPI
