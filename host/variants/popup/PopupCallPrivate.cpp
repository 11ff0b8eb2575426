#include "variants/popup/PopupCallPrivate.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/popup/BarCommands.h"
#include "host/variants/popup/LinesPopup.h"
#include "host/variants/popup/PopupIcons.h"
#include "utilities/CallPartyIdentifier.h"

namespace DisplayAPI {

/// A call popup's data, and what hears its commands.
struct PopupCallSide::Impl : public LinesPopup {
    Impl(PopupCallSide& popup, PopupCall* facade) : LinesPopup(popup, facade, nullptr) {}

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const override;

    BarCommands commands{box};

protected:
    void opened() override { commands.begin(); }
    void hear(const PegMessage& message) override;
    void languageChanged() override;

private:
    void moved();
    void choose(int command);
};

void PopupCallSide::Impl::hear(const PegMessage& message)
{
    if (message.wType == PM_CURRENT_CHANGED)
        moved();
    else if (message.wType == PM_CLICKED)
        choose(message.iData);
}

void PopupCallSide::Impl::moved()
{
    commands.userMoved();
    changed();
}

void PopupCallSide::Impl::choose(int command)
{
    if (Command* const chosen = commands.at(command))
        raise(chosen);
}

void PopupCallSide::Impl::languageChanged()
{
    commands.translate();
    LinesPopup::languageChanged();
}

std::string PopupCallSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    return screen::object("PopupCall", linesAsText(visible) + commands.asText(visible));
}

PopupCallSide::PopupCallSide(PopupCall* owner, Image*, Panel) : mImpl(std::make_unique<Impl>(*this, owner)) {}

PopupCallSide::~PopupCallSide() = default;

PopupCallPrivate::PopupCallPrivate(PopupCall* owner, Image* picture) : PopupCallSide(owner, picture, Panel::FULL) {}

PopupCallPrivateWP1::PopupCallPrivateWP1(PopupCall* owner, Image* picture) : PopupCallSide(owner, picture, Panel::SMALL)
{
}

PopupSide::Popup& PopupCallSide::popup()
{
    return *mImpl;
}

void PopupCallSide::destroy()
{
    delete this;
}

void PopupCallSide::setPopupCallDetails(std::unique_ptr<CallPartyIdentifier> party,
                                        std::unique_ptr<CallPartyIdentifier> redirecting, ForwardedCallType type,
                                        std::string text, std::unique_ptr<TranslationInfo> translation)
{
    auto& [who, meant, more] = mImpl->lines;
    who.prefix = OwnedText();
    who.text = OwnedText(*party);
    meant.prefix = OwnedText();
    meant.text = redirecting != nullptr ? OwnedText(*redirecting) : OwnedText();
    more.prefix = OwnedText(std::move(text));
    more.text = OwnedText(std::move(translation));
    mImpl->setIcon(meant, redirecting != nullptr ? iconOf(type) : nullptr);
}

void PopupCallSide::setLine1PrefixText(std::string text)
{
    mImpl->set(mImpl->lines[0].prefix, OwnedText(std::move(text)));
}

void PopupCallSide::setLine1PrefixText(TranslationInfo* text)
{
    mImpl->set(mImpl->lines[0].prefix, OwnedText(text));
}

void PopupCallSide::setText(std::string text)
{
    mImpl->set(mImpl->lines[0].text, OwnedText(std::move(text)));
}

void PopupCallSide::setText(TranslationInfo* text)
{
    mImpl->set(mImpl->lines[0].text, OwnedText(text));
}

void PopupCallSide::setLine2PrefixText(std::string text)
{
    mImpl->set(mImpl->lines[1].prefix, OwnedText(std::move(text)));
}

void PopupCallSide::setLine2PrefixText(TranslationInfo* text)
{
    mImpl->set(mImpl->lines[1].prefix, OwnedText(text));
}

void PopupCallSide::setLine2Text(std::string text)
{
    mImpl->set(mImpl->lines[1].text, OwnedText(std::move(text)));
}

void PopupCallSide::setLine2Text(TranslationInfo* text)
{
    mImpl->set(mImpl->lines[1].text, OwnedText(text));
}

void PopupCallSide::setAuxText(std::string text)
{
    mImpl->lines[2].prefix = OwnedText();
    mImpl->set(mImpl->lines[2].text, OwnedText(std::move(text)));
}

void PopupCallSide::setState(PopupCall::CallState state, PopupCall::CallPriority priority)
{
    mImpl->setIconAndMark(iconOf(state), iconOf(priority));
}

/// This panel shows no pictures.
void PopupCallSide::setPictureClip(Image*) {}

void PopupCallSide::addCommand(MenuCommand* command)
{
    if (mImpl->commands.add(command))
        mImpl->changed();
}

void PopupCallSide::setDefaultCommand(MenuCommand* command)
{
    mImpl->commands.setDefault(command);
    mImpl->changed();
}

void PopupCallSide::clearCommands()
{
    mImpl->commands.clear();
    mImpl->changed();
}

void PopupCallSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void PopupCallSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

void PopupCallSide::dismiss()
{
    mImpl->leave();
}

int PopupCallSide::getSelectedIndex()
{
    return mImpl->commands.selected();
}

bool PopupCallSide::selectionHasChanged()
{
    return mImpl->commands.userHasMoved();
}

} // namespace DisplayAPI
