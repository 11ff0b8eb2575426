#pragma once

#include <functional>

namespace host {

/// What a telephone shows of its calls beside its panel: the lamp on its case, and its handset. The program says so,
/// front ends show it. Safe from any thread.
///
/// Lock: a mutex guards what is shown and the listener; a leaf.
struct CallSigns {
    enum class Lamp { DARK, LIT, BLINKS };

    Lamp lamp = Lamp::DARK;
    bool isLifted = false; ///< the handset

    bool operator==(const CallSigns&) const = default;

    static void show(CallSigns signs);
    static CallSigns current();

    /// Told of each change, without the lock; must not block. An empty function removes it.
    static void setListener(std::function<void()> listener);
};

} // namespace host
