#include "host/utilities/TranslationMemory.h"

#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using host::TranslationMemory;
using testing::ElementsAre;
using testing::IsEmpty;
using Origin = TranslationMemory::Origin;

/// A catalogue that fills in a 3.
class Filling : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override
    {
        TranslationMemory::instance().answered(key, "%1 Anrufe");
        return "3 Anrufe";
    }
};

class TranslationMemoryTest : public testing::Test {
protected:
    TranslationMemoryTest() { memory.switchOn(); }
    ~TranslationMemoryTest() override { memory.switchOff(); }

    TranslationMemory& memory = TranslationMemory::instance();
};

TEST_F(TranslationMemoryTest, TextComesFromTheKeyThatWasAskedFor)
{
    memory.answered("Menu.contacts", "Kontakte");
    EXPECT_THAT(memory.originsOf("Kontakte"), ElementsAre(Origin{"Menu.contacts", "Kontakte", ""}));
    EXPECT_THAT(memory.originsOf("Ada Byron"), IsEmpty());
}

TEST_F(TranslationMemoryTest, KeysWithTheSameTextAreToldTheLatestFirst)
{
    memory.answered("Menu.contacts", "Kontakte");
    memory.answered("Contacts.title", "Kontakte");
    EXPECT_THAT(memory.originsOf("Kontakte"),
                ElementsAre(Origin{"Contacts.title", "Kontakte", ""}, Origin{"Menu.contacts", "Kontakte", ""}));
    memory.answered("Menu.contacts", "Kontakte");
    EXPECT_EQ(memory.originsOf("Kontakte").front().key, "Menu.contacts");
}

TEST_F(TranslationMemoryTest, FilledTextHasItsPattern)
{
    Filling catalogue;
    EXPECT_EQ(TranslationInfo("Calls", &catalogue, " heute").getCompleteString(), "3 Anrufe heute");
    EXPECT_THAT(memory.originsOf("3 Anrufe"), ElementsAre(Origin{"Calls", "%1 Anrufe", ""}));
    EXPECT_THAT(memory.originsOf("3 Anrufe heute"), ElementsAre(Origin{"Calls", "%1 Anrufe", " heute"}));
}

TEST_F(TranslationMemoryTest, OldestTextsGoWhereThereAreTooMany)
{
    memory.answered("first", "First");
    for (std::size_t i = 0; i < TranslationMemory::MOST_TEXTS; ++i)
        memory.shown("text " + std::to_string(i), "first", "");
    EXPECT_THAT(memory.originsOf("First"), IsEmpty());
    EXPECT_EQ(memory.originsOf("text 0").size(), 1u);
}

TEST_F(TranslationMemoryTest, NothingIsRememberedWhileItIsOff)
{
    memory.switchOff();
    Filling catalogue;
    TranslationInfo("Calls", &catalogue).getString();
    memory.switchOn();
    EXPECT_THAT(memory.originsOf("3 Anrufe"), IsEmpty());
}

} // namespace
