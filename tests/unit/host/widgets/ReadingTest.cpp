#include "host/widgets/Reading.h"

#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <gtest/gtest.h>

namespace host {

namespace {

class ReadingTest : public testing::Test {
protected:
    ReadingTest() { KestrelApplication::setCurrentApplication(&application); }
    ~ReadingTest() override { KestrelApplication::setCurrentApplication(former); }

    bool isFromTheRight(const char* locale)
    {
        application.setLocale(ICC::fromUTF8toUNICODE(locale));
        return isReadFromTheRight();
    }

    KestrelApplication* const former = KestrelApplication::getCurrentApplication();
    KestrelApplication application;
};

TEST_F(ReadingTest, LanguagesWrittenFromTheRightAreReadFromThere)
{
    for (const char* language : {"ar", "dv", "fa", "he", "iw", "ji", "ps", "sd", "ug", "ur", "yi"})
        EXPECT_TRUE(isFromTheRight(language)) << language;
    for (const char* language : {"ara", "fas", "heb", "per", "urd"})
        EXPECT_TRUE(isFromTheRight(language)) << language;
}

TEST_F(ReadingTest, OnlyTheLanguageOfALocaleCounts)
{
    for (const char* locale : {"ar_EG", "fa-IR", "he.UTF-8", "ur@latin", "ar_", "heb_IL.utf8"})
        EXPECT_TRUE(isFromTheRight(locale)) << locale;
    for (const char* locale : {"de_AR", "en-HE", "en_ar", "_ar", "-he"})
        EXPECT_FALSE(isFromTheRight(locale)) << locale;
}

TEST_F(ReadingTest, WholeLanguageCounts)
{
    for (const char* locale : {"arn_CL", "fan_GQ", "hex", "urdu", "a", "h_IL", "", "de", "en_US", "ja"})
        EXPECT_FALSE(isFromTheRight(locale)) << locale;
}

TEST_F(ReadingTest, CaseDoesNotMatter)
{
    for (const char* locale : {"AR_EG", "Ar", "hE_il", "YI", "HEB"})
        EXPECT_TRUE(isFromTheRight(locale)) << locale;
}

TEST_F(ReadingTest, LettersAreComparedWhole)
{
    const PegChar farAway[] = {0x0100 + 'a', 0x0100 + 'r'};
    application.setLocale(PegString(farAway, 2));
    EXPECT_FALSE(isReadFromTheRight());
}

TEST_F(ReadingTest, TextsBeginAtTheRightWhereTheyAreReadFromThere)
{
    EXPECT_TRUE(isFromTheRight("he"));
    EXPECT_EQ(startAlign(), Align::RIGHT);
    EXPECT_EQ(endAlign(), Align::LEFT);
    EXPECT_FALSE(isFromTheRight("de"));
    EXPECT_EQ(startAlign(), Align::LEFT);
    EXPECT_EQ(endAlign(), Align::RIGHT);
}

TEST_F(ReadingTest, WithoutAnApplicationTextsAreReadFromTheLeft)
{
    application.setLocale(ICC::fromUTF8toUNICODE("ar"));
    KestrelApplication::setCurrentApplication(nullptr);
    EXPECT_FALSE(isReadFromTheRight());
}

} // namespace

} // namespace host
