#pragma once

#include <atomic>
#include <deque>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

/// Where the texts on the screen come from, for who writes down what the user does: what has been asked of a catalogue,
/// what it has answered, and what has become of that. It remembers nothing before it is switched on.
/// Safe from any thread. Lock: a leaf.
class TranslationMemory {
public:
    static TranslationMemory& instance();

    static bool isOn() { return gIsOn.load(std::memory_order_relaxed); }
    void switchOn();

    /// Forgets everything, and is switched off.
    void switchOff();

    /// A catalogue has this text for the key now.
    void answered(const std::string& key, const std::string& text);

    /// A text with this key is shown, filled in already; the addition stands behind it.
    void shown(const std::string& text, const std::string& key, const std::string& addition);

    /// A key that the text may come from, and what the catalogue has for it: the text, or what has been filled in.
    struct Origin {
        std::string key;
        std::string pattern;
        std::string addition; ///< at the text's end, none of the pattern's

        friend bool operator==(const Origin&, const Origin&) = default;
    };

    /// Empty where the text comes from no catalogue; several where different keys have the same text. The one that was
    /// asked for last comes first.
    std::vector<Origin> originsOf(const std::string& text) const;

    static constexpr std::size_t MOST_TEXTS = 20000;

private:
    struct Source {
        std::string key;
        std::string addition;

        friend bool operator==(const Source&, const Source&) = default;
    };

    void remember(const std::string& text, Source source);

    static inline std::atomic<bool> gIsOn{false};

    mutable std::mutex mMutex;
    std::unordered_map<std::string, std::string> mPatterns;        ///< by their keys
    std::unordered_map<std::string, std::vector<Source>> mSources; ///< by the texts, the latest last
    std::deque<std::string> mOrder;                                ///< the texts, the oldest first
};

} // namespace host
