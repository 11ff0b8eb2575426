#include "variants/popup/PopupProgressPrivate.h"

#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/popup/LinesPopup.h"
#include "host/variants/popup/PopupIcons.h"
#include "host/widgets/popup/ProgressBar.h"

namespace DisplayAPI {

namespace {

host::ProgressBar::Kind kindOf(PopupProgress::ProgressType type)
{
    using Kind = host::ProgressBar::Kind;
    switch (type) {
    case PopupProgress::BAR: return Kind::BAR;
    case PopupProgress::PERCENT: return Kind::PERCENT;
    case PopupProgress::STEPS: return Kind::STEPS;
    case PopupProgress::BAR_AND_PERCENT: return Kind::BAR_AND_PERCENT;
    default: return Kind::NONE;
    }
}

} // namespace

/// A progress popup's data. The user has no keys here.
struct PopupProgressSide::Impl : public LinesPopup {
    Impl(PopupProgressSide& popup, PopupProgress* facade, PopupProgress::ProgressType type)
        : LinesPopup(popup, facade, nullptr), bar(new host::ProgressBar(kindOf(type)))
    {
        box->setField(bar);
    }

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const override;
    void update(int percent);

    host::ProgressBar* const bar; ///< the box's, and lives as long

protected:
    void hear(const PegMessage&) override {}
};

std::string PopupProgressSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    std::string contents = linesAsText(visible);
    if (isVisible(bar->Area(), visible))
        contents += screen::subItem("ProgressBar", screen::textLine(0, std::to_string(bar->value())));
    return screen::object("PopupProgress", contents);
}

void PopupProgressSide::Impl::update(int percent)
{
    if (box != nullptr && bar->setValue(percent))
        changed();
}

PopupProgressSide::PopupProgressSide(PopupProgress* owner, PopupProgress::ProgressType type, Panel)
    : mImpl(std::make_unique<Impl>(*this, owner, type))
{
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
    mImpl->set(mImpl->lines[0].text, OwnedText(std::move(text)));
}

void PopupProgressSide::setText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[0].text, OwnedText(std::move(text)));
}

void PopupProgressSide::setCurrentStageText(std::string text)
{
    mImpl->set(mImpl->lines[1].text, OwnedText(std::move(text)));
}

void PopupProgressSide::setCurrentStageText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[1].text, OwnedText(std::move(text)));
}

void PopupProgressSide::setCurrentActivityText(std::string text)
{
    mImpl->set(mImpl->lines[2].text, OwnedText(std::move(text)));
}

void PopupProgressSide::setCurrentActivityText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[2].text, OwnedText(std::move(text)));
}

void PopupProgressSide::updateProgressBar(int percent)
{
    mImpl->update(percent);
}

void PopupProgressSide::setType(PopupProgress::InfoType type)
{
    mImpl->setIcon(mImpl->lines[0], iconOf(type));
}

void PopupProgressSide::open()
{
    mImpl->comeUp();
}

void PopupProgressSide::dismiss()
{
    mImpl->leave();
}

} // namespace DisplayAPI
