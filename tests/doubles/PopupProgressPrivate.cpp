#include "variants/popup/PopupProgressPrivate.h"

#include "doubles/PopupSide.h"

namespace DisplayAPI {

/// The recording progress popup.
struct PopupProgressSide::Impl : PopupSide::Popup {
    using Popup::Popup;
};

PopupProgressSide::PopupProgressSide(PopupProgress* owner, PopupProgress::ProgressType type, Panel panel)
    : mImpl(new Impl(*this, "PopupProgressPrivate", panel))
{
    mImpl->made(owner, static_cast<int>(type));
}

PopupProgressSide::~PopupProgressSide() = default;

PopupProgressPrivate::PopupProgressPrivate(PopupProgress* owner, PopupProgress::ProgressType type)
    : PopupProgressSide(owner, type, Panel::FULL)
{
}

PopupProgressPrivateWP1::PopupProgressPrivateWP1(PopupProgress* owner, PopupProgress::ProgressType type)
    : PopupProgressSide(owner, type, Panel::SMALL)
{
}

PopupSide::Popup& PopupProgressSide::popup()
{
    return *mImpl;
}

void PopupProgressSide::setText(std::string text)
{
    mImpl->note("setText", text);
}

void PopupProgressSide::setText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setText", text.release());
}

void PopupProgressSide::setCurrentStageText(std::string text)
{
    mImpl->note("setCurrentStageText", text);
}

void PopupProgressSide::setCurrentStageText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setCurrentStageText", text.release());
}

void PopupProgressSide::setCurrentActivityText(std::string text)
{
    mImpl->note("setCurrentActivityText", text);
}

void PopupProgressSide::setCurrentActivityText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setCurrentActivityText", text.release());
}

void PopupProgressSide::updateProgressBar(int percent)
{
    mImpl->note("updateProgressBar", percent);
}

void PopupProgressSide::setType(PopupProgress::InfoType type)
{
    mImpl->note("setType", static_cast<int>(type));
}

void PopupProgressSide::open()
{
    mImpl->note("open");
}

void PopupProgressSide::dismiss()
{
    mImpl->note("dismiss");
}

} // namespace DisplayAPI
