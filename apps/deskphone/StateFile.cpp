#include "apps/deskphone/StateFile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <cstdio>
#include <fcntl.h>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace deskphone {

namespace fs = std::filesystem;

namespace {

constexpr int VERSION = VERSION_WITH_PREFERENCES;
constexpr int BUSY_MS = 500;    ///< another telephone may work with the same file
constexpr int BEGINS_MS = 3000; ///< or fill it at this moment, on a disk that is slow

constexpr const char* CALLS = R"(CREATE TABLE calls (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 3), -- missed, received, dialled, forwarded
    moment INTEGER NOT NULL,                            -- seconds since 1970
    party TEXT NOT NULL,
    number TEXT NOT NULL,
    seconds INTEGER NOT NULL,
    other TEXT NOT NULL,
    seen INTEGER NOT NULL,
    line INTEGER NOT NULL DEFAULT 0) STRICT)"; // 0 where nobody knows
constexpr const char* LINES = "ALTER TABLE calls ADD COLUMN line INTEGER NOT NULL DEFAULT 0";
constexpr const char* CONTACTS = R"(CREATE TABLE contacts (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT NOT NULL,
    numbers TEXT NOT NULL,       -- a line for each: its kind, a tab, and itself
    team INTEGER NOT NULL,       -- none, family, friends, work
    favourite INTEGER NOT NULL,
    volume INTEGER NOT NULL,     -- of ringing, 0 to 10
    birthday TEXT NOT NULL) STRICT)";
constexpr const char* PREFERENCES = "CREATE TABLE preferences (name TEXT PRIMARY KEY, value TEXT NOT NULL) STRICT";

/// A file that is none of ours; the text says why.
struct Unreadable : std::runtime_error {
    using runtime_error::runtime_error;
};

bool isOfTheFile(const SQLite::Exception& error)
{
    const int code = error.getErrorCode();
    return code == SQLITE_NOTADB || code == SQLITE_CORRUPT || code == SQLITE_ERROR;
}

void beginWith(SQLite::Database& database)
{
    if (database.execAndGet("SELECT count(*) FROM sqlite_master").getInt() != 0)
        throw Unreadable("it belongs to another program");
    database.exec(CALLS);
    database.exec(CONTACTS);
    database.exec(PREFERENCES);
}

void takeOver(SQLite::Database& database, int version)
{
    if (version > VERSION)
        throw Unreadable("it is of version " + std::to_string(version));
    if (version < VERSION_WITH_LINES)
        database.exec(LINES);
    if (version < VERSION_WITH_CONTACTS)
        database.exec(CONTACTS);
    database.exec(PREFERENCES);
}

/// In one step: another telephone may begin with the same file at the same moment.
void bringUpToDate(SQLite::Database& database)
{
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    const int version = versionOf(database);
    if (version == VERSION)
        return;
    if (version == 0)
        beginWith(database);
    else
        takeOver(database, version);
    database.exec("PRAGMA user_version = " + std::to_string(VERSION));
    transaction.commit();
}

/// A loss of power may cost the last calls, but breaks nothing: the user does not wait for the disk. While another
/// telephone has the file it stays as that one has it.
void writeQuickly(SQLite::Database& database)
{
    database.tryExec("PRAGMA journal_mode = WAL");
    database.exec("PRAGMA synchronous = NORMAL");
}

void check(SQLite::Database& database)
{
    if (const std::string fault = database.execAndGet("PRAGMA quick_check(1)").getString(); fault != "ok")
        throw Unreadable(fault);
    const int version = versionOf(database);
    const SQLite::Statement calls(database, "SELECT id, kind, moment, party, number, seconds, other, seen FROM calls");
    if (version >= VERSION_WITH_LINES)
        const SQLite::Statement lines(database, "SELECT line FROM calls");
    if (version >= VERSION_WITH_CONTACTS)
        const SQLite::Statement contacts(database,
                                         "SELECT id, name, numbers, team, favourite, volume, birthday FROM contacts");
    if (version >= VERSION_WITH_PREFERENCES)
        const SQLite::Statement preferences(database, "SELECT name, value FROM preferences");
}

bool canBeWritten(const fs::path& path)
{
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

std::unique_ptr<SQLite::Database> openedForReading(const std::string& name, int flags)
{
    auto database = std::make_unique<SQLite::Database>(name, SQLite::OPEN_READONLY | flags, BUSY_MS);
    check(*database);
    return database;
}

/// As an address, of a file that nobody changes.
std::string addressOf(const fs::path& file)
{
    std::string address = "file:";
    for (const char letter : fs::absolute(file).string())
        address += letter == '?' ? "%3f" : letter == '#' ? "%23" : letter == '%' ? "%25" : std::string(1, letter);
    return address + "?immutable=1";
}

/// Without the files beside it that a database needs where somebody may write.
std::unique_ptr<SQLite::Database> openedForReading(const fs::path& file)
{
    try {
        return openedForReading(file.string(), 0);
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() != SQLITE_CANTOPEN && error.getErrorCode() != SQLITE_READONLY)
            throw;
        return openedForReading(addressOf(file), SQLite::OPEN_URI);
    }
}

std::unique_ptr<SQLite::Database> openedForWriting(const fs::path& file)
{
    auto database =
        std::make_unique<SQLite::Database>(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, BEGINS_MS);
    bringUpToDate(*database);
    check(*database);
    writeQuickly(*database);
    database->setBusyTimeout(BUSY_MS);
    return database;
}

/// Throws Unreadable where the file is what is wrong.
std::unique_ptr<SQLite::Database> openedFile(const fs::path& file, bool isReadOnly)
{
    try {
        return isReadOnly ? openedForReading(file) : openedForWriting(file);
    } catch (const SQLite::Exception& error) {
        if (isOfTheFile(error))
            throw Unreadable(error.what());
        throw;
    }
}

fs::path freeNameFor(const fs::path& file)
{
    fs::path name = file;
    name += ".broken";
    for (int number = 2; fs::exists(name); ++number) {
        name = file;
        name += ".broken-" + std::to_string(number);
    }
    return name;
}

fs::path setAside(const fs::path& file)
{
    const fs::path name = freeNameFor(file);
    for (const char* part : {"", "-wal", "-shm", "-journal"}) {
        if (fs::exists(file.string() + part))
            fs::rename(file.string() + part, name.string() + part);
    }
    return name;
}

} // namespace

int versionOf(SQLite::Database& database)
{
    return database.execAndGet("PRAGMA user_version").getInt();
}

StateFile::StateFile(const fs::path& folder) : mFile(folder / "calls.sqlite")
{
    try {
        open(folder);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "deskphone: nothing is kept: %s: %s\n", mFile.c_str(), error.what());
    }
}

StateFile::~StateFile() = default;

void StateFile::open(const fs::path& folder)
{
    fs::create_directories(folder);
    mIsReadOnly = fs::exists(mFile) && !(canBeWritten(mFile) && canBeWritten(folder));
    try {
        mDatabase = openedFile(mFile, mIsReadOnly);
    } catch (const Unreadable& error) {
        const fs::path aside = setAside(mFile);
        std::fprintf(stderr, "deskphone: %s cannot be read and is now %s: %s\n", mFile.c_str(),
                     aside.filename().c_str(), error.what());
        mIsReadOnly = false;
        mDatabase = openedFile(mFile, mIsReadOnly);
    }
    if (mIsReadOnly)
        std::fprintf(stderr, "deskphone: nothing is kept: %s cannot be written\n", mFile.c_str());
}

bool StateFile::change(const Work& work)
{
    return !mIsReadOnly && attempt(work);
}

bool StateFile::attempt(const Work& work)
{
    const std::lock_guard lock(mMutex);
    if (mDatabase == nullptr)
        return false;
    try {
        work(*mDatabase);
        return true;
    } catch (const SQLite::Exception& error) {
        std::fprintf(stderr, "deskphone: %s: %s\n", mFile.c_str(), error.what());
        return false;
    }
}

} // namespace deskphone
