#pragma once

#include "host/widgets/status/StatusTime.h"
#include "toolkit/PString.h"

#include <functional>

namespace host {

/// What an idle screen says of the time: that of the status lines where they have one, or else the telephone's own, and
/// the date. Wakes the telephone once a minute while it runs, the status lines' time apart. GUI thread only.
class IdleClock final : public PegThing, public StatusTimeView {
public:
    /// `ticked` is called while it runs, each time that another text may stand there.
    explicit IdleClock(std::function<void()> ticked);
    ~IdleClock() override;

    void run(bool on);

    PegString time() const;

    /// In the application's format; a short one has no year.
    PegString date(bool isShort) const;

    int Message(const PegMessage& message) override;
    const StatusTime* statusTime() const override { return StatusTime::current(); }
    void statusTimeChanged() override { mTicked(); }

private:
    void schedule();

    std::function<void()> mTicked;
};

} // namespace host
