#include "host/languages/CompiledTexts.h"

#include "host/languages/Msgfmt.h"

#include <gmock/gmock.h>
#include <memory>
#include <random>
#include <vector>

namespace {

using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

const std::string HEADER = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n\n";
const std::string TWO_TEXTS =
    HEADER + "msgid \"Menu.title\"\nmsgstr \"Menü\"\n\nmsgid \"Menu.exit\"\nmsgstr \"Ende\"\n";

std::string compiled(const std::string& source)
{
    std::string bytes;
    EXPECT_EQ(host::compileWithMsgfmt(source, bytes), "");
    return bytes;
}

/// Of bytes behind which nothing follows: a sanitizer sees each step beyond.
std::optional<host::Texts> textsOf(const std::string& bytes)
{
    const auto exact = std::make_unique<char[]>(bytes.size());
    bytes.copy(exact.get(), bytes.size());
    return host::readCompiledTexts({exact.get(), bytes.size()});
}

TEST(CompiledTextsTest, TextsStandUnderTheirKeysAndTheHeaderUnderTheEmptyOne)
{
    EXPECT_THAT(textsOf(compiled(TWO_TEXTS)),
                testing::Optional(UnorderedElementsAre(Pair("", "Content-Type: text/plain; charset=UTF-8\n"),
                                                       Pair("Menu.title", "Menü"), Pair("Menu.exit", "Ende"))));
}

TEST(CompiledTextsTest, PluralIsItsFirstForm)
{
    const auto texts = textsOf(compiled(HEADER + "msgid \"call\"\nmsgid_plural \"calls\"\n"
                                                 "msgstr[0] \"Anruf\"\nmsgstr[1] \"Anrufe\"\n"));
    ASSERT_TRUE(texts);
    EXPECT_EQ(texts->at("call"), "Anruf");
}

TEST(CompiledTextsTest, WithoutTextsThereAreNoBytes)
{
    EXPECT_EQ(compiled(""), "");
    EXPECT_THAT(textsOf(""), testing::Optional(IsEmpty()));
}

TEST(CompiledTextsTest, AnythingElseIsNoCatalogue)
{
    for (const std::string bytes : {"\x7f"
                                    "ELF",
                                    "This is a text that is longer than the header of a catalogue."})
        EXPECT_FALSE(textsOf(bytes)) << bytes;
}

TEST(CompiledTextsTest, NewerFormatIsNotRead)
{
    std::string bytes = compiled(TWO_TEXTS);
    bytes[6] = 2; // the major revision
    EXPECT_FALSE(textsOf(bytes));
}

TEST(CompiledTextsTest, PartOfACatalogueIsNone)
{
    const std::string bytes = compiled(TWO_TEXTS);
    for (std::size_t length = 1; length < bytes.size(); ++length)
        EXPECT_FALSE(textsOf(bytes.substr(0, length))) << length;
}

TEST(CompiledTextsTest, MoreTextsThanThereAreEndAtTheFilesEnd)
{
    std::string bytes = compiled(TWO_TEXTS);
    bytes.replace(8, 4, "\xFF\xFF\xFF\xFF");
    EXPECT_FALSE(textsOf(bytes));
}

TEST(CompiledTextsTest, TextsThatLieInEachOtherAreNoCatalogue)
{
    constexpr std::uint32_t COUNT = 40;
    constexpr std::uint32_t LENGTH = 200;
    constexpr std::uint32_t TABLE = 28;
    std::vector<std::uint32_t> words = {0x950412DE, 0, COUNT, TABLE, TABLE, 0, 0};
    for (std::uint32_t i = 0; i < COUNT; ++i)
        words.insert(words.end(), {LENGTH - i, TABLE + COUNT * 8 + i});
    std::string bytes(reinterpret_cast<const char*>(words.data()), words.size() * sizeof words[0]);
    bytes += std::string(LENGTH, 'k') + '\0';
    EXPECT_FALSE(textsOf(bytes));
}

TEST(CompiledTextsTest, DamagedCatalogueIsReadNoFurtherThanItGoes)
{
    const std::string bytes = compiled(TWO_TEXTS);
    std::mt19937 random(1);
    std::size_t refused = 0;
    for (int i = 0; i < 10000; ++i) {
        std::string damaged = bytes;
        for (int place = 0; place < 3; ++place)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        refused += textsOf(damaged) ? 0 : 1;
    }
    EXPECT_GT(refused, 1000u);
}

} // namespace
