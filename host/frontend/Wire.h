#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// What a script or a page says to the program in words of the program's own: an exchange hears "4711 calls". Make one
/// to hear it; of two with the same name the one made last does. Safe from any thread.
///
/// Locks: a mutex guards all wires, a leaf. Each wire has one of its own, held while it hears, so that it is not called
/// once it has gone; others hear meanwhile. A listener must neither say anything to its own wire nor delete it, nor
/// wait for a thread that does.
class Wire {
public:
    /// Returns the sentence that says why nothing comes of the line; empty when all is well.
    using Listener = std::function<std::string(std::string_view line)>;

    /// A line that is worth a button, and what is on it, UTF-8.
    struct Offer {
        std::string label;
        std::string line;

        bool operator==(const Offer&) const = default;
    };

    Wire(std::string name, Listener listener, std::vector<Offer> offers = {});
    Wire(const Wire&) = delete;
    Wire& operator=(const Wire&) = delete;

    /// Waits until the listener returns.
    ~Wire();

    /// Other ones from now on. From any thread, the listener's included.
    void setOffers(std::vector<Offer> offers);

    // For front ends.

    /// Has the program hear a line. Returns what the listener has, what it has thrown, or that there is nobody to hear
    /// it.
    static std::string say(std::string_view name, std::string_view line);

    static bool isThere(std::string_view name);

    /// Of all that are there, in the order of the alphabet.
    static std::vector<std::string> names();
    static std::vector<Offer> offers(std::string_view name);

    /// Told each time that a wire has come or gone, or has other offers, one time after the other; may look at the
    /// wires, and must neither block nor make or delete one. An empty function removes it. Waits until the former one
    /// has returned.
    static void setListener(std::function<void()> listener);

    /// Told of each line, first that it is about to be said, then what has come of it: `refusal` is null, and then the
    /// sentence that the listener has returned. On the thread that says it; must neither block nor say anything. An
    /// empty function removes it. Waits until the former one has returned.
    using Witness = std::function<void(std::string_view name, std::string_view line, const std::string* refusal)>;
    static void setWitness(Witness witness);

private:
    struct Ear;

    static const Wire* find(std::string_view name);
    static std::shared_ptr<Ear> earOf(std::string_view name);
    static std::string tell(std::string_view name, std::string_view line);

    std::string mName;
    std::shared_ptr<Ear> mEar; ///< whoever says something holds it as long as that is heard
    std::vector<Offer> mOffers;
};

} // namespace host
