#include "host/widgets/list/ListRows.h"

#include <algorithm>

namespace host {

KestrelListBoxItem* ListRows::at(int row) const
{
    return row >= 0 && row < size() ? mRows[static_cast<std::size_t>(row)] : nullptr;
}

int ListRows::find(const KestrelListBoxItem* item) const
{
    for (int guess : {mLastFound, mLastFound - 1, size() - 1}) {
        if (item != nullptr && at(guess) == item)
            return mLastFound = guess;
    }
    const auto found = std::find(mRows.begin(), mRows.end(), item);
    if (found == mRows.end())
        return -1;
    return mLastFound = static_cast<int>(found - mRows.begin());
}

void ListRows::insert(KestrelListBoxItem* item, int row)
{
    mRows.insert(mRows.begin() + row, item);
}

void ListRows::erase(int row)
{
    mRows.erase(mRows.begin() + row);
}

} // namespace host
