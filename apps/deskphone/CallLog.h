#pragma once

#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/Screen.h"

#include <deque>
#include <optional>

namespace deskphone {

class Call;
class CallDetails;

/// Calls of one kind or of all, the latest first: those of today with their time, others with their date. Choosing one
/// calls back.
class CallLog : public Screen {
public:
    /// Without a `kind` it shows all.
    CallLog(Telephone& telephone, Place* parent, const std::string& title, std::optional<PastCall::Kind> kind,
            CallHistory& history, Call& call, CallDetails& details);

private:
    struct Row {
        PastCall* call;
        DisplayAPI::ListItem* item;
    };

    void build() override {}
    void chosen(int row) override;

    PastCall& callAt(int row) const;
    DisplayAPI::ListItem* makeItem(const PastCall& call);
    bool shows(const PastCall& call) const;
    void added(PastCall& call);
    void forgotten(const PastCall& call);

    std::optional<PastCall::Kind> mKind;
    CallHistory& mHistory;
    Call& mCall;
    std::deque<Row> mRows;
};

} // namespace deskphone
