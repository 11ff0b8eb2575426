#pragma once

#include "DisplayAPI/CallConnectedItemPrivateIfc.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a call's row, whatever the panel.
class DISPLAYAPI_EXPORT CallConnectedItemSide : public CallConnectedItemPrivateIfc {
public:
    ~CallConnectedItemSide() override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void setText(std::string text) override;
    void setText(TranslationInfo* text) override;
    KestrelListBoxItem* getKestrelListItem() override;

    void setState(CallConnectedItem::CallStateIcon state) override;
    void setPictureClip(Image* picture) override;
    void setSecondLineText(std::string text) override;
    void setSecondLineText(TranslationInfo* text) override;
    void setThirdLineIconText(ForwardedCallType type, std::string text) override;
    void setPartyDetails(const CallPartyIdentifier& party, CallPartyIdentifier* secondParty, ForwardedCallType type,
                         const std::string& text, TranslationInfo* translation) override;
    void setSecurityState(CallConnectedItem::CallSecurityState state) override;
    void setRecordingState(bool on) override;
    void clearSecondLineText() override;
    void setCallId(std::string id) override;
    void setCallId(TranslationInfo* id) override;
    std::string getCallId() override;
    ContextMenu* getContextMenu() override;
    void stopDurationTimer() override;
    void addGPULine(std::string text) override;
    void addGPULine(TranslationInfo* text) override;
    void removeGPULine() override;
    void enabled(bool on) override;
    bool getEnabled() override;
    void setDisplayHDIconStatus(bool on) override;

    struct Call; ///< the data; a conference derives its own
    Call& call() { return *mCall; }

protected:
    explicit CallConnectedItemSide(std::unique_ptr<Call> call);

private:
    std::unique_ptr<Call> mCall;
};

/// The call's row of the 240 x 128 panel and its narrow form. The picture is not owned and may be null.
class DISPLAYAPI_EXPORT CallConnectedItemPrivate : public CallConnectedItemSide {
public:
    CallConnectedItemPrivate(CallConnectedItem::CallStateIcon state, std::string text, Image* picture, bool timed,
                             bool hasMenu);
    CallConnectedItemPrivate(CallConnectedItem::CallStateIcon state, TranslationInfo* text, Image* picture, bool timed,
                             bool hasMenu);
};

/// The call's row of the 208 x 42 panel. The arguments are as for CallConnectedItemPrivate.
class DISPLAYAPI_EXPORT CallConnectedItemPrivateWP1 : public CallConnectedItemSide {
public:
    CallConnectedItemPrivateWP1(CallConnectedItem::CallStateIcon state, std::string text, Image* picture, bool timed,
                                bool hasMenu);
    CallConnectedItemPrivateWP1(CallConnectedItem::CallStateIcon state, TranslationInfo* text, Image* picture,
                                bool timed, bool hasMenu);
};

} // namespace DisplayAPI
