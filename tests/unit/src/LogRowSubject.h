#pragma once

#include "doubles/Answers.h"
#include "support/FacadeContract.h"
#include "utilities/CallPartyIdentifier.h"

#include <memory>
#include <string>

namespace test {

/// A row of a call log for its contract, with parties. `fullName` is that of the full panel's private side.
template <typename Row>
struct LogRowSubject : WidgetSubject<Row> {
    explicit LogRowSubject(const char* fullName) : name(sideName(fullName)) { doubles::Answers::instance().reset(); }

    std::string arrival(const std::string& call) const { return name + "::" + call; }

    const std::string name;
    CallPartyIdentifier ada{"Ada", "4711"}, bert{"Bert", "4712"};
};

} // namespace test
