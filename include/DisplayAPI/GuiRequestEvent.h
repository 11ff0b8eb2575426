#pragma once

#include "DisplayAPI/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>

class Wait;

namespace DisplayAPI {

class Widget;

/// A call on a facade on its way to the GUI thread: a code and a bag of arguments and result addresses, which each
/// class fills per code as it needs them.
///
/// Written by the poster until it is posted, by the GUI thread afterwards. Owns its strings and nothing else. Results
/// go to variables on the waiting caller's stack; the GUI thread writes them before it signals completion.
class DISPLAYAPI_EXPORT GuiRequestEvent {
public:
    GuiRequestEvent(Widget* requester, int type);
    GuiRequestEvent(const GuiRequestEvent&) = delete;
    GuiRequestEvent& operator=(const GuiRequestEvent&) = delete;
    virtual ~GuiRequestEvent();

    Widget* requesterWidget() { return mRequester; }
    int getType() const { return mType; }
    Wait* waitCondition() { return mWaitCondition; }

    /// `condition` is for one waiting thread, has no wake-up left from before, and outlives the request.
    void setWaitCondition(Wait* condition) { mWaitCondition = condition; }

    /// Waits on the wait condition, without limit; returns at once where there is none.
    void waitForCompletion();

    /// Wakes the wait condition; does nothing where there is none.
    void signalComplete();

    /// Records travel from the poster's thread to the GUI thread by the million: they are kept and used again.
    static void* operator new(std::size_t size);
    static void operator delete(void* record, std::size_t size) noexcept;

    std::string stringParam1;
    std::string stringParam2;
    std::string stringParam3;
    std::int32_t intParam1 = -1;
    std::int32_t intParam2 = -1;
    std::int32_t intParam3 = -1;
    bool boolParam1 = false;
    bool boolParam2 = false;
    void* ptrParam1 = nullptr;
    void* ptrParam2 = nullptr;
    void* ptrParam3; ///< not set by the constructor
    void* returnValue1 = nullptr;
    void* returnValue2 = nullptr;
    void* returnValue3 = nullptr;
    void* returnValue4 = nullptr;

private:
    Widget* mRequester;
    std::int32_t mType;
    Wait* mWaitCondition = nullptr;
};

} // namespace DisplayAPI
