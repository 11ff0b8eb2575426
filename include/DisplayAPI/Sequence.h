#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

namespace DisplayAPI {

/// For elements that do not remember where they stand.
struct NoHome {
    static constexpr bool IS_KEPT = false;
};

/// Pointers in an order that changes in the middle: a list's rows. Not owned.
///
/// They lie in chunks, so that a change moves a chunk's elements at the most, and a position is found by adding up the
/// chunks' sizes: at a million elements each operation takes a few microseconds at the most. `Home`, where it is given,
/// lets an element remember its chunk (`static void*& of(Element&)`), so that find() is as quick. The size of three
/// pointers. Not for several threads at once.
template <typename Element, typename Home = NoHome>
class Sequence {
public:
    Sequence() = default;
    Sequence(const Sequence&) = delete;
    Sequence& operator=(const Sequence&) = delete;
    ~Sequence() { clear(); }

    int size() const { return static_cast<int>(mSize); }
    bool empty() const { return mSize == 0; }

    /// Null outside 0 to size() - 1.
    Element* at(int index) const
    {
        if (index < 0 || index >= size())
            return nullptr;
        return elementAt(placeOf(static_cast<std::size_t>(index)));
    }

    /// The element's position; -1 where it is not there. `guess` is where it is looked for first.
    int find(const Element* element, int guess = -1) const
    {
        if (element == nullptr || empty())
            return -1;
        if (at(guess) == element)
            return guess;
        if constexpr (Home::IS_KEPT)
            return findAtHome(element);
        else
            return findOneByOne(element);
    }

    /// REQUIRES: 0 <= index <= size(), and `element`, which is not null, is not in it.
    void insert(Element* element, int index)
    {
        if (mBody == nullptr)
            mBody = std::make_unique<Body>();
        const Place place = placeToInsert(static_cast<std::size_t>(index));
        Chunk& chunk = *mBody->chunks[place.chunk];
        chunk.elements.insert(chunk.elements.begin() + static_cast<std::ptrdiff_t>(place.offset), element);
        settle(element, &chunk);
        ++mBody->sizes[place.chunk];
        ++mSize;
        if (chunk.elements.size() == MAX_CHUNK)
            split(place.chunk);
    }

    void append(Element* element) { insert(element, size()); }

    /// Takes out the element there and returns it. REQUIRES: 0 <= index < size().
    Element* erase(int index)
    {
        const Place place = placeOf(static_cast<std::size_t>(index));
        Chunk& chunk = *mBody->chunks[place.chunk];
        Element* const element = chunk.elements[place.offset];
        chunk.elements.erase(chunk.elements.begin() + static_cast<std::ptrdiff_t>(place.offset));
        settle(element, nullptr);
        --mBody->sizes[place.chunk];
        --mSize;
        join(place.chunk);
        return element;
    }

    /// Puts `element` in the place of the one there, which it returns. REQUIRES: as insert() and erase().
    Element* replace(Element* element, int index)
    {
        const Place place = placeOf(static_cast<std::size_t>(index));
        Chunk& chunk = *mBody->chunks[place.chunk];
        settle(chunk.elements[place.offset], nullptr);
        settle(element, &chunk);
        return std::exchange(chunk.elements[place.offset], element);
    }

    void clear()
    {
        if constexpr (Home::IS_KEPT)
            forEach([](Element* element) { settle(element, nullptr); });
        mBody.reset();
        mSize = 0;
    }

    /// Calls `visit` with each element in order; it must not change the sequence.
    template <typename Visit>
    void forEach(Visit visit) const
    {
        if (mBody == nullptr)
            return;
        for (const auto& chunk : mBody->chunks)
            std::for_each(chunk->elements.begin(), chunk->elements.end(), visit);
    }

    /// Calls `visit` with the elements from `index` on until it returns false, which it must not change; with none
    /// where `index` is outside 0 to size() - 1. Only the first one is looked for.
    template <typename Visit>
    void walkFrom(int index, Visit visit) const
    {
        if (index < 0 || index >= size())
            return;
        for (Place place = placeOf(static_cast<std::size_t>(index)); visit(elementAt(place)) && toNext(place);) {
        }
    }

    /// The same towards the front.
    template <typename Visit>
    void walkBackFrom(int index, Visit visit) const
    {
        if (index < 0 || index >= size())
            return;
        for (Place place = placeOf(static_cast<std::size_t>(index)); visit(elementAt(place)) && toPrevious(place);) {
        }
    }

    std::vector<Element*> copy() const
    {
        std::vector<Element*> all;
        all.reserve(mSize);
        forEach([&](Element* element) { all.push_back(element); });
        return all;
    }

private:
    static constexpr std::size_t MAX_CHUNK = 512;

    struct Chunk {
        std::size_t number = 0; ///< where it stands among the chunks
        std::vector<Element*> elements;
    };

    /// The sizes stand side by side, because they are added up all the time. No chunk is empty.
    struct Body {
        std::vector<std::unique_ptr<Chunk>> chunks;
        std::vector<std::uint32_t> sizes;
    };

    struct Place {
        std::size_t chunk;
        std::size_t offset;
    };

    static void settle(Element* element, Chunk* chunk)
    {
        if constexpr (Home::IS_KEPT)
            Home::of(*element) = chunk;
    }

    Place placeOf(std::size_t index) const
    {
        const std::vector<std::uint32_t>& sizes = mBody->sizes;
        if (index + sizes.back() >= mSize) // at the end, where most changes are
            return {sizes.size() - 1, index + sizes.back() - mSize};
        std::size_t chunk = 0;
        for (; index >= sizes[chunk]; ++chunk)
            index -= sizes[chunk];
        return {chunk, index};
    }

    Element* elementAt(const Place& place) const { return mBody->chunks[place.chunk]->elements[place.offset]; }

    /// Whether there is a next one.
    bool toNext(Place& place) const
    {
        if (++place.offset < mBody->sizes[place.chunk])
            return true;
        place.offset = 0;
        return ++place.chunk < mBody->chunks.size();
    }

    bool toPrevious(Place& place) const
    {
        if (place.offset == 0 && place.chunk == 0)
            return false;
        if (place.offset == 0)
            place.offset = mBody->sizes[--place.chunk];
        --place.offset;
        return true;
    }

    /// Behind the last element of a chunk rather than before the first one of the next.
    Place placeToInsert(std::size_t index)
    {
        if (mSize == 0)
            addChunk(0);
        if (index == 0)
            return {0, 0};
        const Place before = placeOf(index - 1);
        return {before.chunk, before.offset + 1};
    }

    int findAtHome(const Element* element) const
    {
        const auto* const home = static_cast<const Chunk*>(Home::of(*const_cast<Element*>(element)));
        if (home == nullptr || home->number >= mBody->chunks.size() || mBody->chunks[home->number].get() != home)
            return -1;
        const auto found = std::find(home->elements.begin(), home->elements.end(), element);
        const auto before = mBody->sizes.begin() + static_cast<std::ptrdiff_t>(home->number);
        return static_cast<int>(std::accumulate(mBody->sizes.begin(), before, std::size_t{0})) +
               static_cast<int>(found - home->elements.begin());
    }

    int findOneByOne(const Element* element) const
    {
        int before = 0;
        for (const auto& chunk : mBody->chunks) {
            const auto found = std::find(chunk->elements.begin(), chunk->elements.end(), element);
            if (found != chunk->elements.end())
                return before + static_cast<int>(found - chunk->elements.begin());
            before += static_cast<int>(chunk->elements.size());
        }
        return -1;
    }

    void addChunk(std::size_t number)
    {
        const auto offset = static_cast<std::ptrdiff_t>(number);
        mBody->chunks.insert(mBody->chunks.begin() + offset, std::make_unique<Chunk>());
        mBody->sizes.insert(mBody->sizes.begin() + offset, 0);
        renumber(number);
    }

    void removeChunk(std::size_t number)
    {
        const auto offset = static_cast<std::ptrdiff_t>(number);
        mBody->chunks.erase(mBody->chunks.begin() + offset);
        mBody->sizes.erase(mBody->sizes.begin() + offset);
        renumber(number);
    }

    void renumber(std::size_t from)
    {
        for (std::size_t number = from; number < mBody->chunks.size(); ++number)
            mBody->chunks[number]->number = number;
    }

    /// A last chunk stays full, since more is mostly appended; any other gives half of it away.
    void split(std::size_t number)
    {
        addChunk(number + 1);
        const bool isLast = number + 2 == mBody->chunks.size();
        moveTail(number, isLast ? MAX_CHUNK - 1 : MAX_CHUNK / 2);
    }

    /// Moves what stands from `offset` on to the front of the next chunk.
    void moveTail(std::size_t number, std::size_t offset)
    {
        Chunk& from = *mBody->chunks[number];
        Chunk& to = *mBody->chunks[number + 1];
        const auto tail = from.elements.begin() + static_cast<std::ptrdiff_t>(offset);
        std::for_each(tail, from.elements.end(), [&](Element* element) { settle(element, &to); });
        to.elements.insert(to.elements.begin(), tail, from.elements.end());
        from.elements.erase(tail, from.elements.end());
        mBody->sizes[number] = static_cast<std::uint32_t>(from.elements.size());
        mBody->sizes[number + 1] = static_cast<std::uint32_t>(to.elements.size());
    }

    /// Chunks of which few elements are left become one with their neighbour.
    void join(std::size_t number)
    {
        if (mBody->sizes[number] == 0)
            return removeChunk(number);
        if (number + 1 == mBody->chunks.size() || mBody->sizes[number] + mBody->sizes[number + 1] > MAX_CHUNK / 2)
            return;
        moveTail(number, 0);
        removeChunk(number);
    }

    std::unique_ptr<Body> mBody; ///< null until something is in it
    std::size_t mSize = 0;
    [[maybe_unused]] void* mReserved = nullptr;
};

} // namespace DisplayAPI
