#pragma once

#include "DisplayAPI/OwnershipIfc.h"

namespace DisplayAPI {

/// Deletes its owner's widget on destruction, but only while it holds the ownership. GUI thread only.
///
/// The owner's widget pointer has to outlive the delegate: declare the delegate after it. It is not reset.
template <typename WidgetType>
class OwnershipDelegate : public OwnershipIfc {
public:
    /// `widget` is the address of the owner's widget pointer; it and the pointer behind it may be null.
    OwnershipDelegate(WidgetType** widget, bool owned) : mWidget(widget), mOwned(owned) {}
    OwnershipDelegate(const OwnershipDelegate&) = delete;
    OwnershipDelegate& operator=(const OwnershipDelegate&) = delete;

    ~OwnershipDelegate() override
    {
        if (mOwned && mWidget != nullptr)
            delete *mWidget;
    }

    void releaseOwnership() override { mOwned = false; }

    bool gainOwnership() override
    {
        mOwned = true;
        return true;
    }

    bool hasOwnership() const override { return mOwned; }

private:
    WidgetType** mWidget;
    bool mOwned;
};

} // namespace DisplayAPI
