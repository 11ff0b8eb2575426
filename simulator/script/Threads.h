#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace simulator {

/// The other threads of this process. Looked at again and again: what the kernel tells of each stays open meanwhile.
class OtherThreads {
public:
    OtherThreads() = default;
    OtherThreads(const OtherThreads&) = delete;
    OtherThreads& operator=(const OtherThreads&) = delete;
    ~OtherThreads();

    /// Whether all of them sleep and none has run while that was looked at.
    bool areAtRest();

private:
    using Naps = std::vector<std::uint64_t>;

    std::optional<Naps> naps();
    bool areKnown() const;
    void forget();
    void getToKnow();

    std::map<int, int> mStatus; ///< by thread, the caller's own included, the file that tells of it
};

} // namespace simulator
