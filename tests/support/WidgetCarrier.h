#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "support/SteppedLoop.h"
#include "utilities/Wait.h"

#include <string>
#include <vector>

namespace test {

/// What the fields of a record are given by hand.
struct Filling {
    std::string text1 = {};
    std::string text2 = {};
    std::string text3 = {};
    int int1 = -1;
    int int2 = -1;
    int int3 = -1;
    bool bool1 = false;
    bool bool2 = false;
    const void* ptr1 = nullptr;
    const void* ptr2 = nullptr;
    const void* ptr3 = nullptr;
};

/// How the requests of facades travel. Those of a display have a carrier of their own.
struct WidgetCarrier {
    using Record = DisplayAPI::GuiRequestEvent;
    using Slot = void* Record::*;
    static constexpr Slot ANSWER = &Record::returnValue3;

    /// Counts how often a record has been completed.
    struct Done : Wait {
        void wakeUp() override { ++mTimes; }
        int times() const { return mTimes; }

    private:
        int mTimes = 0;
    };

    static Record* make(DisplayAPI::Widget& facade, int code, const Filling& filling, Done* done);
    static void expect(Record& record, void* variable, Slot slot) { record.*slot = variable; }
    static void carryOut(DisplayAPI::Widget& facade, Record& record);
    static void post(DisplayAPI::Widget& facade, Record* record);
    static std::vector<int> queuedCodes(const SteppedLoop& gui) { return gui.queuedCodes(); }
};

} // namespace test
