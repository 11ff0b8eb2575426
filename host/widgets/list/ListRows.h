#pragma once

#include <deque>

class KestrelListBoxItem;

namespace host {

/// The rows of a list in their order. Not owned. Finding a row is quick where it stands near the end at which the last
/// one was found, as it does when rows are taken out one after the other.
class ListRows {
public:
    int size() const { return static_cast<int>(mRows.size()); }

    /// Null outside 0 to size() - 1.
    KestrelListBoxItem* at(int row) const;

    /// -1 where it is not there.
    int find(const KestrelListBoxItem* item) const;

    /// REQUIRES: 0 <= row <= size().
    void insert(KestrelListBoxItem* item, int row);

    /// REQUIRES: 0 <= row < size().
    void erase(int row);

    void clear() { mRows.clear(); }

private:
    std::deque<KestrelListBoxItem*> mRows;
    mutable int mLastFound = 0;
};

} // namespace host
