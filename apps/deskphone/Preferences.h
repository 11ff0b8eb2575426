#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace deskphone {

class StateFile;

/// What the user has set, by name, as text. Safe from any thread.
///
/// Two telephones may have the same file: each has what was there at its begin, and what it sets itself.
class Preferences {
public:
    /// Kept in that file; without one until the telephone ends.
    explicit Preferences(std::shared_ptr<StateFile> file);
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;
    ~Preferences();

    /// `otherwise` where it has never been set.
    std::string get(const std::string& name, const std::string& otherwise = {}) const;
    void set(const std::string& name, const std::string& value);

private:
    std::shared_ptr<StateFile> mFile; ///< may be null
    mutable std::mutex mMutex;        ///< guards the values, and their order in the file
    std::map<std::string, std::string> mValues;
};

} // namespace deskphone
