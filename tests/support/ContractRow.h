#pragma once

#include "doubles/Recorder.h"
#include "support/SourceLine.h"
#include "support/WidgetCarrier.h"

#include <functional>

#include <string>
#include <type_traits>
#include <vector>

namespace test {

/// One operation, and what its contract says of it.
template <typename Subject>
struct ContractRow {
    using Carrier = typename Subject::Carrier;
    using Record = typename Carrier::Record;

    std::string name;
    int code;
    bool waits;
    SourceLine where;

    /// Calls it and returns the answer as text; empty where it has none.
    std::function<std::string(Subject&)> call = {};

    /// Has a record carried out that has the address of a variable for the answer, and returns what is in it then.
    std::function<std::string(Record&, typename Carrier::Slot, const std::function<void()>& carry)> ask = {};
    typename Carrier::Slot slot = Carrier::ANSWER;

    std::function<Filling(Subject&)> filling = [](Subject&) { return Filling{}; };
    std::function<std::vector<std::string>(Subject&)> arrives = [](Subject&) { return std::vector<std::string>{}; };
    std::function<std::string(Subject&)> answer = [](Subject&) { return std::string(); };
    std::string neutral = {};
    bool needsAddress = false;
    bool readsAfterwards = false;
};

template <typename T>
std::string asText(const std::vector<T>& answers);

/// An answer as the rows of a contract compare it.
template <typename T>
std::string asText(const T& answer)
{
    if constexpr (std::is_enum_v<T>)
        return std::to_string(static_cast<long>(answer));
    else if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>)
        return std::to_string(answer);
    else
        return doubles::printed(answer);
}

template <typename T>
std::string asText(const std::vector<T>& answers)
{
    std::string text;
    for (const T& answer : answers)
        text += asText(answer) + " ";
    return text;
}

} // namespace test
