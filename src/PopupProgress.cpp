#include "DisplayAPI/PopupProgress.h"

#include "DisplayAPI/PopupProgressPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "utilities/TranslationInfo.h"
#include "variants/popup/PopupProgressPrivate.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SET_TEXT = 2,
    SET_TEXT_TRANSLATED = 3,
    SET_STAGE = 4,
    SET_STAGE_TRANSLATED = 5,
    SET_ACTIVITY = 6,
    SET_ACTIVITY_TRANSLATED = 7,
    UPDATE_PROGRESS_BAR = 8,
    SET_TYPE = 9,
    SHOW = 10,
    DISMISS = 11
};

using Ifc = PopupProgressPrivateIfc;
using Owned = std::unique_ptr<TranslationInfo>;

constexpr auto TEXT = taking<std::string>;
constexpr auto TRANSLATION = taking<Owned>;

} // namespace

struct PopupProgress::Ops
    : Operations<Waits<CREATE, &PopupProgress::create>, Waits<DESTROY, &PopupProgress::destroy>,
                 Waits<SET_TEXT, TEXT(&Ifc::setText)>, Waits<SET_TEXT_TRANSLATED, TRANSLATION(&Ifc::setText)>,
                 Waits<SET_STAGE, TEXT(&Ifc::setCurrentStageText)>,
                 Waits<SET_STAGE_TRANSLATED, TRANSLATION(&Ifc::setCurrentStageText)>,
                 Waits<SET_ACTIVITY, TEXT(&Ifc::setCurrentActivityText)>,
                 Waits<SET_ACTIVITY_TRANSLATED, TRANSLATION(&Ifc::setCurrentActivityText)>,
                 Waits<UPDATE_PROGRESS_BAR, &Ifc::updateProgressBar>, Waits<SET_TYPE, &Ifc::setType>,
                 Waits<SHOW, &Ifc::open>, Waits<DISMISS, &Ifc::dismiss>> {};

PopupProgress::PopupProgress(ProgressType type)
{
    Ops::call<CREATE>(*this, mImplementation, type);
}

PopupProgress::PopupProgress() : PopupProgress(BAR_AND_PERCENT) {}

PopupProgress::~PopupProgress()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void PopupProgress::create(ProgressType type)
{
    name = "PopupProgress";
    mImplementation = nullptr;
    if (KestrelApplication::getCurrentApplication() == nullptr)
        return;
    if (isFullPanel())
        mImplementation = new PopupProgressPrivate(this, type);
    else
        mImplementation = new PopupProgressPrivateWP1(this, type);
}

void PopupProgress::destroy()
{
    deletePrivateSide(mImplementation);
}

void PopupProgress::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* PopupProgress::getPrivateImpl()
{
    return mImplementation;
}

void PopupProgress::setText(const std::string& text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, text);
}

void PopupProgress::setText(TranslationInfo* text)
{
    Ops::call<SET_TEXT_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupProgress::setCurrentStageText(const std::string& text)
{
    Ops::call<SET_STAGE>(*this, mImplementation, text);
}

void PopupProgress::setCurrentStageText(TranslationInfo* text)
{
    Ops::call<SET_STAGE_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupProgress::setCurrentActivityText(const std::string& text)
{
    Ops::call<SET_ACTIVITY>(*this, mImplementation, text);
}

void PopupProgress::setCurrentActivityText(TranslationInfo* text)
{
    Ops::call<SET_ACTIVITY_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupProgress::updateProgressBar(int percent)
{
    Ops::call<UPDATE_PROGRESS_BAR>(*this, mImplementation, percent);
}

void PopupProgress::setType(InfoType type)
{
    Ops::call<SET_TYPE>(*this, mImplementation, type);
}

void PopupProgress::show()
{
    Ops::call<SHOW>(*this, mImplementation);
}

void PopupProgress::dismiss()
{
    Ops::call<DISMISS>(*this, mImplementation);
}

void PopupProgress::addCommand(MenuCommand*) {}

void PopupProgress::clearCommands() {}

void PopupProgress::addCommandListener(CommandListener*) {}

void PopupProgress::displayProgressBar(bool) {}

} // namespace DisplayAPI
