#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/LineRow.h"
#include "apps/deskphone/Screen.h"

#include <vector>

namespace deskphone {

/// The telephone's lines, each with how it stands; the one that calls go out on is marked. Choosing another one marks
/// that.
class LineOverview : public Screen {
public:
    LineOverview(Telephone& telephone, Place* parent, Calls& calls, CallScreen& call);

private:
    struct Prefix {
        Text& plain;
        Text& marked;
    };

    void build() override {}
    void chosen(int row) override;

    LineRow::Look lookOf(const exchange::Line& line, const Prefix& prefix);
    void refresh();

    Calls& mCalls;
    std::vector<Prefix> mPrefixes; ///< of each line's name
    std::vector<LineRow> mRows;
};

} // namespace deskphone
