#include "apps/deskphone/CallLogs.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Display.h"
#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/Telephone.h"

#include <array>
#include <optional>
#include <string>
#include <utility>

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::TabScreen;

namespace {

using enum PastCall::Kind;

const std::array<std::pair<std::string, std::optional<PastCall::Kind>>, 5> PAGES{{{"Call.log.all", {}},
                                                                                  {"Call.log.missed", MISSED},
                                                                                  {"Call.log.received", RECEIVED},
                                                                                  {"Call.log.dialled", DIALLED},
                                                                                  {"Call.log.forwarded", FORWARDED}}};

} // namespace

CallLogs::CallLogs(Telephone& telephone, Place& parent, CallHistory& history, CallBacks& callBacks, CallScreen& call,
                   CallDetails& details)
    : mTelephone(telephone), mParent(parent), mHistory(history), mTabs(TabScreen::CALLS, HAS_WAY_BACK),
      mCommands(mTabs, [this](Command* command) {
          if (command == TabScreen::BACK_COMMAND())
              goBack();
      })
{
    for (const auto& [title, kind] : PAGES)
        mPages.emplace_back(telephone, mTabs, title, kind, history, callBacks, call, details);
    mCallBacks.emplace(telephone, mTabs, callBacks, call);
}

void CallLogs::open()
{
    for (CallLog& page : mPages)
        page.goToTop();
    mPages.front().open();
    for (CallLog& page : mPages)
        page.fill();
    mHistory.see();
}

void CallLogs::stopListening()
{
    mCommands.end();
    for (CallLog& page : mPages)
        page.stopListening();
    mCallBacks->stopListening();
}

void CallLogs::stopWorking()
{
    for (CallLog& page : mPages)
        page.stopWorking();
    mCallBacks->stopWorking();
}

/// Commands arrive later than they are raised: the user may be elsewhere.
void CallLogs::goBack()
{
    if (mTelephone.display().getCurrent() != &mTabs)
        return;
    mHistory.see();
    for (CallLog& page : mPages)
        page.see();
    mParent.open();
}

} // namespace deskphone
