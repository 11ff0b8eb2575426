#pragma once

#include <functional>
#include <vector>

namespace host {

/// The programmable keys beside the panel, and the lamp of each. There are as many as the row made last has; none
/// without one. A row is the GUI thread's; what is static is for any thread.
///
/// Lock: a mutex guards all rows and the listener; a leaf.
class KeyLamps {
public:
    explicit KeyLamps(int keys);
    KeyLamps(const KeyLamps&) = delete;
    KeyLamps& operator=(const KeyLamps&) = delete;
    ~KeyLamps();

    int keys() const { return static_cast<int>(mLit.size()); }
    bool isLit(int key) const;

    /// REQUIRES: there is such a key.
    void light(int key, bool on);

    /// Those of the row made last, from the first key on: whether they are lit.
    static std::vector<bool> current();

    /// Told of each change, on the GUI thread; must not block. An empty function removes it.
    static void setListener(std::function<void()> listener);

private:
    std::vector<bool> mLit;
};

} // namespace host
