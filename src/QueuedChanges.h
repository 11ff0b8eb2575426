#pragma once

#include <algorithm>
#include <memory_resource>
#include <unordered_map>
#include <vector>

namespace DisplayAPI {

class Item;

/// Where the queued notifications of each item stand in a queue, in its order: an item is looked up without walking the
/// queue. `Place` names an entry, which stays where it is.
template <typename Place>
class QueuedChanges {
public:
    using Places = std::pmr::vector<Place>;

    /// The entries of `item`. They change with the next call.
    const Places& of(Item* item) const
    {
        static const auto* const none = new Places; // never destroyed, as the queue
        const auto found = mPlaces.find(item);
        return found != mPlaces.end() ? found->second : *none;
    }

    /// `place` is behind all that are known.
    void add(Item* item, Place place) { mPlaces[item].push_back(place); }

    void remove(Item* item, Place place)
    {
        const auto found = mPlaces.find(item);
        Places& places = found->second;
        places.erase(std::find(places.begin(), places.end(), place));
        if (places.empty())
            mPlaces.erase(found);
    }

private:
    /// Keeps what it has had, so that posting and delivering do not go to the heap each time.
    std::pmr::unsynchronized_pool_resource mMemory;
    std::pmr::unordered_map<Item*, Places> mPlaces{&mMemory};
};

} // namespace DisplayAPI
