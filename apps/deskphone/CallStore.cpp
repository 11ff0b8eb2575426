#include "apps/deskphone/CallStore.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <SQLiteCpp/VariadicBind.h>
#include <sqlite3.h>

#include <cstdio>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

namespace deskphone {

namespace fs = std::filesystem;

namespace {

constexpr int VERSION = 2;
constexpr int BUSY_MS = 500; ///< another telephone may work with the same file

constexpr const char* TABLE = R"(CREATE TABLE calls (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 3), -- missed, received, dialled, forwarded
    moment INTEGER NOT NULL,                            -- seconds since 1970
    party TEXT NOT NULL,
    number TEXT NOT NULL,
    seconds INTEGER NOT NULL,
    other TEXT NOT NULL,
    seen INTEGER NOT NULL,
    line INTEGER NOT NULL DEFAULT 0) STRICT)"; // 0 where nobody knows
constexpr const char* ALL =
    "SELECT id, kind, moment, party, number, seconds, other, seen, line FROM calls ORDER BY id DESC";
constexpr const char* ALL_OF_VERSION_1 =
    "SELECT id, kind, moment, party, number, seconds, other, seen, 0 FROM calls ORDER BY id DESC";
constexpr const char* FROM_VERSION_1 = "ALTER TABLE calls ADD COLUMN line INTEGER NOT NULL DEFAULT 0";
constexpr const char* ADD =
    "INSERT INTO calls (kind, moment, party, number, seconds, other, seen, line) VALUES (?, ?, ?, ?, ?, ?, ?, ?)";

/// A file that is none of ours; the text says why.
struct Unreadable : std::runtime_error {
    using runtime_error::runtime_error;
};

bool isOfTheFile(const SQLite::Exception& error)
{
    const int code = error.getErrorCode();
    return code == SQLITE_NOTADB || code == SQLITE_CORRUPT || code == SQLITE_ERROR;
}

int versionOf(SQLite::Database& database)
{
    return database.execAndGet("PRAGMA user_version").getInt();
}

void makeTable(SQLite::Database& database)
{
    if (database.execAndGet("SELECT count(*) FROM sqlite_master").getInt() != 0)
        throw Unreadable("it belongs to another program");
    database.exec(TABLE);
}

/// In one step: another telephone may begin with the same file at the same moment.
void bringUpToDate(SQLite::Database& database)
{
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    const int version = versionOf(database);
    if (version == VERSION)
        return;
    if (version == 0)
        makeTable(database);
    else if (version == 1)
        database.exec(FROM_VERSION_1);
    else
        throw Unreadable("it is of version " + std::to_string(version));
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

const char* allOf(SQLite::Database& database)
{
    return versionOf(database) == 1 ? ALL_OF_VERSION_1 : ALL;
}

void check(SQLite::Database& database)
{
    if (const std::string fault = database.execAndGet("PRAGMA quick_check(1)").getString(); fault != "ok")
        throw Unreadable(fault);
    const SQLite::Statement allColumnsAreThere(database, allOf(database));
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
        std::make_unique<SQLite::Database>(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, BUSY_MS);
    bringUpToDate(*database);
    check(*database);
    writeQuickly(*database);
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

PastCall callIn(SQLite::Statement& row)
{
    return {.kind = static_cast<PastCall::Kind>(row.getColumn(1).getInt()),
            .moment = static_cast<std::time_t>(row.getColumn(2).getInt64()),
            .party = row.getColumn(3).getString(),
            .number = row.getColumn(4).getString(),
            .seconds = row.getColumn(5).getInt(),
            .other = row.getColumn(6).getString(),
            .line = row.getColumn(8).getInt(),
            .isSeen = row.getColumn(7).getInt() != 0,
            .id = row.getColumn(0).getInt64()};
}

} // namespace

CallStore::CallStore(const fs::path& folder) : mFile(folder / "calls.sqlite")
{
    try {
        open(folder);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "deskphone: calls are not kept: %s: %s\n", mFile.c_str(), error.what());
    }
}

CallStore::~CallStore() = default;

void CallStore::open(const fs::path& folder)
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
        std::fprintf(stderr, "deskphone: calls are not kept: %s cannot be written\n", mFile.c_str());
}

void CallStore::change(const std::function<void(SQLite::Database&)>& work)
{
    if (!mIsReadOnly)
        attempt(work);
}

void CallStore::attempt(const std::function<void(SQLite::Database&)>& work)
{
    if (mDatabase == nullptr)
        return;
    try {
        work(*mDatabase);
    } catch (const SQLite::Exception& error) {
        std::fprintf(stderr, "deskphone: %s: %s\n", mFile.c_str(), error.what());
    }
}

std::deque<PastCall> CallStore::calls()
{
    std::deque<PastCall> all;
    attempt([&](SQLite::Database& database) {
        SQLite::Statement row(database, allOf(database));
        while (row.executeStep())
            all.push_back(callIn(row));
    });
    return all;
}

void CallStore::add(PastCall& call)
{
    change([&](SQLite::Database& database) {
        SQLite::Statement row(database, ADD);
        SQLite::bind(row, static_cast<int>(call.kind), static_cast<std::int64_t>(call.moment), call.party, call.number,
                     call.seconds, call.other, call.isSeen ? 1 : 0, call.line);
        row.exec();
        call.id = database.getLastInsertRowid();
    });
}

void CallStore::forget(const PastCall& call)
{
    change([&](SQLite::Database& database) {
        SQLite::Statement row(database, "DELETE FROM calls WHERE id = ?");
        row.bind(1, call.id);
        row.exec();
    });
}

void CallStore::seeAll()
{
    change([](SQLite::Database& database) { database.exec("UPDATE calls SET seen = 1 WHERE seen = 0"); });
}

} // namespace deskphone
