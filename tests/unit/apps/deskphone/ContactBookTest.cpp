#include "apps/deskphone/ContactBook.h"

#include "apps/deskphone/ContactStore.h"
#include "apps/deskphone/PhoneBook.h"
#include "apps/deskphone/StateFile.h"
#include "unit/apps/deskphone/StateFolder.h"

#include <gmock/gmock.h>

using deskphone::Contact;
using deskphone::ContactBook;
using deskphone::ContactId;
using deskphone::ContactStore;
using deskphone::PhoneBook;
using deskphone::StateFile;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string nameOf(const std::optional<Contact>& contact)
{
    return contact ? contact->name : "nobody";
}

std::unique_ptr<ContactStore> storeIn(const test::StateFolder& folder)
{
    return std::make_unique<ContactStore>(std::make_shared<StateFile>(folder.path()));
}

TEST(ContactBookTest, BeginsWithThePhoneBook)
{
    const ContactBook book(nullptr);
    const std::vector<Contact> all = book.all();
    ASSERT_EQ(all.size(), static_cast<std::size_t>(PhoneBook::size()));
    EXPECT_EQ(all.front().name, PhoneBook::name(0));
    EXPECT_EQ(all.back().number(), PhoneBook::number(PhoneBook::size() - 1));
    EXPECT_EQ(book.size(), all.size());
}

TEST(ContactBookTest, NewContactIsTheFirstAndIsFound)
{
    ContactBook book(nullptr);
    const Contact eve = book.keep({.name = "Eve", .numbers = {{"home", "+49 30 123"}, {"work", "99"}}});
    EXPECT_EQ(book.all().front(), eve);
    EXPECT_EQ(book.find(eve.id), eve);
    EXPECT_EQ(nameOf(book.withNumber("+4930123")), "Eve");
    EXPECT_EQ(nameOf(book.withNumber("9 9")), "Eve");
    EXPECT_THAT(book.search("eve", 9).best, ElementsAre(eve));
}

TEST(ContactBookTest, ChangedContactLosesItsFormerNumber)
{
    ContactBook book(nullptr);
    Contact eve = book.keep({.name = "Eve", .numbers = {{"home", "99"}}});
    eve.numbers.front().number = "98";
    book.keep(eve);
    EXPECT_EQ(nameOf(book.withNumber("99")), "nobody");
    EXPECT_EQ(nameOf(book.withNumber("98")), "Eve");
}

TEST(ContactBookTest, ForgottenContactLeavesItsNumberToAnother)
{
    ContactBook book(nullptr);
    book.keep({.name = "Eve", .numbers = {{"home", "99"}}});
    const Contact ada = book.keep({.name = "Ada", .numbers = {{"home", "99"}}});
    EXPECT_EQ(nameOf(book.withNumber("99")), "Ada");
    book.forget(ada.id);
    EXPECT_EQ(nameOf(book.withNumber("99")), "Eve");
    EXPECT_EQ(nameOf(book.find(ada.id)), "nobody");
    EXPECT_EQ(book.search("ada", 0).count, 0U);
}

TEST(ContactBookTest, KeepsWhatBecomesOfItsContacts)
{
    const test::StateFolder folder;
    {
        ContactBook book(storeIn(folder));
        book.keep({.name = "Zoë Ångström", .numbers = {{"home", "+49 30 123"}}});
        book.forget(book.withNumber(PhoneBook::number(1))->id);
    }
    const ContactBook book(storeIn(folder));
    EXPECT_EQ(nameOf(book.withNumber("+4930123")), "Zoë Ångström");
    EXPECT_EQ(nameOf(book.withNumber(PhoneBook::number(1))), "nobody");
    EXPECT_EQ(book.all().front().name, "Zoë Ångström");
    EXPECT_EQ(book.size(), static_cast<std::size_t>(PhoneBook::size()));
}

TEST(ContactBookTest, WorksWithoutItsFile)
{
    const test::StateFolder folder;
    ContactBook book(storeIn(folder));
    book.size();
    const test::ReadOnly readOnly(folder.path());
    testing::internal::CaptureStderr();
    ContactBook reading(storeIn(folder));
    const Contact eve = reading.keep({.name = "Eve"});
    const Contact ada = reading.keep({.name = "Ada"});
    EXPECT_EQ(reading.all().front(), ada);
    EXPECT_EQ(reading.find(eve.id), eve);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("nothing is kept"));
}

TEST(ContactBookTest, TellsOfWhoComesChangesAndGoes)
{
    ContactBook book(nullptr);
    std::vector<ContactId> heard;
    book.addListener([&](ContactId id) { heard.push_back(id); });
    const Contact eve = book.keep({.name = "Eve"});
    book.keep(eve);
    book.forget(eve.id);
    EXPECT_THAT(heard, ElementsAre(eve.id, eve.id, eve.id));
}

} // namespace
