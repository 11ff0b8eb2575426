#include "apps/deskphone/ContactStore.h"

#include "apps/deskphone/StateFile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <SQLiteCpp/VariadicBind.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace deskphone {

namespace {

constexpr const char* ALL_CONTACTS =
    "SELECT id, name, numbers, team, favourite, volume, birthday FROM contacts ORDER BY id DESC";
constexpr const char* ADD_CONTACT =
    "INSERT INTO contacts (name, numbers, team, favourite, volume, birthday, id) VALUES (?, ?, ?, ?, ?, ?, ?)";
constexpr const char* CHANGE_CONTACT =
    "UPDATE contacts SET name = ?, numbers = ?, team = ?, favourite = ?, volume = ?, "
    "birthday = ? WHERE id = ?";
constexpr const char* EVER_KEPT = "SELECT count(*) FROM sqlite_sequence WHERE name = 'contacts'";

constexpr char BEHIND_KIND = '\t', BEHIND_NUMBER = '\n';

/// What stands between has no place in them.
std::string plain(std::string text)
{
    std::ranges::replace_if(
        text, [](char letter) { return letter == BEHIND_KIND || letter == BEHIND_NUMBER; }, ' ');
    return text;
}

std::string textOf(const std::vector<ContactNumber>& numbers)
{
    std::string text;
    for (const ContactNumber& number : numbers)
        text += plain(number.kind) + BEHIND_KIND + plain(number.number) + BEHIND_NUMBER;
    return text;
}

std::vector<ContactNumber> numbersIn(std::string_view text)
{
    std::vector<ContactNumber> numbers;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find(BEHIND_NUMBER));
        const std::size_t end = std::min(line.find(BEHIND_KIND), line.size());
        numbers.push_back({std::string(line.substr(0, end)), std::string(line.substr(std::min(end + 1, line.size())))});
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return numbers;
}

Contact contactIn(SQLite::Statement& row)
{
    return {.name = row.getColumn(1).getString(),
            .numbers = numbersIn(row.getColumn(2).getText()),
            .group = static_cast<Contact::Group>(row.getColumn(3).getInt()),
            .isFavourite = row.getColumn(4).getInt() != 0,
            .volume = row.getColumn(5).getInt(),
            .birthday = row.getColumn(6).getString(),
            .id = row.getColumn(0).getInt64()};
}

void put(SQLite::Statement& row, const Contact& contact)
{
    SQLite::bind(row, contact.name, textOf(contact.numbers), static_cast<int>(contact.group),
                 contact.isFavourite ? 1 : 0, contact.volume, contact.birthday);
    if (constexpr int ID = 7; contact.id != 0)
        row.bind(ID, contact.id);
    row.exec();
    row.reset();
}

/// In one step: another telephone may begin with the same file at the same moment.
void beginWith(SQLite::Database& database, const std::function<std::vector<Contact>()>& first)
{
    if (database.execAndGet(EVER_KEPT).getInt() != 0)
        return;
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    if (database.execAndGet(EVER_KEPT).getInt() != 0)
        return;
    SQLite::Statement row(database, ADD_CONTACT);
    std::vector<Contact> contacts = first();
    std::ranges::reverse(contacts); // ids rise with time
    for (const Contact& contact : contacts)
        put(row, contact);
    transaction.commit();
}

} // namespace

ContactStore::ContactStore(std::shared_ptr<StateFile> file) : mFile(std::move(file)) {}

std::vector<Contact> ContactStore::contacts(const std::function<std::vector<Contact>()>& first)
{
    mFile->change([&](SQLite::Database& database) { beginWith(database, first); });
    std::vector<Contact> all;
    const bool areKept = mFile->attempt([&](SQLite::Database& database) {
        if (versionOf(database) < VERSION_WITH_CONTACTS)
            return void(all = first());
        SQLite::Statement row(database, ALL_CONTACTS);
        while (row.executeStep())
            all.push_back(contactIn(row));
    });
    return areKept ? all : first();
}

void ContactStore::add(Contact& contact)
{
    contact.id = 0;
    mFile->change([&](SQLite::Database& database) {
        SQLite::Statement row(database, ADD_CONTACT);
        put(row, contact);
        contact.id = database.getLastInsertRowid();
    });
}

void ContactStore::change(const Contact& contact)
{
    mFile->change([&](SQLite::Database& database) {
        SQLite::Statement row(database, CHANGE_CONTACT);
        put(row, contact);
    });
}

void ContactStore::forget(ContactId contact)
{
    mFile->change([&](SQLite::Database& database) {
        SQLite::Statement row(database, "DELETE FROM contacts WHERE id = ?");
        row.bind(1, contact);
        row.exec();
    });
}

} // namespace deskphone
