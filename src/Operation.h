#pragma once

#include "CodeNames.h"
#include "DisplayAPI/Widget.h"
#include "RecordFields.h"

#include <functional>
#include <memory>
#include <set>
#include <type_traits>

/// The rows of an Operations table, and what a row has to be.
namespace DisplayAPI {

/// The answer where nobody answers: what the answer's type begins with.
struct Nothing {};
inline constexpr Nothing NOTHING;

/// A member function taken apart, or a function that works on the object in its first argument.
template <typename Function>
struct Signature;

template <typename OwnerType, typename Result, typename... Args>
struct Signature<Result (*)(OwnerType&, Args...)> {
    using Owner = OwnerType;
    using Answer = std::remove_cvref_t<Result>;
    using Fields = record::RecordFields<Args...>;
    using Record = std::conditional_t<Fields::HAS_OWNED, record::OwningRequest<Args...>, GuiRequestEvent>;
};

template <typename Owner, typename Result, typename... Args>
struct Signature<Result (Owner::*)(Args...)> : Signature<Result (*)(Owner&, Args...)> {
};

template <typename Owner, typename Result, typename... Args>
struct Signature<Result (Owner::*)(Args...) const> : Signature<Result (*)(Owner&, Args...)> {
};

/// One operation. It answers NEUTRAL when there is no private side, and when its request is purged or lost. A record
/// has the address of the caller's variable in ANSWER_FIELD.
template <auto NUMBER, bool MUST_WAIT, auto FUNCTION, auto NEUTRAL, auto ANSWER_FIELD>
struct Operation {
    using Owner = typename Signature<decltype(FUNCTION)>::Owner;
    using Answer = typename Signature<decltype(FUNCTION)>::Answer;
    using Fields = typename Signature<decltype(FUNCTION)>::Fields;
    using Record = typename Signature<decltype(FUNCTION)>::Record;

    using Code = decltype(NUMBER);
    static constexpr int CODE = NUMBER;
    static constexpr bool WAITS = MUST_WAIT;
    static constexpr auto RUNS = FUNCTION;
    static constexpr auto NEUTRAL_ANSWER = NEUTRAL;
    static constexpr auto FIELD = ANSWER_FIELD;
    static constexpr bool ANSWERS = !std::is_void_v<Answer>;
    static constexpr bool NAMES_ANSWER = !std::is_same_v<decltype(NEUTRAL_ANSWER), const Nothing>;

    static Answer neutral()
    {
        if constexpr (NAMES_ANSWER)
            return {NEUTRAL};
        else
            return Answer();
    }

    template <typename Facade, typename Side, typename... Args>
    static Answer run(Facade& facade, Side& side, Args&&... args)
    {
        Owner* const target = targetIn(facade, side);
        return target != nullptr ? std::invoke(RUNS, *target, std::forward<Args>(args)...) : neutral();
    }

    /// Has `post` hand the record over, and returns the answer that it has brought.
    template <typename Post>
    static Answer ask(GuiRequestEvent& record, Post post)
    {
        if constexpr (ANSWERS) {
            Answer answer = neutral();
            if (WAITS)
                record.*FIELD = &answer;
            post(&record);
            return answer;
        } else {
            post(&record);
        }
    }

    /// Runs with the record's arguments, and writes the answer to the caller's variable where the record has one.
    template <typename Facade, typename Side>
    static void carryOut(Facade& facade, Side& side, GuiRequestEvent& record)
    {
        Owner* const target = targetIn(facade, side);
        if (target == nullptr)
            return Fields::apply(record, [](const auto&...) {}); // frees what nobody takes
        const auto run = [target]<typename... Args>(Args&&... args) -> Answer {
            return std::invoke(RUNS, *target, std::forward<Args>(args)...);
        };
        if constexpr (ANSWERS)
            write(record.*FIELD, Fields::apply(record, run));
        else
            Fields::apply(record, run);
    }

private:
    /// Null while there is no private side. This alone reads it: it runs where the private side is made and deleted.
    template <typename Facade, typename Side>
    static Owner* targetIn(Facade& facade, Side& side)
    {
        if constexpr (std::is_base_of_v<Owner, Facade>)
            return &facade;
        else
            return std::to_address(side);
    }

    static void write(void* variable, auto answer)
    {
        if (variable != nullptr)
            *static_cast<Answer*>(variable) = std::move(answer);
    }
};

/// The caller goes on at once. Where the function has an answer, the row names what such a caller gets.
template <auto CODE, auto FUNCTION, auto NEUTRAL = NOTHING>
using Posts = Operation<CODE, false, FUNCTION, NEUTRAL, &GuiRequestEvent::returnValue3>;

/// The caller waits until the function has run.
template <auto CODE, auto FUNCTION, auto NEUTRAL = NOTHING, auto ANSWER_FIELD = &GuiRequestEvent::returnValue3>
using Waits = Operation<CODE, true, FUNCTION, NEUTRAL, ANSWER_FIELD>;

/// A row that purges what is queued of these codes before it is posted; its own code where none is named.
template <typename Row, int... CODES>
struct Superseding : Row {
    static void supersede(Widget& facade)
    {
        // Never destroyed: other threads may post while the process ends.
        static auto& codes =
            *new std::set<int>(sizeof...(CODES) == 0 ? std::set<int>{Row::CODE} : std::set<int>{CODES...});
        facade.purgeOwnMessage(&codes);
    }
};

/// Picks one of several functions of the same name: taking<std::string>(&LampPrivateIfc::setText).
template <typename... Args>
struct Taking {
    template <typename Owner, typename Result>
    constexpr auto operator()(Result (Owner::*function)(Args...)) const
    {
        return function;
    }
};

template <typename... Args>
inline constexpr Taking<Args...> taking{};

/// At most three texts, three numbers of up to 32 bits or enumerations, two flags and three objects.
template <typename Row>
concept ArgumentsFit = Row::Fields::FIT;

/// Is of the answer's type and keeps its value in it. A function without an answer has none; one that nobody waits for
/// has to name it.
template <typename Row>
concept NeutralAnswerFits = (!Row::NAMES_ANSWER && (Row::WAITS || !Row::ANSWERS)) ||
                            requires(void (&take)(typename Row::Answer))
{
    take({Row::NEUTRAL_ANSWER});
};

/// No argument stands where the address of the answer has to.
template <typename Row>
concept AnswerFieldIsFree = !Row::ANSWERS || !Row::Fields::uses(Row::FIELD);

/// Says what is wrong with a row.
template <typename Row>
struct Checked {
    static_assert(ArgumentsFit<Row>,
                  "a record carries three texts, three numbers of up to 32 bits, two flags and three "
                  "objects, and nothing else");
    static_assert(NeutralAnswerFits<Row>, "the neutral answer is of another type than the function's answer, or a row "
                                          "that posts does not name it");
    static_assert(AnswerFieldIsFree<Row>, "an argument stands in the field that the answer is to come through");
    static constexpr bool FITS = true;
};

template <typename... Rows>
consteval bool haveCodesOfTheirOwn()
{
    const std::array<int, sizeof...(Rows)> codes{Rows::CODE...};
    for (std::size_t i = 0; i < codes.size(); ++i)
        if (std::count(codes.begin(), codes.end(), codes[i]) != 1)
            return false;
    return true;
}

template <int CODE, typename... Rows>
struct FindRow {
    static_assert(((CODE == Rows::CODE) || ...), "no row has this code");
    static constexpr std::array CODES{Rows::CODE...};
    static constexpr auto INDEX = std::find(CODES.begin(), CODES.end(), CODE) - CODES.begin();
    using Row = std::tuple_element_t<static_cast<std::size_t>(INDEX), std::tuple<Rows...>>;
};

template <int CODE, typename... Rows>
using RowOf = typename FindRow<CODE, Rows...>::Row;

/// Names the codes of a facade that has these rows.
template <typename Facade, typename... Rows>
using CodeNamesOf =
    CodeNames<Facade, typename std::tuple_element_t<0, std::tuple<Rows...>>::Code, std::max({0, Rows::CODE...})>;

} // namespace DisplayAPI
