#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/widgets/idle/IdleScreen.h"
#include "variants/idle/IdleDisplayPrivate.h"
#include "widgets/ApplicationWatch.h"

#include <memory>
#include <optional>
#include <vector>

namespace DisplayAPI {

/// An address that calls are forwarded to: a text, and somebody behind it.
struct ForwardingText {
    TranslatedText text;
    bool hasParty = false;
    std::optional<std::string> party = {}; ///< none is an unknown one

    PegString shown() const;
};

/// An idle display's data, and what hears its screen and the language.
struct IdleDisplaySide::Impl : public PegThing {
    Impl(IdleDisplaySide& idle, IdleDisplay* facade, const std::string& logo, Panel panelOfScreen);
    ~Impl() override;

    int Message(const PegMessage& message) override;

    bool isOnScreen() const { return screen != nullptr && screen->StatusIs(PSF_VISIBLE); }

    /// Does so with the screen, while there is one.
    template <typename Change>
    void change(Change apply)
    {
        if (screen != nullptr)
            apply(*screen);
    }

    void addMessage(TranslatedText message);

    /// After each change of what is set here: the screen gets it all, in the language of the moment.
    void renew();
    void renewMessages();

    /// Tells the display when a screen that can be seen looks different.
    void changed();

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    IdleDisplaySide& self;
    IdleDisplay* const owner;
    const Panel panel;
    WatchedWidget<host::IdleScreen> screen{std::in_place_type<host::IdleScreen>};
    OwnershipDelegate<host::IdleScreen> ownership{screen.slot(), true};

    std::string number;
    std::string displayId;
    std::string branding;
    ForwardingText forwarding;
    ForwardingText serverForwarding;
    std::optional<bool> wantsArrow;
    std::vector<TranslatedText> messages;
    int waiting = 0;
    int missedCalls = 0;
    PopupDialer* dialer = nullptr;
    bool asksForDialer = false;
    bool usesDisplayId = false;
    bool hasMobileUser = false;
    const ApplicationWatch application{*this};

private:
    void localeChanged(const std::string& locale);
    void applicationChanged(const PegMessage& message);
    void key(int key);
    void openDialer(int key);
    host::IdleContents contents() const;

    const std::shared_ptr<void> mLife = std::make_shared<int>();
};

} // namespace DisplayAPI
