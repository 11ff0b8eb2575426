#pragma once

#include "DisplayAPI/DisplayPrivateIfc.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "Operation.h"
#include "utilities/Semaphore.h"

#include <tuple>

/// The operations of a Display, each said once, as in Operations.h. They travel in records of their own kind, which
/// carry one text, one number, one flag and one displayable; an answer comes through the slot of its type.
namespace DisplayAPI {

// Into the record that has a constructor for it

template <typename... Args>
DisplayRequestEvent* displayRecord(Display& display, int code, Semaphore* done, Args... args)
{
    const auto type = static_cast<DisplayRequestEvent::DisplayRequests>(code);
    if constexpr (sizeof...(Args) == 0)
        return new DisplayRequestEvent(&display, type, done, false);
    else
        return new DisplayRequestEvent(&display, type, done, std::move(args)...);
}

inline DisplayRequestEvent* displayRecord(Display& display, int code, Semaphore* done, std::string text,
                                          unsigned int number)
{
    return displayRecord(display, code, done, static_cast<int>(number), std::move(text));
}

inline void setSlot(DisplayRequestEvent& request, Displayable** slot)
{
    request.setCurrentDisplayable(slot);
}

inline void setSlot(DisplayRequestEvent& request, DisplayRequestEvent::Rects** slot)
{
    request.setDisplayedRectsReturnValue(slot);
}

inline void setSlot(DisplayRequestEvent& request, std::string* slot)
{
    request.setStringReturnValue(slot);
}

// Out of the record

template <typename T>
T argumentOf(DisplayRequestEvent& request)
{
    if constexpr (std::is_same_v<T, bool>)
        return request.getBoolParam();
    else if constexpr (std::is_integral_v<T>)
        return static_cast<T>(request.getIntParam());
    else if constexpr (std::is_same_v<T, std::string>)
        return request.getStringParam();
    else
        return request.getDisplayable();
}

/// Asks, and writes the answer, where the record has a slot for it.
template <typename Ask>
void answerTo(DisplayRequestEvent& request, Ask ask)
{
    using Answer = decltype(ask());
    if constexpr (std::is_void_v<Answer>) {
        ask();
    } else if constexpr (std::is_same_v<Answer, DisplayRequestEvent::Rects*>) {
        request.setDisplayedRects(ask());
    } else if constexpr (std::is_same_v<Answer, Displayable*>) {
        if (Displayable** const slot = request.getCurrentDisplayable())
            *slot = ask();
    } else if (std::string* const slot = request.getStringReturnValue()) {
        *slot = ask();
    }
}

/// A row with the types of its arguments.
template <typename Row, typename Function = decltype(Row::RUNS)>
struct DisplayOperation;

template <typename Row, typename Owner, typename Answer, typename... Args>
struct DisplayOperation<Row, Answer (Owner::*const)(Args...)> {
    static Answer post(Display& display, DisplayPrivateIfc& side, Args... args)
    {
        Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
        auto* const record = displayRecord(display, Row::CODE, Row::WAITS ? &done : nullptr, plain(args)...);
        if constexpr (std::is_void_v<Answer>) {
            Row::WAITS ? side.postEvent(record) : side.postEventAsync(record);
        } else {
            Answer answer{};
            setSlot(*record, &answer);
            side.postEvent(record);
            return answer;
        }
    }

    static void carryOut(DisplayPrivateIfc& side, DisplayRequestEvent& request)
    {
        answerTo(request, [&] { return (side.*Row::RUNS)(argumentOf<std::remove_cvref_t<Args>>(request)...); });
    }

private:
    template <typename T>
    static std::remove_cvref_t<T> plain(T& argument)
    {
        return std::move(argument);
    }
};

template <typename Row, typename Owner, typename Answer, typename... Args>
struct DisplayOperation<Row, Answer (Owner::*const)(Args...) const>
    : DisplayOperation<Row, Answer (Owner::*const)(Args...)> {
};

template <typename... Rows>
struct DisplayOperations {
    static_assert(haveCodesOfTheirOwn<Rows...>(), "two rows have the same code");

    template <int CODE, typename... Args>
    static auto call(const Display& display, DisplayPrivateIfc* side, Args&&... args)
    {
        CodeNamesOf<Display, Rows...>::areKnown();
        using Row = RowOf<CODE, Rows...>;
        if (Widget::isGuiThread())
            return Row::run(display, side, std::forward<Args>(args)...);
        return DisplayOperation<Row>::post(const_cast<Display&>(display), *side, std::forward<Args>(args)...);
    }

    /// Carries the request out if its code is in the table; returns whether it is.
    static bool carryOut(DisplayPrivateIfc& side, DisplayRequestEvent& request)
    {
        const int code = request.getType();
        return ((code == Rows::CODE && (DisplayOperation<Rows>::carryOut(side, request), true)) || ...);
    }
};

} // namespace DisplayAPI
