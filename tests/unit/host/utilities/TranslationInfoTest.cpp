#include "utilities/TranslationInfo.h"

#include "utilities/TranslatorIfc.h"

#include <gtest/gtest.h>

namespace {

class Translator : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return language + ":" + key; }

    std::string language = "de";
};

TEST(TranslationInfo, WithoutTranslatorTheTextIsTheKey)
{
    const TranslationInfo info("Menu.Title", nullptr, " 7");
    EXPECT_EQ(info.getString(), "Menu.Title");
    EXPECT_EQ(info.getCompleteString(), "Menu.Title 7");
}

TEST(TranslationInfo, TextIsLookedUpEachTime)
{
    Translator translator;
    const TranslationInfo info("Menu.Title", &translator);
    EXPECT_EQ(info.getString(), "de:Menu.Title");
    translator.language = "fr";
    EXPECT_EQ(info.getString(), "fr:Menu.Title");
}

TEST(TranslationInfo, AdditionStandsBehindTheTranslatedText)
{
    Translator translator;
    const TranslationInfo info("Line", &translator, " 3");
    EXPECT_EQ(info.getString(), "de:Line");
    EXPECT_EQ(info.getCompleteString(), "de:Line 3");
    EXPECT_EQ(info.key(), "Line");
}

} // namespace
