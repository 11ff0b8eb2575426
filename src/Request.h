#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"

#include <string>
#include <type_traits>
#include <utility>

/// How a facade operation is written.
///
///     int Counter::value()                                        void Counter::start(int ms)
///     {                                                           {
///         if (isGuiThread())                                          if (isGuiThread())
///             return mImplementation->value();                            return mImplementation->start(ms);
///         int value = -1;                                             postEventAsync(request(this, START, ms));
///         postEvent(request(this, VALUE, into(value)));           }
///         return value;
///     }
///
/// and in processGuiRequest, which works on the private side and never on the facade's own marshalled operations:
///
///         case START: mImplementation->start(request.intParam1); break;
///         case VALUE: answer<int>(request, mImplementation->value()); break;
namespace DisplayAPI {

/// Names the caller's variable that a handler writes its answer to.
template <typename T>
struct Into {
    T* variable;
};

template <typename T>
Into<T> into(T& variable)
{
    return {&variable};
}

/// Fills a record's parameter fields in order: the first int goes to intParam1, the second to intParam2, and so on for
/// each kind. The result address goes to returnValue3.
class RequestFiller {
public:
    explicit RequestFiller(GuiRequestEvent& record) : mRecord(record) {}

    void put(bool value) { (mBools++ == 0 ? mRecord.boolParam1 : mRecord.boolParam2) = value; }
    void put(int value) { *next(mInts, mRecord.intParam1, mRecord.intParam2, mRecord.intParam3) = value; }

    void put(const char* value) { put(std::string(value)); }
    void put(std::string value)
    {
        *next(mStrings, mRecord.stringParam1, mRecord.stringParam2, mRecord.stringParam3) = std::move(value);
    }

    template <typename T>
    void put(T* value)
    {
        *next(mPointers, mRecord.ptrParam1, mRecord.ptrParam2, mRecord.ptrParam3) =
            const_cast<std::remove_const_t<T>*>(value);
    }

    template <typename T>
    void put(Into<T> result)
    {
        mRecord.returnValue3 = result.variable;
    }

private:
    template <typename T>
    static T* next(int& used, T& first, T& second, T& third)
    {
        const int index = used++;
        return index == 0 ? &first : index == 1 ? &second : &third;
    }

    GuiRequestEvent& mRecord;
    int mBools = 0;
    int mInts = 0;
    int mStrings = 0;
    int mPointers = 0;
};

/// Fills a record that has been made for the request, which it returns.
template <typename... Args>
GuiRequestEvent* filled(GuiRequestEvent* record, Args&&... args)
{
    constexpr int BOOLS = (0 + ... + std::is_same_v<std::decay_t<Args>, bool>);
    constexpr int INTS = (0 + ... + std::is_same_v<std::decay_t<Args>, int>);
    static_assert(BOOLS <= 2 && INTS <= 3, "a record has two flags and three numbers");
    [[maybe_unused]] RequestFiller filler(*record);
    (filler.put(std::forward<Args>(args)), ...);
    return record;
}

template <typename... Args>
GuiRequestEvent* request(Widget* requester, int code, Args&&... args)
{
    return filled(new GuiRequestEvent(requester, code), std::forward<Args>(args)...);
}

/// A record for Widget::postEventHelper(), which never frees it on the GUI thread. Made in a place of its own so that a
/// leak checker can tell these from records that are lost by mistake.
GuiRequestEvent* newHelperRecord(Widget* requester, int code);

template <typename... Args>
GuiRequestEvent* helperRequest(Widget* requester, int code, Args&&... args)
{
    return filled(newHelperRecord(requester, code), std::forward<Args>(args)...);
}

/// Writes a handler's answer to the variable that the caller has named, if it has named one. The type is the variable's
/// and has to be written out.
template <typename T>
void answer(const GuiRequestEvent& request, std::type_identity_t<T> value)
{
    if (request.returnValue3 != nullptr)
        *static_cast<T*>(request.returnValue3) = std::move(value);
}

/// The pointer that the poster put in, as what it was.
template <typename T>
T* pointer(void* parameter)
{
    return static_cast<T*>(parameter);
}

} // namespace DisplayAPI
