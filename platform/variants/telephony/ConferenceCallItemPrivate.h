#pragma once

#include "DisplayAPI/ConferenceCallItemPrivateIfc.h"
#include "variants/telephony/CallConnectedItemPrivate.h"

namespace DisplayAPI {

class ConferenceCallItem;

/// The GUI-thread side of a conference's row, whatever the panel.
class DISPLAYAPI_EXPORT ConferenceCallItemSide : public CallConnectedItemSide, public ConferenceCallItemPrivateIfc {
public:
    void setTitleSuffix(const std::string& suffix, TranslationInfo* translation) override;
    void appendCall(CallConnectedItem* call, bool isTitle) override;
    void removeCall(CallConnectedItem* call) override;
    void removeCall(int index) override;
    void setCallItem(int index) override;
    CallConnectedItem* getSelectedMember() override;
    CallConnectedItem* getTitleMember() override;
    CallConnectedItem* getIndexedMember(int index) override;

protected:
    struct Conference;

    explicit ConferenceCallItemSide(std::unique_ptr<Conference> conference);

private:
    Conference& conference();
};

/// The conference's row of the 240 x 128 panel and its narrow form. The owner is the facade, not owned.
class DISPLAYAPI_EXPORT ConferenceCallItemPrivate : public ConferenceCallItemSide {
public:
    ConferenceCallItemPrivate(CallConnectedItem::CallStateIcon state, std::string text, ConferenceCallItem* owner,
                              bool open);
    ConferenceCallItemPrivate(CallConnectedItem::CallStateIcon state, TranslationInfo* text, ConferenceCallItem* owner,
                              bool open);
};

/// The conference's row of the 208 x 42 panel. The owner is the facade, not owned.
class DISPLAYAPI_EXPORT ConferenceCallItemPrivateWP1 : public ConferenceCallItemSide {
public:
    ConferenceCallItemPrivateWP1(CallConnectedItem::CallStateIcon state, std::string text, ConferenceCallItem* owner,
                                 bool open);
    ConferenceCallItemPrivateWP1(CallConnectedItem::CallStateIcon state, TranslationInfo* text,
                                 ConferenceCallItem* owner, bool open);
};

} // namespace DisplayAPI
