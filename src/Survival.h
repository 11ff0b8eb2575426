#pragma once

namespace DisplayAPI {

/// Whether an object is there still after a call by which its application may have deleted it: whoever observes the
/// screen may. The object tells its end, on the same thread. Without a display several threads carry out their own
/// calls.
class Survival {
public:
    explicit Survival(const void* object) : mObject(object), mOuter(top()) { top() = this; }
    Survival(const Survival&) = delete;
    Survival& operator=(const Survival&) = delete;
    ~Survival() { top() = mOuter; }

    explicit operator bool() const { return mObject != nullptr; }

    static void end(const void* object)
    {
        for (Survival* each = top(); each != nullptr; each = each->mOuter)
            if (each->mObject == object)
                each->mObject = nullptr;
    }

private:
    /// The innermost of the calls that are under way on this thread.
    static Survival*& top()
    {
        static thread_local Survival* innermost = nullptr;
        return innermost;
    }

    const void* mObject;
    Survival* const mOuter;
};

} // namespace DisplayAPI
