#include "variants/popup/PopupConfirmPrivate.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/popup/BarCommands.h"
#include "host/variants/popup/LinesPopup.h"
#include "host/variants/popup/PopupIcons.h"

namespace DisplayAPI {

/// A question's data, and what hears its answers.
struct PopupConfirmSide::Impl : public LinesPopup {
    Impl(PopupConfirmSide& popup, PopupConfirm* facade, bool wayBack)
        : LinesPopup(popup, facade, PopupConfirm::HIDDEN_COMMAND()), leftGoesBack(wayBack)
    {
    }

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const override;

    const bool leftGoesBack;
    BarCommands answers{box};

protected:
    void opened() override { answers.begin(); }
    void hear(const PegMessage& message) override;
    void languageChanged() override;

private:
    void moved();
    void choose(int answer);
};

void PopupConfirmSide::Impl::hear(const PegMessage& message)
{
    if (message.wType == PM_CURRENT_CHANGED)
        moved();
    else if (message.wType == PM_CLICKED)
        choose(message.iData);
    else if (message.wType == PM_KEY && message.iData == PK_LEFT && leftGoesBack)
        leave();
}

void PopupConfirmSide::Impl::moved()
{
    answers.userMoved();
    changed();
}

void PopupConfirmSide::Impl::choose(int answer)
{
    Command* const chosen = answers.at(answer);
    if (chosen == nullptr || raise(chosen))
        leave();
}

void PopupConfirmSide::Impl::languageChanged()
{
    answers.translate();
    LinesPopup::languageChanged();
}

std::string PopupConfirmSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    return screen::object("PopupConfirm", linesAsText(visible) + answers.asText(visible));
}

PopupConfirmSide::PopupConfirmSide(PopupConfirm* owner, bool wayBack, Panel)
    : mImpl(std::make_unique<Impl>(*this, owner, wayBack))
{
}

PopupConfirmSide::~PopupConfirmSide() = default;

PopupConfirmPrivate::PopupConfirmPrivate(PopupConfirm* owner) : PopupConfirmSide(owner, true, Panel::FULL) {}

PopupConfirmPrivateWP1::PopupConfirmPrivateWP1(PopupConfirm* owner, bool wayBack)
    : PopupConfirmSide(owner, wayBack, Panel::SMALL)
{
}

PopupSide::Popup& PopupConfirmSide::popup()
{
    return *mImpl;
}

void PopupConfirmSide::setLine1PrefixText(std::string text)
{
    mImpl->set(mImpl->lines[0].prefix, OwnedText(std::move(text)));
}

void PopupConfirmSide::setLine1PrefixText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[0].prefix, OwnedText(std::move(text)));
}

void PopupConfirmSide::setText(std::string text)
{
    mImpl->set(mImpl->lines[0].text, OwnedText(std::move(text)));
}

void PopupConfirmSide::setText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[0].text, OwnedText(std::move(text)));
}

void PopupConfirmSide::setLine2PrefixText(std::string text)
{
    mImpl->set(mImpl->lines[1].prefix, OwnedText(std::move(text)));
}

void PopupConfirmSide::setLine2PrefixText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[1].prefix, OwnedText(std::move(text)));
}

void PopupConfirmSide::setLine2Text(std::string text)
{
    mImpl->set(mImpl->lines[1].text, OwnedText(std::move(text)));
}

void PopupConfirmSide::setLine2Text(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[1].text, OwnedText(std::move(text)));
}

void PopupConfirmSide::setState(PopupConfirm::PopupState state)
{
    mImpl->setIcon(mImpl->lines[0], iconOf(state));
}

void PopupConfirmSide::open()
{
    mImpl->comeUp();
}

void PopupConfirmSide::dismiss()
{
    mImpl->leave();
}

void PopupConfirmSide::addCommand(Command* command)
{
    if (mImpl->answers.add(command))
        mImpl->changed();
}

void PopupConfirmSide::removeCommand(Command* command)
{
    if (mImpl->answers.remove(command))
        mImpl->changed();
}

void PopupConfirmSide::setDefaultCommand(Command* command)
{
    mImpl->answers.setDefault(command);
    mImpl->changed();
}

void PopupConfirmSide::clearCommands()
{
    mImpl->answers.clear();
    mImpl->changed();
}

int PopupConfirmSide::getSelectedIndex()
{
    return mImpl->answers.selected();
}

bool PopupConfirmSide::selectionHasChanged()
{
    return mImpl->answers.userHasMoved();
}

void PopupConfirmSide::setTimeout(int milliseconds)
{
    mImpl->setTimeout(milliseconds);
}

void PopupConfirmSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void PopupConfirmSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

} // namespace DisplayAPI
