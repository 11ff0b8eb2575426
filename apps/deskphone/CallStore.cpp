#include "apps/deskphone/CallStore.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <SQLiteCpp/VariadicBind.h>
#include <sqlite3.h>

#include <cstdio>
#include <stdexcept>

namespace deskphone {

namespace fs = std::filesystem;

namespace {

constexpr int VERSION = 1;
constexpr int BUSY_MS = 500; ///< another telephone may work with the same file

constexpr const char* TABLE = R"(CREATE TABLE calls (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 3), -- missed, received, dialled, forwarded
    moment INTEGER NOT NULL,                            -- seconds since 1970
    party TEXT NOT NULL,
    number TEXT NOT NULL,
    seconds INTEGER NOT NULL,
    other TEXT NOT NULL,
    seen INTEGER NOT NULL) STRICT)";
constexpr const char* ALL = "SELECT id, kind, moment, party, number, seconds, other, seen FROM calls ORDER BY id DESC";
constexpr const char* ADD =
    "INSERT INTO calls (kind, moment, party, number, seconds, other, seen) VALUES (?, ?, ?, ?, ?, ?, ?)";

/// A file that is none of ours; the text says why.
struct Unreadable : std::runtime_error {
    using runtime_error::runtime_error;
};

bool isOfTheFile(const SQLite::Exception& error)
{
    const int code = error.getErrorCode();
    return code == SQLITE_NOTADB || code == SQLITE_CORRUPT || code == SQLITE_ERROR;
}

void makeTable(SQLite::Database& database)
{
    if (database.execAndGet("SELECT count(*) FROM sqlite_master").getInt() != 0)
        throw Unreadable("it belongs to another program");
    SQLite::Transaction transaction(database);
    database.exec(TABLE);
    database.exec("PRAGMA user_version = " + std::to_string(VERSION));
    transaction.commit();
}

/// A loss of power may cost the last calls, but breaks nothing: the user does not wait for the disk.
void writeQuickly(SQLite::Database& database)
{
    database.exec("PRAGMA journal_mode = WAL");
    database.exec("PRAGMA synchronous = NORMAL");
}

void prepare(SQLite::Database& database)
{
    const int version = database.execAndGet("PRAGMA user_version").getInt();
    if (version == 0)
        makeTable(database);
    else if (version != VERSION)
        throw Unreadable("it is of version " + std::to_string(version));
    if (const std::string fault = database.execAndGet("PRAGMA quick_check(1)").getString(); fault != "ok")
        throw Unreadable(fault);
    const SQLite::Statement allColumnsAreThere(database, ALL);
    writeQuickly(database);
}

/// Throws Unreadable where the file is what is wrong.
std::unique_ptr<SQLite::Database> openedFile(const fs::path& file)
{
    try {
        auto database =
            std::make_unique<SQLite::Database>(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, BUSY_MS);
        prepare(*database);
        return database;
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
    try {
        mDatabase = openedFile(mFile);
    } catch (const Unreadable& error) {
        const fs::path aside = setAside(mFile);
        std::fprintf(stderr, "deskphone: %s cannot be read and is now %s: %s\n", mFile.c_str(),
                     aside.filename().c_str(), error.what());
        mDatabase = openedFile(mFile);
    }
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
        SQLite::Statement row(database, ALL);
        while (row.executeStep())
            all.push_back(callIn(row));
    });
    return all;
}

void CallStore::add(PastCall& call)
{
    attempt([&](SQLite::Database& database) {
        SQLite::Statement row(database, ADD);
        SQLite::bind(row, static_cast<int>(call.kind), static_cast<std::int64_t>(call.moment), call.party, call.number,
                     call.seconds, call.other, call.isSeen ? 1 : 0);
        row.exec();
        call.id = database.getLastInsertRowid();
    });
}

void CallStore::forget(const PastCall& call)
{
    attempt([&](SQLite::Database& database) {
        SQLite::Statement row(database, "DELETE FROM calls WHERE id = ?");
        row.bind(1, call.id);
        row.exec();
    });
}

void CallStore::seeAll()
{
    attempt([](SQLite::Database& database) { database.exec("UPDATE calls SET seen = 1 WHERE seen = 0"); });
}

} // namespace deskphone
