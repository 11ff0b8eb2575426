#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>

namespace SQLite {
class Database;
}

namespace deskphone {

/// What a telephone keeps for its next run: an SQLite database "calls.sqlite", with the calls, the contacts and what
/// the user has set. Safe from any thread; one works with it at a time.
///
/// What goes wrong is said on stderr, and the telephone works on without the file: it never waits for it for long, and
/// never writes over one that it cannot read. A file that cannot be written is read, and nothing is kept.
class StateFile {
public:
    /// Opens the file in `folder`, and makes both where they are not there. A file that is broken, of another program
    /// or of a later version is set aside as "calls.sqlite.broken", or with a number behind it; one of an earlier
    /// version is brought up to date.
    explicit StateFile(const std::filesystem::path& folder);
    StateFile(const StateFile&) = delete;
    StateFile& operator=(const StateFile&) = delete;
    ~StateFile();

    using Work = std::function<void(SQLite::Database&)>;

    /// Does it where the file can be written. Returns whether it has been done.
    bool change(const Work& work);

    /// Does it where there is a file. Returns whether it has been done.
    bool attempt(const Work& work);

private:
    void open(const std::filesystem::path& folder);

    std::filesystem::path mFile;
    std::mutex mMutex;                           ///< guards the database; a leaf
    std::unique_ptr<SQLite::Database> mDatabase; ///< null where there is no file to work with
    bool mIsReadOnly = false;
};

/// 1 to 3 are of telephones that kept nothing that was set, 1 and 2 of those without contacts, 1 of one that knew of no
/// lines.
int versionOf(SQLite::Database& database);

constexpr int VERSION_WITH_LINES = 2;
constexpr int VERSION_WITH_CONTACTS = 3;
constexpr int VERSION_WITH_PREFERENCES = 4;

} // namespace deskphone
