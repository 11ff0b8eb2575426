#include "apps/deskphone/CallStore.h"

#include "apps/deskphone/StateFile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/VariadicBind.h>

#include <utility>

namespace deskphone {

namespace {

constexpr const char* ALL =
    "SELECT id, kind, moment, party, number, seconds, other, seen, line FROM calls ORDER BY id DESC";
constexpr const char* ALL_WITHOUT_LINES =
    "SELECT id, kind, moment, party, number, seconds, other, seen, 0 FROM calls ORDER BY id DESC";
constexpr const char* ADD =
    "INSERT INTO calls (kind, moment, party, number, seconds, other, seen, line) VALUES (?, ?, ?, ?, ?, ?, ?, ?)";

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

CallStore::CallStore(const std::filesystem::path& folder) : CallStore(std::make_shared<StateFile>(folder)) {}

CallStore::CallStore(std::shared_ptr<StateFile> file) : mFile(std::move(file)) {}

CallStore::~CallStore() = default;

std::deque<PastCall> CallStore::calls()
{
    std::deque<PastCall> all;
    mFile->attempt([&](SQLite::Database& database) {
        SQLite::Statement row(database, versionOf(database) < VERSION_WITH_LINES ? ALL_WITHOUT_LINES : ALL);
        while (row.executeStep())
            all.push_back(callIn(row));
    });
    return all;
}

void CallStore::add(PastCall& call)
{
    mFile->change([&](SQLite::Database& database) {
        SQLite::Statement row(database, ADD);
        SQLite::bind(row, static_cast<int>(call.kind), static_cast<std::int64_t>(call.moment), call.party, call.number,
                     call.seconds, call.other, call.isSeen ? 1 : 0, call.line);
        row.exec();
        call.id = database.getLastInsertRowid();
    });
}

void CallStore::forget(const PastCall& call)
{
    mFile->change([&](SQLite::Database& database) {
        SQLite::Statement row(database, "DELETE FROM calls WHERE id = ?");
        row.bind(1, call.id);
        row.exec();
    });
}

void CallStore::seeAll()
{
    mFile->change([](SQLite::Database& database) { database.exec("UPDATE calls SET seen = 1 WHERE seen = 0"); });
}

} // namespace deskphone
