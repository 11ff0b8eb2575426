#pragma once

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace DisplayAPI {

class Displayable;

/// Goes over the entries that a display's stack has when it begins, front to back, while what is done to one of them
/// may take it, or others, off the stack. Those that are deleted meanwhile are passed over.
///
///     for (Displayable* entry : StackWalk(mItemList, mWalks))
class StackWalk {
public:
    enum Dismissed { VISITED, PASSED_OVER };

    /// `underWay` are the walks over the same stack; the display tells each of them who leaves.
    StackWalk(const std::vector<Displayable*>& stack, std::vector<StackWalk*>& underWay, Dismissed dismissed = VISITED)
        : mEntries(stack), mUnderWay(underWay), mDismissed(dismissed)
    {
        mUnderWay.push_back(this);
    }
    StackWalk(const StackWalk&) = delete;
    StackWalk& operator=(const StackWalk&) = delete;
    ~StackWalk() { mUnderWay.pop_back(); }

    class Iterator {
    public:
        explicit Iterator(StackWalk& walk) : mWalk(walk) {}

        Displayable* operator*() const { return mWalk.mEntries[mWalk.mPosition]; }
        Iterator& operator++()
        {
            ++mWalk.mPosition;
            return *this;
        }
        /// Looks at every entry as late as can be: right before it is visited.
        bool operator==(std::default_sentinel_t) const { return mWalk.isOver(); }

    private:
        StackWalk& mWalk;
    };

    Iterator begin() { return Iterator(*this); }
    std::default_sentinel_t end() const { return {}; }

    /// Where on the stack the entry that is visited was when the walk began.
    std::size_t position() const { return mPosition; }

    void isDismissed(Displayable* entry)
    {
        if (mDismissed == PASSED_OVER)
            isDeleted(entry);
    }

    void isDeleted(Displayable* entry) { std::replace(mEntries.begin(), mEntries.end(), entry, GONE); }

private:
    static constexpr Displayable* GONE = nullptr;

    bool isOver()
    {
        while (mPosition < mEntries.size() && mEntries[mPosition] == GONE)
            ++mPosition;
        return mPosition == mEntries.size();
    }

    std::vector<Displayable*> mEntries;
    std::vector<StackWalk*>& mUnderWay;
    std::size_t mPosition = 0;
    Dismissed mDismissed;
};

/// For as long as it lives, nobody comes back to the screen who lay under one that closes itself.
class StackChange {
public:
    explicit StackChange(bool& isUnderWay) : mIsUnderWay(isUnderWay), mBefore(std::exchange(isUnderWay, true)) {}
    StackChange(const StackChange&) = delete;
    StackChange& operator=(const StackChange&) = delete;
    ~StackChange() { mIsUnderWay = mBefore; }

private:
    bool& mIsUnderWay;
    bool mBefore;
};

} // namespace DisplayAPI
