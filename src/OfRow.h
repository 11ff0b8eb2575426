#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

#include <utility>

namespace DisplayAPI {

/// Calls it where the row has such a side. A request of the list item's may have made another one.
template <typename Side, auto FUNCTION, typename Answer, typename... Args>
Answer callRow(ListItemPrivateIfc& row, Args... args)
{
    auto* const side = dynamic_cast<Side*>(&row);
    return side != nullptr ? (side->*FUNCTION)(std::forward<Args>(args)...) : Answer();
}

template <auto FUNCTION, typename = decltype(FUNCTION)>
struct RowFunction;

template <auto FUNCTION, typename Side, typename Answer, typename... Args>
struct RowFunction<FUNCTION, Answer (Side::*)(Args...)> {
    static constexpr auto CALL = &callRow<Side, FUNCTION, Answer, Args...>;
};

template <auto FUNCTION, typename Side, typename Answer, typename... Args>
struct RowFunction<FUNCTION, Answer (Side::*)(Args...) const> {
    static constexpr auto CALL = &callRow<Side, FUNCTION, Answer, Args...>;
};

/// A function of a derived row's private side, for its table of operations: ListItem, which keeps that side, knows it
/// as its base.
template <auto FUNCTION>
inline constexpr auto ofRow = RowFunction<FUNCTION>::CALL;

} // namespace DisplayAPI
