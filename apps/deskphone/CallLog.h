#pragma once

#include "apps/deskphone/Screen.h"

#include <ctime>
#include <vector>

namespace deskphone {

class Call;

/// The latest calls of one kind: those of today with their time, others with their date. Choosing one calls back.
class CallLog : public Screen {
public:
    struct Entry {
        std::time_t moment;
        std::string party;
    };

    CallLog(Telephone& telephone, Screen* parent, const std::string& title, std::vector<Entry> entries, Call& call);

private:
    void build() override;
    void chosen(int row) override;

    std::vector<Entry> mEntries;
    Call& mCall;
};

} // namespace deskphone
