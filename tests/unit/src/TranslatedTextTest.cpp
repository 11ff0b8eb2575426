#include "DisplayAPI/TranslatedText.h"

#include "doubles/Mocks.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"

using DisplayAPI::TranslatedText;
using testing::Return;

TEST(TranslatedTextTest, PlainTextIsAsItIs)
{
    const TranslatedText text(std::string("Größe"));
    EXPECT_FALSE(text.isTranslated());
    EXPECT_EQ(text.text(), "Größe");
    EXPECT_EQ(text.shown(), ICC::fromUTF8toUNICODE("Größe"));
}

TEST(TranslatedTextTest, TranslationIsLookedUpEachTimeWithItsAddition)
{
    testing::StrictMock<doubles::MockTranslator> translator;
    EXPECT_CALL(translator, translate("Calls")).WillOnce(Return("Calls")).WillOnce(Return("Anrufe"));
    TranslationInfo calls("Calls", &translator, ": 3");
    const TranslatedText text(&calls);
    EXPECT_TRUE(text.isTranslated());
    EXPECT_EQ(text.text(), "Calls: 3");
    EXPECT_EQ(text.shown(), ICC::fromUTF8toUNICODE("Anrufe: 3"));
}

TEST(TranslatedTextTest, NoTranslationIsNoText)
{
    const TranslatedText text(static_cast<TranslationInfo*>(nullptr));
    EXPECT_FALSE(text.isTranslated());
    EXPECT_EQ(text.text(), "");
    EXPECT_EQ(TranslatedText().text(), "");
}
