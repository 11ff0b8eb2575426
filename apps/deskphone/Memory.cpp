#include "apps/deskphone/Memory.h"

#include "apps/deskphone/CallStore.h"
#include "apps/deskphone/ContactStore.h"
#include "apps/deskphone/StateFile.h"
#include "host/clock/WallClock.h"

namespace deskphone {

using host::WallClock;

namespace {

using enum PastCall::Kind;

std::time_t ago(int days, int minutes)
{
    return WallClock::now() - (days * 24 * 60 + minutes) * 60;
}

std::deque<PastCall> recentCalls()
{
    return {{RECEIVED, ago(0, 10), "Zoë Ångström", "030 1000000"}, {DIALLED, ago(0, 21), "Jürgen Müller", "030 4711"},
            {MISSED, ago(0, 29), "Ελένη Ιωάννου", "030 1015838"},  {MISSED, ago(1, 54), "030 1234567", "030 1234567"},
            {RECEIVED, ago(2, 80), "Иван Орлик", "030 815"},       {RECEIVED, ago(3, 0), "佐藤 美咲", "030 2026"},
            {DIALLED, ago(7, 43), "משה כהן", "030 1031676"}};
}

CallHistory historyIn(const std::shared_ptr<StateFile>& file)
{
    return file == nullptr ? CallHistory(recentCalls()) : CallHistory(std::make_unique<CallStore>(file));
}

} // namespace

Memory::Memory(const std::filesystem::path& folder)
    : Memory(folder.empty() ? nullptr : std::make_shared<StateFile>(folder))
{
}

Memory::Memory(const std::shared_ptr<StateFile>& file)
    : mHistory(historyIn(file)), mContacts(file == nullptr ? nullptr : std::make_unique<ContactStore>(file)),
      mPreferences(file)
{
}

} // namespace deskphone
