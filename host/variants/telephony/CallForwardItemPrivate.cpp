#include "variants/telephony/CallForwardItemPrivate.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "host/variants/telephony/CallLogIcons.h"
#include "host/variants/telephony/ForwardRow.h"
#include "utilities/ICC.h"

#include <map>
#include <utility>

namespace DisplayAPI {

namespace {

/// A branch's label, and where its calls go.
struct Branch {
    TranslatedText label;
    TranslatedText text;

    std::string shown() const
    {
        const std::string first = label.text(), second = text.text();
        return first + (first.empty() || second.empty() ? "" : " ") + second;
    }
};

} // namespace

struct CallForwardItemSide::Impl {
    Impl(CallForwardEntry made, Panel rowPanel);

    std::vector<std::string> branchLines() const;
    void show();

    /// In the order of their lines.
    std::map<int, Branch> branches;
    CallForwardEntry entry;
    Panel panel;
    bool showsIcon = true;
    ForwardRow* row = new ForwardRow;
    OwnershipDelegate<ForwardRow> ownership{&row, true};
};

CallForwardItemSide::Impl::Impl(CallForwardEntry made, Panel rowPanel) : entry(std::move(made)), panel(rowPanel)
{
    row->setChecked(entry.isChecked);
    show();
}

/// The small panel has one line for all of them.
std::vector<std::string> CallForwardItemSide::Impl::branchLines() const
{
    std::vector<std::string> lines;
    for (const auto& [number, branch] : branches) {
        const std::string shown = branch.shown();
        if (shown.empty())
            continue;
        if (lines.empty() || panel == Panel::FULL)
            lines.push_back(shown);
        else
            lines.front() += ", " + shown;
    }
    return lines;
}

void CallForwardItemSide::Impl::show()
{
    host::LinesLook look;
    const host::Icon* const icon = showsIcon ? iconOf(entry.icon) : nullptr;
    look.lines.front() = {.text = entry.text.shown(), .icon = icon};
    for (const std::string& line : branchLines())
        look.lines.push_back({.text = ICC::fromUTF8toUNICODE(line)});
    look.hasIcons = icon != nullptr;
    look.dimmed = entry.isReadonly;
    row->show(std::move(look));
}

CallForwardItemSide::CallForwardItemSide(CallForwardEntry entry, Panel panel) : mImpl(new Impl(std::move(entry), panel))
{
}

CallForwardItemSide::~CallForwardItemSide() = default;

CallForwardItemPrivate::CallForwardItemPrivate(CallLogMainItem::IconType icon, std::string text, bool isChecked,
                                               bool isReadonly)
    : CallForwardItemSide({icon, TranslatedText(std::move(text)), isChecked, isReadonly}, Panel::FULL)
{
}

CallForwardItemPrivate::CallForwardItemPrivate(CallLogMainItem::IconType icon, TranslationInfo* text, bool isChecked,
                                               bool isReadonly)
    : CallForwardItemSide({icon, TranslatedText(text), isChecked, isReadonly}, Panel::FULL)
{
}

CallForwardItemPrivate::CallForwardItemPrivate(TranslationInfo* text)
    : CallForwardItemSide({.text = TranslatedText(text)}, Panel::FULL)
{
}

CallForwardItemPrivateWP1::CallForwardItemPrivateWP1(CallLogMainItem::IconType icon, std::string text, bool isChecked,
                                                     bool isReadonly)
    : CallForwardItemSide({icon, TranslatedText(std::move(text)), isChecked, isReadonly}, Panel::SMALL)
{
}

CallForwardItemPrivateWP1::CallForwardItemPrivateWP1(CallLogMainItem::IconType icon, TranslationInfo* text,
                                                     bool isChecked, bool isReadonly)
    : CallForwardItemSide({icon, TranslatedText(text), isChecked, isReadonly}, Panel::SMALL)
{
}

CallForwardItemPrivateWP1::CallForwardItemPrivateWP1(TranslationInfo* text)
    : CallForwardItemSide({.text = TranslatedText(text)}, Panel::SMALL)
{
}

void CallForwardItemSide::localeChanged(std::string)
{
    mImpl->show();
}

void CallForwardItemSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void CallForwardItemSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

KestrelListBoxItem* CallForwardItemSide::getKestrelListItem()
{
    return mImpl->row;
}

void CallForwardItemSide::check()
{
    mImpl->row->setChecked(true);
}

void CallForwardItemSide::uncheck()
{
    mImpl->row->setChecked(false);
}

void CallForwardItemSide::swapCheck()
{
    mImpl->row->setChecked(!getCheck());
}

bool CallForwardItemSide::getCheck() const
{
    return mImpl->row->isChecked();
}

void CallForwardItemSide::setTextMain(TranslationInfo* text)
{
    mImpl->entry.text = TranslatedText(text);
    mImpl->show();
}

void CallForwardItemSide::setTextMain(std::string text)
{
    mImpl->entry.text = TranslatedText(std::move(text));
    mImpl->show();
}

void CallForwardItemSide::setTextBranch(TranslationInfo* text, TranslationInfo* label,
                                        CallForwardItem::eCallForwardBranchLine line)
{
    mImpl->branches[line] = {TranslatedText(label), TranslatedText(text)};
    mImpl->show();
}

void CallForwardItemSide::setTextBranch(std::string text, TranslationInfo* label,
                                        CallForwardItem::eCallForwardBranchLine line)
{
    mImpl->branches[line] = {TranslatedText(label), TranslatedText(std::move(text))};
    mImpl->show();
}

void CallForwardItemSide::setReadonly(bool on, bool showsMark)
{
    mImpl->entry.isReadonly = on;
    mImpl->row->showMark(!on || showsMark);
    mImpl->show();
}

void CallForwardItemSide::setCFIconVisible(bool on)
{
    mImpl->showsIcon = on;
    mImpl->show();
}

void CallForwardItemSide::cleanBranches()
{
    mImpl->branches.clear();
    mImpl->show();
}

std::string CallForwardItemSide::getText() const
{
    return mImpl->entry.text.text();
}

CallLogMainItem::IconType CallForwardItemSide::iconType() const
{
    return mImpl->entry.icon;
}

} // namespace DisplayAPI
