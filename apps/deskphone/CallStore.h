#pragma once

#include "apps/deskphone/PastCall.h"

#include <deque>
#include <filesystem>
#include <memory>

namespace deskphone {

class StateFile;

/// Past calls in a file, for the next run. On one thread at a time.
///
/// Two telephones may have the same file: each has what was there at its begin, and adds its own.
class CallStore {
public:
    /// In the file of that folder.
    explicit CallStore(const std::filesystem::path& folder);
    explicit CallStore(std::shared_ptr<StateFile> file);
    CallStore(const CallStore&) = delete;
    CallStore& operator=(const CallStore&) = delete;
    ~CallStore();

    /// The latest first.
    std::deque<PastCall> calls();

    /// Gives the call its id.
    void add(PastCall& call);
    void forget(const PastCall& call);
    void seeAll();

private:
    std::shared_ptr<StateFile> mFile; ///< never null
};

} // namespace deskphone
