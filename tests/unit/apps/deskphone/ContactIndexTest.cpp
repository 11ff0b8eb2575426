#include "apps/deskphone/ContactIndex.h"

#include <gmock/gmock.h>

using deskphone::Contact;
using deskphone::ContactId;
using deskphone::ContactIndex;
using deskphone::foldedWords;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ContactIndexTest : public testing::Test {
protected:
    ContactIndexTest()
    {
        put(1, "Zoë Ångström", "+49 30 123");
        put(2, "Jean-Luc Müller", "030/4711");
        put(3, "Łukasz Wałęsa", "030 815");
        put(4, "Αλέξανδρος Παπαδόπουλος", "2026");
        put(5, "佐藤 美咲", "4712");
        put(6, "Muller Ann", "99 30 1");
    }

    void put(ContactId id, const std::string& name, const std::string& number)
    {
        index.put({.name = name, .numbers = {{"home", number}}, .id = id});
    }

    std::vector<ContactId> found(const std::string& typed) const { return index.find(typed, 100).best; }

    ContactIndex index;
};

TEST_F(ContactIndexTest, IgnoresAccentsAndCapitals)
{
    EXPECT_THAT(found("zoe"), ElementsAre(1));
    EXPECT_THAT(found("ZOË ÅNG"), ElementsAre(1));
    EXPECT_THAT(found("lukasz walesa"), ElementsAre(3));
    EXPECT_THAT(found("ΑΛΕΞ"), ElementsAre(4));
    EXPECT_THAT(found("美"), ElementsAre(5));
}

TEST_F(ContactIndexTest, FindsWhatIsTypedWithAccentsAmongThoseWithout)
{
    EXPECT_THAT(found("Müll"), ElementsAre(6, 2));
}

TEST_F(ContactIndexTest, BeginningsComeFirst)
{
    put(7, "Ana Mull", "1");
    put(8, "Emull", "1");
    EXPECT_THAT(found("mull"), ElementsAre(6, 7, 2, 8));
}

TEST_F(ContactIndexTest, WordsComeInAnyOrder)
{
    EXPECT_THAT(found("ang zo"), ElementsAre(1));
    EXPECT_THAT(found("luc jean"), ElementsAre(2));
    EXPECT_THAT(found("zoe muller"), IsEmpty());
}

TEST_F(ContactIndexTest, FindsNumbersHoweverTheyAreWritten)
{
    EXPECT_THAT(found("030 47"), ElementsAre(2));
    EXPECT_THAT(found("0304711"), ElementsAre(2));
    EXPECT_THAT(found("+4930"), ElementsAre(1));
    EXPECT_THAT(found("30"), ElementsAre(6, 3, 2, 1)) << "within";
}

TEST_F(ContactIndexTest, EverybodyIsFoundByNothing)
{
    EXPECT_THAT(found(""), ElementsAre(6, 5, 4, 3, 2, 1));
    EXPECT_THAT(found(" -"), ElementsAre(6, 5, 4, 3, 2, 1));
}

TEST_F(ContactIndexTest, CountsMoreThanItReturns)
{
    const ContactIndex::Found two = index.find("", 2);
    EXPECT_THAT(two.best, ElementsAre(6, 5));
    EXPECT_EQ(two.count, 6U);
}

TEST_F(ContactIndexTest, ForgetsWhatWasKnown)
{
    put(1, "Eve", "1");
    EXPECT_THAT(found("zoe"), IsEmpty());
    EXPECT_THAT(found("eve"), ElementsAre(1));
    index.remove(1);
    EXPECT_THAT(found("eve"), IsEmpty());
}

TEST_F(ContactIndexTest, FoldsEachWordBehindASpace)
{
    EXPECT_EQ(foldedWords("  O'Neil,  Ødegård-Straße "), " o neil odegard strasse");
    EXPECT_EQ(foldedWords("E\u0301va"), " eva") << "an accent that is a letter of its own";
    EXPECT_EQ(foldedWords("\xFF"), "");
    EXPECT_EQ(foldedWords("--"), "");
}

} // namespace
