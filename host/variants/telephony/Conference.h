#pragma once

#include "host/variants/telephony/Call.h"
#include "variants/telephony/ConferenceCallItemPrivate.h"

#include <vector>

namespace DisplayAPI {

/// What a conference's row is made of: a call that others are members of.
struct ConferenceCallItemSide::Conference : CallConnectedItemSide::Call, CallConnectedItemSide::Call::Whole {
    Conference(OwnedText text, bool isOpen, Panel where);
    ~Conference() override;

    void append(CallConnectedItem* facade, bool isTitle);
    void setSuffix(OwnedText text);
    void select(int index);

    CallConnectedItem* facadeAt(int index) const;
    CallConnectedItem* facadeOf(const Call* member) const { return facadeAt(indexOf(member)); }
    Call* memberAt(int index) const;

    void leave(Call& member) override;
    void memberChanged() override { changed(); }

    /// Members stand in no list that would tell them.
    void localeChanged() override;
    host::LinesLook look() const override;
    bool key(int key) override;

    Call* title = nullptr;
    Call* selected = nullptr;

protected:
    PegString firstLine() const override;
    const host::Icon* arrow() const override;

private:
    struct Member {
        CallConnectedItem* facade;
        Call* call;
    };

    int indexOf(const Call* member) const;
    std::size_t firstInView() const;
    host::LinesLook::Line lineOf(const Call& member) const;
    bool open(bool on);
    bool moveTo(int index);

    std::vector<Member> mMembers;
    OwnedText mSuffix;
    bool mIsOpen;
};

} // namespace DisplayAPI
