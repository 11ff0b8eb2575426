#pragma once

#include "DisplayAPI/GuiRequestEvent.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace DisplayAPI::record {

/// What a record has fields for.
enum class Kind { TEXT, NUMBER, FLAG, POINTER, NONE };

template <typename T>
struct OwnedPointee {
    using Type = void;
};

template <typename T>
struct OwnedPointee<std::unique_ptr<T>> {
    using Type = T;
};

/// An object that travels with its record: whoever carries the call out gets it, a lost or purged record frees it.
template <typename T>
constexpr bool IS_OWNED = !std::is_void_v<typename OwnedPointee<std::remove_cvref_t<T>>::Type>;

template <typename T>
consteval Kind kindOf()
{
    using Plain = std::remove_cvref_t<T>;
    using Pointee = std::remove_pointer_t<Plain>;
    if (std::is_same_v<Plain, bool>)
        return Kind::FLAG;
    if ((std::is_integral_v<Plain> || std::is_enum_v<Plain>)&&sizeof(Plain) <= sizeof(std::int32_t))
        return Kind::NUMBER;
    if (std::is_same_v<Plain, std::string>)
        return Kind::TEXT;
    // A text that is somebody else's may be gone when the call is carried out: texts travel as std::string.
    const bool isText = std::is_same_v<std::remove_const_t<Pointee>, char>;
    if (IS_OWNED<T> || (std::is_pointer_v<Plain> && !std::is_function_v<Pointee> && !isText))
        return Kind::POINTER;
    return Kind::NONE;
}

/// The fields of a kind, in the order in which they are filled.
template <Kind KIND>
consteval auto fieldsOf()
{
    using Record = GuiRequestEvent;
    if constexpr (KIND == Kind::TEXT)
        return std::array{&Record::stringParam1, &Record::stringParam2, &Record::stringParam3};
    else if constexpr (KIND == Kind::NUMBER)
        return std::array{&Record::intParam1, &Record::intParam2, &Record::intParam3};
    else if constexpr (KIND == Kind::FLAG)
        return std::array{&Record::boolParam1, &Record::boolParam2};
    else
        return std::array{&Record::ptrParam1, &Record::ptrParam2, &Record::ptrParam3};
}

inline void put(std::string& field, std::string text)
{
    field = std::move(text);
}

inline void put(bool& field, bool flag)
{
    field = flag;
}

template <typename T>
void put(std::int32_t& field, T number)
{
    field = static_cast<std::int32_t>(number);
}

template <typename T>
void put(void*& field, T* object)
{
    field = const_cast<std::remove_const_t<T>*>(object);
}

template <typename T>
void put(void*& field, std::unique_ptr<T> object)
{
    field = object.release();
}

/// Out of its field, as what the operation takes.
template <typename T, typename Field>
decltype(auto) take(Field& field)
{
    using Plain = std::remove_cvref_t<T>;
    if constexpr (IS_OWNED<T>)
        return Plain(static_cast<typename Plain::pointer>(std::exchange(field, nullptr)));
    else if constexpr (!std::is_same_v<Plain, std::string>)
        return static_cast<Plain>(field);
    else if constexpr (std::is_lvalue_reference_v<T>)
        return (field);
    else
        return std::move(field);
}

/// How many arguments there are of the kind, and how many of them stand before the one at INDEX.
template <Kind KIND, typename... Args>
constexpr std::size_t COUNT = (0 + ... + (kindOf<Args>() == KIND ? 1 : 0));

template <std::size_t INDEX, typename... Args>
consteval std::size_t rankOf()
{
    const std::array kinds{kindOf<Args>()...};
    return static_cast<std::size_t>(std::count(kinds.begin(), kinds.begin() + INDEX, kinds[INDEX]));
}

/// Where the arguments of an operation stand in its record: each kind is counted by itself, so the second number is in
/// intParam2 whatever stands between it and the first.
template <typename... Args>
struct RecordFields {
    static constexpr bool FIT = COUNT<Kind::NONE, Args...> == 0 && COUNT<Kind::TEXT, Args...> <= 3 &&
                                COUNT<Kind::NUMBER, Args...> <= 3 && COUNT<Kind::FLAG, Args...> <= 2 &&
                                COUNT<Kind::POINTER, Args...> <= 3;
    static constexpr bool HAS_OWNED = (IS_OWNED<Args> || ...);

    /// Whether an argument stands in the field of an object.
    static consteval bool uses(void* GuiRequestEvent::*field)
    {
        for (std::size_t i = 0; i < COUNT<Kind::POINTER, Args...>; ++i)
            if (fieldsOf<Kind::POINTER>()[i] == field)
                return true;
        return false;
    }

    template <std::size_t INDEX>
    static auto& at(GuiRequestEvent& record)
    {
        constexpr Kind KIND = kindOf<std::tuple_element_t<INDEX, std::tuple<Args...>>>();
        return record.*(std::get<rankOf<INDEX, Args...>()>(fieldsOf<KIND>()));
    }

    static void fill(GuiRequestEvent& record, Args... args)
    {
        const auto fillAll = [&]<std::size_t... INDEX>(std::index_sequence<INDEX...>)
        {
            (put(at<INDEX>(record), std::forward<Args>(args)), ...);
        };
        fillAll(std::index_sequence_for<Args...>());
    }

    /// Calls `function` with the arguments that the record has brought.
    template <typename Function>
    static decltype(auto) apply(GuiRequestEvent& record, Function function)
    {
        const auto applyAll = [&]<std::size_t... INDEX>(std::index_sequence<INDEX...>)->decltype(auto)
        {
            return function(take<Args>(at<INDEX>(record))...);
        };
        return applyAll(std::index_sequence_for<Args...>());
    }
};

/// A record that frees the objects travelling with it where nobody has taken them out.
template <typename... Args>
class OwningRequest : public GuiRequestEvent {
public:
    using GuiRequestEvent::GuiRequestEvent;

    ~OwningRequest() override
    {
        RecordFields<Args...>::apply(*this, [](const auto&...) {});
    }
};

} // namespace DisplayAPI::record
