#include "variants/telephony/CallForwardItemPrivate.h"

#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelListBoxItem.h"

#include <utility>

namespace DisplayAPI {

using doubles::Recorder;

/// The recording forwarding. It answers a text of its own, and what the tests expect.
struct CallForwardItemSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        Recorder::instance().note(this, name + "::" + call, args...);
    }

    std::string name;
    KestrelListBoxItem item;
};

namespace {

std::string keyOf(const TranslationInfo* text)
{
    return text != nullptr ? "translated " + text->key() : "none";
}

/// How the row was made.
template <typename... Args>
void noteMaking(const void* side, const char* name, const Args&... args)
{
    Recorder::instance().note(side, name, args...);
}

} // namespace

CallForwardItemSide::CallForwardItemSide(CallForwardEntry entry, Panel panel)
    : mImpl(new Impl{panel == Panel::FULL ? "CallForwardItemPrivate" : "CallForwardItemPrivateWP1",
                     KestrelListBoxItem(entry.text.shown())})
{
}

CallForwardItemSide::~CallForwardItemSide()
{
    Recorder::instance().note(this, "~" + mImpl->name);
}

CallForwardItemPrivate::CallForwardItemPrivate(CallLogMainItem::IconType icon, std::string text, bool isChecked,
                                               bool isReadonly)
    : CallForwardItemSide({.text = TranslatedText(text)}, Panel::FULL)
{
    noteMaking(this, "CallForwardItemPrivate", static_cast<int>(icon), text, isChecked, isReadonly);
}

CallForwardItemPrivate::CallForwardItemPrivate(CallLogMainItem::IconType icon, TranslationInfo* text, bool isChecked,
                                               bool isReadonly)
    : CallForwardItemSide({.text = TranslatedText(text)}, Panel::FULL)
{
    noteMaking(this, "CallForwardItemPrivate", static_cast<int>(icon), keyOf(text), isChecked, isReadonly);
}

CallForwardItemPrivate::CallForwardItemPrivate(TranslationInfo* text)
    : CallForwardItemSide({.text = TranslatedText(text)}, Panel::FULL)
{
    noteMaking(this, "CallForwardItemPrivate", keyOf(text));
}

CallForwardItemPrivateWP1::CallForwardItemPrivateWP1(CallLogMainItem::IconType icon, std::string text, bool isChecked,
                                                     bool isReadonly)
    : CallForwardItemSide({.text = TranslatedText(text)}, Panel::SMALL)
{
    noteMaking(this, "CallForwardItemPrivateWP1", static_cast<int>(icon), text, isChecked, isReadonly);
}

CallForwardItemPrivateWP1::CallForwardItemPrivateWP1(CallLogMainItem::IconType icon, TranslationInfo* text,
                                                     bool isChecked, bool isReadonly)
    : CallForwardItemSide({.text = TranslatedText(text)}, Panel::SMALL)
{
    noteMaking(this, "CallForwardItemPrivateWP1", static_cast<int>(icon), keyOf(text), isChecked, isReadonly);
}

CallForwardItemPrivateWP1::CallForwardItemPrivateWP1(TranslationInfo* text)
    : CallForwardItemSide({.text = TranslatedText(text)}, Panel::SMALL)
{
    noteMaking(this, "CallForwardItemPrivateWP1", keyOf(text));
}

void CallForwardItemSide::localeChanged(std::string locale)
{
    mImpl->note("localeChanged", locale);
}

void CallForwardItemSide::releaseOwnership()
{
    mImpl->note("releaseOwnership");
}

void CallForwardItemSide::gainOwnership()
{
    mImpl->note("gainOwnership");
}

KestrelListBoxItem* CallForwardItemSide::getKestrelListItem()
{
    return &mImpl->item;
}

void CallForwardItemSide::check()
{
    mImpl->note("check");
}

void CallForwardItemSide::uncheck()
{
    mImpl->note("uncheck");
}

void CallForwardItemSide::swapCheck()
{
    mImpl->note("swapCheck");
}

bool CallForwardItemSide::getCheck() const
{
    mImpl->note("getCheck");
    return doubles::Answers::instance().isSelected;
}

void CallForwardItemSide::setTextMain(TranslationInfo* text)
{
    mImpl->note("setTextMain", keyOf(text));
}

void CallForwardItemSide::setTextMain(std::string text)
{
    mImpl->note("setTextMain", text);
}

void CallForwardItemSide::setTextBranch(TranslationInfo* text, TranslationInfo* label,
                                        CallForwardItem::eCallForwardBranchLine line)
{
    mImpl->note("setTextBranch", keyOf(text), keyOf(label), static_cast<int>(line));
}

void CallForwardItemSide::setTextBranch(std::string text, TranslationInfo* label,
                                        CallForwardItem::eCallForwardBranchLine line)
{
    mImpl->note("setTextBranch", text, keyOf(label), static_cast<int>(line));
}

void CallForwardItemSide::setReadonly(bool on, bool showsMark)
{
    mImpl->note("setReadonly", on, showsMark);
}

void CallForwardItemSide::setCFIconVisible(bool on)
{
    mImpl->note("setCFIconVisible", on);
}

void CallForwardItemSide::cleanBranches()
{
    mImpl->note("cleanBranches");
}

std::string CallForwardItemSide::getText() const
{
    mImpl->note("getText");
    return "main text";
}

CallLogMainItem::IconType CallForwardItemSide::iconType() const
{
    mImpl->note("iconType");
    return static_cast<CallLogMainItem::IconType>(doubles::Answers::instance().icon.load());
}

} // namespace DisplayAPI
