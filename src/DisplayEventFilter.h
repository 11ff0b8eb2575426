#pragma once

#include "toolkit/PegThing.h"

#include <atomic>
#include <string>

namespace DisplayAPI {

/// The library's receiver in the toolkit: an invisible thing to which every request message is addressed. It carries
/// the request out and deletes the record.
class DisplayEventFilter : public PegThing {
public:
    /// Where `install` is true, posts go through this filter from now on, in the place of one that is installed
    /// already.
    explicit DisplayEventFilter(bool install);

    ~DisplayEventFilter() override;

    /// Where this filter is installed, posts go through the one that was installed before it and still lives, which
    /// also gets the widgets' requests that are queued for this one. Without one they run on their callers' threads
    /// from now on. The destructor does the same.
    void uninstall();

    /// A display request must carry its record: a null one is not looked for.
    int Message(const PegMessage& message) override;

    /// The installed filter, or null. From any thread.
    static DisplayEventFilter* getFilterPointer() { return mpFilter.load(std::memory_order_acquire); }

    std::string eventInfo(const PegMessage* message) const;
    std::string typeToString(int type) const;

private:
    static std::atomic<DisplayEventFilter*> mpFilter;
};

} // namespace DisplayAPI
