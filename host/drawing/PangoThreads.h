#pragma once

#include <array>

namespace host {

/// Pango looks for fonts on threads of its own, which nobody can join. Those started while an object of this class
/// lives can be waited for nevertheless: a thread is born with the name of its parent, so the calling thread bears
/// their name meanwhile.
class PangoThreads {
public:
    PangoThreads();
    PangoThreads(const PangoThreads&) = delete;
    PangoThreads& operator=(const PangoThreads&) = delete;
    ~PangoThreads();

    /// Waits until they have ended; they do so soon after their result is there.
    static void await();

private:
    std::array<char, 16> mOwnName{};
};

} // namespace host
