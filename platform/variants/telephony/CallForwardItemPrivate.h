#pragma once

#include "DisplayAPI/CallForwardItemPrivateIfc.h"
#include "DisplayAPI/TranslatedText.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// What a forwarding's row is made of.
struct CallForwardEntry {
    CallLogMainItem::IconType icon = CallLogMainItem::NO_ICON;
    TranslatedText text{};
    bool isChecked = false;
    bool isReadonly = false;
};

/// The GUI-thread side of a forwarding's row, whatever the panel.
class DISPLAYAPI_EXPORT CallForwardItemSide : public CallForwardItemPrivateIfc {
public:
    ~CallForwardItemSide() override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    KestrelListBoxItem* getKestrelListItem() override;

    void check() override;
    void uncheck() override;
    void swapCheck() override;
    bool getCheck() const override;
    void setTextMain(TranslationInfo* text) override;
    void setTextMain(std::string text) override;
    void setTextBranch(TranslationInfo* text, TranslationInfo* label,
                       CallForwardItem::eCallForwardBranchLine line) override;
    void setTextBranch(std::string text, TranslationInfo* label, CallForwardItem::eCallForwardBranchLine line) override;
    void setReadonly(bool on, bool showsMark) override;
    void setCFIconVisible(bool on) override;
    void cleanBranches() override;
    std::string getText() const override;
    CallLogMainItem::IconType iconType() const override;

protected:
    CallForwardItemSide(CallForwardEntry entry, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// A forwarding on the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT CallForwardItemPrivate : public CallForwardItemSide {
public:
    CallForwardItemPrivate(CallLogMainItem::IconType icon, std::string text, bool isChecked, bool isReadonly);
    CallForwardItemPrivate(CallLogMainItem::IconType icon, TranslationInfo* text, bool isChecked, bool isReadonly);
    explicit CallForwardItemPrivate(TranslationInfo* text);
};

/// A forwarding on the 208 x 42 panel.
class DISPLAYAPI_EXPORT CallForwardItemPrivateWP1 : public CallForwardItemSide {
public:
    CallForwardItemPrivateWP1(CallLogMainItem::IconType icon, std::string text, bool isChecked, bool isReadonly);
    CallForwardItemPrivateWP1(CallLogMainItem::IconType icon, TranslationInfo* text, bool isChecked, bool isReadonly);
    explicit CallForwardItemPrivateWP1(TranslationInfo* text);
};

} // namespace DisplayAPI
