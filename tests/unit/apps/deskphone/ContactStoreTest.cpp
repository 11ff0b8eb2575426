#include "apps/deskphone/ContactStore.h"

#include "apps/deskphone/CallStore.h"
#include "apps/deskphone/StateFile.h"
#include "unit/apps/deskphone/StateFolder.h"

#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>

#include <thread>

using deskphone::CallStore;
using deskphone::Contact;
using deskphone::ContactStore;
using deskphone::StateFile;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ContactStoreTest : public testing::Test {
protected:
    static std::vector<Contact> first() { return {{.name = "Zoë", .id = 2}, {.name = "Ada", .id = 1}}; }

    std::vector<std::string> names()
    {
        std::vector<std::string> all;
        for (const Contact& contact : store().contacts(first))
            all.push_back(contact.name);
        return all;
    }

    ContactStore store() const { return ContactStore(std::make_shared<StateFile>(folder.path())); }

    SQLite::Database database() const
    {
        std::filesystem::create_directories(folder.path());
        return {(folder.path() / "calls.sqlite").string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};
    }

    /// As a telephone has left it that knew of no contacts.
    void writeVersion2()
    {
        SQLite::Database file = database();
        file.exec("CREATE TABLE calls (id INTEGER PRIMARY KEY AUTOINCREMENT, kind INTEGER NOT NULL CHECK (kind BETWEEN "
                  "0 AND 3), moment INTEGER NOT NULL, party TEXT NOT NULL, number TEXT NOT NULL, seconds INTEGER NOT "
                  "NULL, other TEXT NOT NULL, seen INTEGER NOT NULL, line INTEGER NOT NULL DEFAULT 0) STRICT");
        file.exec("INSERT INTO calls (kind, moment, party, number, seconds, other, seen, line) VALUES (0, 1000000, "
                  "'Ada', '4711', 0, '', 0, 2)");
        file.exec("PRAGMA user_version = 2");
    }

    const test::StateFolder folder;
};

TEST_F(ContactStoreTest, BeginsWithThoseWhoAreThereAtFirst)
{
    EXPECT_THAT(names(), ElementsAre("Zoë", "Ada"));
}

TEST_F(ContactStoreTest, KeepsEverythingOfAContact)
{
    Contact zoe{.name = "Zoë \"'; DROP TABLE contacts",
                .numbers = {{"home", "+49 30 123"}, {"", "4711"}, {"work", ""}},
                .group = Contact::Group::FRIENDS,
                .isFavourite = true,
                .volume = 10,
                .birthday = "29.02.1996"};
    ContactStore first = store();
    first.contacts([] { return std::vector<Contact>(); });
    first.add(zoe);
    EXPECT_GT(zoe.id, 0);
    EXPECT_THAT(store().contacts({}), ElementsAre(zoe));
}

TEST_F(ContactStoreTest, WhatStandsBetweenNumbersIsNoPartOfThem)
{
    ContactStore first = store();
    first.contacts([] { return std::vector<Contact>(); });
    Contact zoe{.name = "Zoë", .numbers = {{"my\thome", "47\n11"}}};
    first.add(zoe);
    EXPECT_THAT(store().contacts({}).front().numbers, ElementsAre(deskphone::ContactNumber{"my home", "47 11"}));
}

TEST_F(ContactStoreTest, LatestContactIsTheFirst)
{
    ContactStore before = store();
    before.contacts(first);
    Contact eve{.name = "Eve"};
    before.add(eve);
    EXPECT_THAT(names(), ElementsAre("Eve", "Zoë", "Ada"));
}

TEST_F(ContactStoreTest, ChangesAndForgetsOneContactAndNoOther)
{
    ContactStore before = store();
    before.contacts(first);
    before.change({.name = "Lady Ada", .id = 1});
    EXPECT_THAT(names(), ElementsAre("Zoë", "Lady Ada"));
    before.forget(2);
    EXPECT_THAT(names(), ElementsAre("Lady Ada"));
}

TEST_F(ContactStoreTest, NobodyComesBackWhenAllAreForgotten)
{
    ContactStore before = store();
    before.contacts(first);
    before.forget(1);
    before.forget(2);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ContactStoreTest, TakesOverTheCallsOfAFileWithoutContacts)
{
    writeVersion2();
    EXPECT_THAT(names(), ElementsAre("Zoë", "Ada"));
    CallStore calls(folder.path());
    ASSERT_EQ(calls.calls().size(), 1U);
    EXPECT_EQ(calls.calls().front().line, 2);
}

TEST_F(ContactStoreTest, ShowsTheContactsOfAFileThatCannotBeWritten)
{
    store().contacts(first);
    ContactStore other = store();
    other.change({.name = "Lady Ada", .id = 1});
    const test::ReadOnly readOnly(folder.path());
    testing::internal::CaptureStderr();
    ContactStore reading = store();
    Contact eve{.name = "Eve"};
    reading.add(eve);
    EXPECT_EQ(eve.id, 0);
    EXPECT_THAT(names(), ElementsAre("Zoë", "Lady Ada"));
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("nothing is kept"));
}

TEST_F(ContactStoreTest, BeginsAnewWhereAFileWithoutContactsCannotBeWritten)
{
    writeVersion2();
    const test::ReadOnly readOnly(folder.path());
    testing::internal::CaptureStderr();
    EXPECT_THAT(names(), ElementsAre("Zoë", "Ada"));
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("nothing is kept"));
}

TEST_F(ContactStoreTest, TelephonesThatBeginAtOnceBeginWithTheSame)
{
    std::vector<std::thread> telephones;
    for (int i = 0; i < 4; ++i)
        telephones.emplace_back([this] { EXPECT_THAT(names(), ElementsAre("Zoë", "Ada")); });
    for (std::thread& telephone : telephones)
        telephone.join();
    EXPECT_THAT(names(), ElementsAre("Zoë", "Ada"));
}

} // namespace
