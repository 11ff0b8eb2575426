#pragma once

#include "DisplayAPI/PopupProgressPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/popup/PopupSide.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a progress popup, whatever the panel.
class DISPLAYAPI_EXPORT PopupProgressSide : public PopupSide, public PopupProgressPrivateIfc {
public:
    ~PopupProgressSide() override;

    void setText(std::string text) override;
    void setText(std::unique_ptr<TranslationInfo> text) override;
    void setCurrentStageText(std::string text) override;
    void setCurrentStageText(std::unique_ptr<TranslationInfo> text) override;
    void setCurrentActivityText(std::string text) override;
    void setCurrentActivityText(std::unique_ptr<TranslationInfo> text) override;
    void updateProgressBar(int percent) override;
    void setType(PopupProgress::InfoType type) override;
    void open() override;
    void dismiss() override;

protected:
    PopupProgressSide(PopupProgress* owner, PopupProgress::ProgressType type, Panel panel);

private:
    Popup& popup() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The progress popup of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT PopupProgressPrivate : public PopupProgressSide {
public:
    /// `owner` is the facade, not owned.
    PopupProgressPrivate(PopupProgress* owner, PopupProgress::ProgressType type);
};

/// The progress popup of the 208 x 42 panel.
class DISPLAYAPI_EXPORT PopupProgressPrivateWP1 : public PopupProgressSide {
public:
    /// `owner` is the facade, not owned.
    PopupProgressPrivateWP1(PopupProgress* owner, PopupProgress::ProgressType type);
};

} // namespace DisplayAPI
