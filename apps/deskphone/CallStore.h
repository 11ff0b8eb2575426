#pragma once

#include "apps/deskphone/PastCall.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace SQLite {
class Database;
}

namespace deskphone {

/// Past calls in a file, for the next run: an SQLite database "calls.sqlite". On one thread at a time.
///
/// What goes wrong is said on stderr, and the telephone works on without the file: it never waits for it for long, and
/// never writes over one that it cannot read. Of a file that cannot be written it has the calls, and keeps no others.
/// Two telephones may have the same file: each has what was there at its begin, and adds its own.
class CallStore {
public:
    /// Opens the file in `folder`, and makes both where they are not there. A file that is broken, of another program
    /// or of a later version is set aside as "calls.sqlite.broken", or with a number behind it.
    explicit CallStore(const std::filesystem::path& folder);
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
    void open(const std::filesystem::path& folder);
    void change(const std::function<void(SQLite::Database&)>& work);
    void attempt(const std::function<void(SQLite::Database&)>& work);

    std::filesystem::path mFile;
    std::unique_ptr<SQLite::Database> mDatabase; ///< null where there is no file to work with
    bool mIsReadOnly = false;
};

} // namespace deskphone
