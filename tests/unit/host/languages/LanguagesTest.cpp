#include "host/languages/Languages.h"

#include "host/languages/Msgfmt.h"
#include "support/LogLines.h"
#include "support/TemporaryFolder.h"
#include "utilities/TranslationInfo.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>
#include <thread>

namespace {

using host::Language;
using host::Languages;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace fs = std::filesystem;

constexpr const char* MODULE = "host::Languages";

std::string header(const std::string& language)
{
    return "msgid \"\"\n"
           "msgstr \"\"\n"
           "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
           "\"Language: " +
           language + "\\n\"\n\n"; // the first text stands in line 6
}

std::string text(const std::string& key, const std::string& translation)
{
    return "msgid \"" + key + "\"\nmsgstr \"" + translation + "\"\n\n";
}

/// A folder with two good catalogues.
class LanguagesTest : public testing::Test {
protected:
    LanguagesTest()
    {
        write("de.po", header("de_DE") + text("Language.name", "Deutsch") + text("Menu.title", "Menü"));
        write("ja.po", header("ja_JP") + text("Language.name", "日本語") + text("Menu.title", "メニュー"));
    }

    void write(const std::string& file, const std::string& content) { std::ofstream(folder / file) << content; }

    void compile(const std::string& file, const std::string& content)
    {
        std::string compiled;
        EXPECT_EQ(host::compileWithMsgfmt(content, compiled), "");
        write(file, compiled);
    }

    /// Reading is quicker then.
    void compileAll()
    {
        for (const char* code : {"de", "ja"}) {
            const fs::path source = folder / (std::string(code) + ".po");
            std::ostringstream content;
            content << std::ifstream(source).rdbuf();
            compile(std::string(code) + ".mo", content.str());
            fs::remove(source);
        }
    }

    /// What is said of a catalogue with this content while German is in use; it stays in use.
    std::string complaintOf(const std::string& content)
    {
        Languages languages(folder);
        EXPECT_EQ(languages.use("de"), "");
        write("xx.po", content);
        const std::string complaint = languages.use("xx");
        EXPECT_EQ(languages.current().code, "de");
        EXPECT_EQ(languages.translate("Menu.title"), "Menü");
        return complaint;
    }

    const test::TemporaryFolder temporary;
    const fs::path& folder = temporary.path();
};

TEST_F(LanguagesTest, EachLanguageIsKnownByItsCodeItsOwnNameAndItsLocale)
{
    const Languages languages(folder);
    EXPECT_THAT(languages.available(),
                ElementsAre(Language{"de", "Deutsch", "de_DE"}, Language{"ja", "日本語", "ja_JP"}));
}

TEST_F(LanguagesTest, OnlyCataloguesAreLanguages)
{
    write("README", "texts");
    write("de.po~", header("de_DE"));
    EXPECT_EQ(Languages(folder).available().size(), 2u);
}

TEST_F(LanguagesTest, BrokenCatalogueIsListedByItsCode)
{
    write("xx.po", "no catalogue");
    EXPECT_EQ(Languages(folder).available().back(), (Language{"xx", "xx", ""}));
}

TEST_F(LanguagesTest, OnlyFilesAreLanguages)
{
    ASSERT_EQ(mkfifo((folder / "pipe.po").c_str(), 0600), 0);
    fs::create_directory(folder / "folder.po");
    fs::create_symlink(folder / "nowhere.po", folder / "gone.po");
    EXPECT_EQ(Languages(folder).available().size(), 2u);
}

TEST_F(LanguagesTest, LinkToACatalogueIsALanguage)
{
    fs::create_symlink(folder / "de.po", folder / "at.po");
    EXPECT_EQ(Languages(folder).available().front(), (Language{"at", "Deutsch", "de_DE"}));
}

TEST_F(LanguagesTest, WhatIsNoCodeIsNotListed)
{
    write("de.at.po", header("de_AT"));
    write(".po", header("xx"));
    write("..po", header("xx"));
    Languages languages(folder);
    EXPECT_EQ(languages.available().size(), 2u);
    for (const Language& language : languages.available())
        EXPECT_EQ(languages.use(language.code), "");
}

TEST_F(LanguagesTest, CompiledCatalogueIsALanguage)
{
    compile("fr.mo", header("fr_FR") + text("Language.name", "Français") + text("Menu.title", "Menu"));
    Languages languages(folder);
    EXPECT_EQ(languages.available()[1], (Language{"fr", "Français", "fr_FR"}));
    EXPECT_EQ(languages.use("fr"), "");
    EXPECT_EQ(languages.translate("Menu.title"), "Menu");
}

TEST_F(LanguagesTest, SourceGoesBeforeWhatHasBeenCompiledOfIt)
{
    compile("de.mo", header("de_DE") + text("Menu.title", "Früher"));
    Languages languages(folder);
    EXPECT_EQ(languages.available().size(), 2u);
    EXPECT_EQ(languages.use("de"), "");
    EXPECT_EQ(languages.translate("Menu.title"), "Menü");
    fs::remove(folder / "de.po");
    EXPECT_EQ(languages.use("de"), "");
    EXPECT_EQ(languages.translate("Menu.title"), "Früher");
}

TEST_F(LanguagesTest, WithoutMsgfmtCompiledCataloguesAreReadAndSourcesAreRefused)
{
    compile("fr.mo", header("fr_FR"));
    const std::string path = std::getenv("PATH");
    setenv("PATH", folder.c_str(), 1);
    Languages languages(folder);
    EXPECT_EQ(languages.use("fr"), "");
    EXPECT_EQ(languages.use("de"), "de.po: Reading it takes msgfmt, of the Debian package gettext; what msgfmt has "
                                   "compiled (.mo) takes nothing.");
    setenv("PATH", path.c_str(), 1);
}

TEST_F(LanguagesTest, ApplicationMayIgnoreTheEndOfItsChildren)
{
    const auto former = std::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(Languages(folder).use("ja"), "");
    EXPECT_EQ(complaintOf(header("xx") + "msgid \"a\"\n"), "xx.po:6: missing 'msgstr' section");
    std::signal(SIGCHLD, former);
}

TEST_F(LanguagesTest, BrokenCompiledCatalogueIsRefused)
{
    write("fr.mo", "\xDE\x12\x04\x95 and nothing more");
    compile("xx.mo", "msgid \"\"\nmsgstr \"Language: xx\\n\"\n");
    Languages languages(folder);
    EXPECT_EQ(languages.use("fr"), "fr.mo: This is no catalogue that msgfmt has compiled.");
    EXPECT_EQ(languages.use("xx"), "xx.mo: The header names no charset.");
}

TEST_F(LanguagesTest, FolderThatIsNotThereHasNoLanguages)
{
    Languages languages(folder / "nowhere");
    EXPECT_THAT(languages.available(), IsEmpty());
    EXPECT_EQ(languages.use("de"), "de.po: The file cannot be read: No such file or directory.");
}

TEST_F(LanguagesTest, BeforeTheFirstLanguageATextIsItsKey)
{
    const host::LogCapture log;
    Languages languages(folder);
    EXPECT_EQ(languages.current(), Language());
    EXPECT_EQ(languages.translate("Menu.title"), "Menu.title");
    EXPECT_THAT(test::linesOf(log, MODULE), IsEmpty());
}

TEST_F(LanguagesTest, TextsAreThoseOfTheLanguageInUse)
{
    Languages languages(folder);
    const TranslationInfo title("Menu.title", &languages);
    EXPECT_EQ(languages.use("de"), "");
    EXPECT_EQ(title.getString(), "Menü");
    EXPECT_EQ(languages.use("ja"), "");
    EXPECT_EQ(title.getString(), "メニュー");
    EXPECT_EQ(languages.current(), (Language{"ja", "日本語", "ja_JP"}));
    EXPECT_EQ(languages.use("de"), "");
    EXPECT_EQ(title.getString(), "Menü");
}

TEST_F(LanguagesTest, ChangedCatalogueIsReadAgain)
{
    Languages languages(folder);
    languages.use("de");
    write("de.po", header("de_DE") + text("Menu.title", "Auswahl"));
    EXPECT_EQ(languages.translate("Menu.title"), "Menü");
    EXPECT_EQ(languages.use("de"), "");
    EXPECT_EQ(languages.translate("Menu.title"), "Auswahl");
}

TEST_F(LanguagesTest, MissingTextIsItsKeyAndLoggedOncePerLanguage)
{
    const host::LogCapture log;
    Languages languages(folder);
    const auto missTwice = [&](const char* code) {
        languages.use(code);
        EXPECT_EQ(languages.translate("Menu.exit"), "Menu.exit");
        EXPECT_EQ(languages.translate("Menu.exit"), "Menu.exit");
    };
    missTwice("de");
    missTwice("ja");
    missTwice("de");
    std::vector<std::string> said;
    for (const host::LogLine& line : test::linesOf(log, MODULE))
        said.push_back(line.text);
    EXPECT_THAT(said, ElementsAre("de.po has no text for 'Menu.exit'", "ja.po has no text for 'Menu.exit'"));
}

TEST_F(LanguagesTest, MissingTextIsLoggedWhenSomebodyBeginsToListen)
{
    Languages languages(folder);
    languages.use("de");
    languages.translate("Menu.exit");
    const host::LogCapture log;
    languages.translate("Menu.exit");
    EXPECT_EQ(test::linesOf(log, MODULE).size(), 1u);
}

TEST_F(LanguagesTest, UntranslatedDoubtfulAndFormerTextsAreMissing)
{
    write("de.po", header("de_DE") + text("untranslated", "") + "#, fuzzy\n" + text("doubtful", "vielleicht") +
                       "#~ msgid \"former\"\n#~ msgstr \"alt\"\n\nmsgctxt \"elsewhere\"\n" + text("other", "anders"));
    Languages languages(folder);
    EXPECT_EQ(languages.use("de"), "");
    for (const char* key : {"untranslated", "doubtful", "former", "other"})
        EXPECT_EQ(languages.translate(key), key);
}

TEST_F(LanguagesTest, HeaderIsNoText)
{
    Languages languages(folder);
    languages.use("de");
    EXPECT_EQ(languages.translate(""), "");
}

TEST_F(LanguagesTest, CodeIsNoPath)
{
    Languages languages(folder / "sub");
    fs::create_directory(folder / "sub");
    for (const char* code : {"", ".", "../de", "/etc/passwd"})
        EXPECT_EQ(languages.use(code), std::string("There is no language '") + code + "'.");
}

TEST_F(LanguagesTest, CatalogueThatIsNotThereIsRefused)
{
    Languages languages(folder);
    languages.use("de");
    EXPECT_EQ(languages.use("fr"), "fr.po: The file cannot be read: No such file or directory.");
    EXPECT_EQ(languages.current().code, "de");
}

TEST_F(LanguagesTest, RefusalIsLogged)
{
    const host::LogCapture log;
    const std::string complaint = complaintOf("nonsense");
    ASSERT_EQ(test::linesOf(log, MODULE).size(), 1u);
    EXPECT_EQ(test::linesOf(log, MODULE).front().text, complaint);
}

TEST_F(LanguagesTest, FolderIsNoCatalogue)
{
    fs::create_directory(folder / "fr.po");
    EXPECT_EQ(Languages(folder).use("fr"), "fr.po: This is a folder.");
}

TEST_F(LanguagesTest, PipeIsNoCatalogue)
{
    ASSERT_EQ(mkfifo((folder / "fr.po").c_str(), 0600), 0);
    EXPECT_EQ(Languages(folder).use("fr"), "fr.po: This is no regular file.");
}

TEST_F(LanguagesTest, ByteOrderMarkIsRefusedWithItsLine)
{
    static const std::string MARK = "\xEF\xBB\xBF";
    EXPECT_EQ(complaintOf(MARK + header("xx") + text("a", "b")), "xx.po:1: The file begins with a byte order mark.");
    EXPECT_EQ(complaintOf(MARK), "xx.po:1: The file begins with a byte order mark.");
}

TEST_F(LanguagesTest, SyntaxErrorIsRefusedWithItsLine)
{
    EXPECT_EQ(complaintOf(header("xx") + "msgid \"a\"\nmsgstr \"b\n"),
              "xx.po:8: end-of-line within string"); // where the string was still open
    EXPECT_EQ(complaintOf(header("xx") + "hello world\n"), "xx.po:6: keyword \"hello\" unknown");
    EXPECT_EQ(complaintOf(header("xx") + "msgid \"a\"\n"), "xx.po:6: missing 'msgstr' section");
    EXPECT_THAT(complaintOf(std::string("\x7f"
                                        "ELF\0\1\2",
                                        7)),
                StartsWith("xx.po:1:1: "));
}

TEST_F(LanguagesTest, FileThatCannotBeReadToItsEndIsRefused)
{
    fs::create_symlink("/proc/self/mem", folder / "fr.po");
    EXPECT_THAT(Languages(folder).use("fr"), "fr.po: The file cannot be read: Input/output error.");
}

TEST_F(LanguagesTest, ManyErrorsDoNotEndTheProcess)
{
    std::string content = header("xx");
    for (int line = 0; line < 100; ++line)
        content += "nonsense \"\n";
    EXPECT_THAT(complaintOf(content), StartsWith("xx.po:6: "));
}

TEST_F(LanguagesTest, DuplicateKeyIsRefusedWithItsLine)
{
    EXPECT_EQ(complaintOf(header("xx") + text("a", "b") + text("a", "c")), "xx.po:9: duplicate message definition...");
}

TEST_F(LanguagesTest, InvalidUtf8IsRefusedWithItsLine)
{
    EXPECT_EQ(complaintOf(header("xx") + text("a", "b") + text("c", "\xff\xfe")),
              "xx.po:10:9: invalid multibyte sequence");
    EXPECT_EQ(complaintOf(header("xx") + text("c", "\xed\xa0\x80")), "xx.po:7:9: invalid multibyte sequence");
}

TEST_F(LanguagesTest, HeaderHasToNameUtf8AndALanguage)
{
    const std::string start = "msgid \"\"\nmsgstr \"\"\n";
    const std::string language = "\"Language: xx\\n\"\n";
    const std::string type = "\"Content-Type: text/plain";
    EXPECT_EQ(complaintOf(text("a", "b")), "xx.po:1: The catalogue has no header.");
    EXPECT_EQ(complaintOf(""), "xx.po:1: The catalogue has no header.");
    EXPECT_EQ(complaintOf(start + language), "xx.po:1: The header names no charset.");
    EXPECT_EQ(complaintOf(start + language + type + "\\n\"\n"), "xx.po:1: The header names no charset.");
    EXPECT_EQ(complaintOf(start + language + type + "; charset=ISO-8859-1\\n\"\n"),
              "xx.po:1: The charset is ISO-8859-1, not UTF-8.");
    EXPECT_EQ(complaintOf(start + type + "; charset=UTF-8\\n\"\n"), "xx.po:1: The header names no language.");
    EXPECT_EQ(Languages(folder).use("de"), "");
}

TEST_F(LanguagesTest, CharsetIsUtf8InAnyCase)
{
    write("de.po", "msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=utf-8\\n\"\n\"Language: de\\n\"\n");
    EXPECT_EQ(Languages(folder).use("de"), "");
}

TEST_F(LanguagesTest, EnvironmentNamesTheFolder)
{
    setenv("DISPLAYAPI_LANGUAGES", folder.c_str(), 1);
    EXPECT_EQ(Languages().available().size(), 2u);
    setenv("DISPLAYAPI_LANGUAGES", "", 1);
    EXPECT_EQ(Languages().available().size(), 5u);
    unsetenv("DISPLAYAPI_LANGUAGES");
    EXPECT_EQ(Languages().available().size(), 5u);
}

TEST_F(LanguagesTest, FolderOfTheEnvironmentWithoutCataloguesIsTold)
{
    const auto saidOf = [](const std::string& asked) {
        setenv("DISPLAYAPI_LANGUAGES", asked.c_str(), 1);
        testing::internal::CaptureStderr();
        EXPECT_EQ(Languages::folder(), asked);
        unsetenv("DISPLAYAPI_LANGUAGES");
        return testing::internal::GetCapturedStderr();
    };
    EXPECT_EQ(saidOf("/nowhere"), "DISPLAYAPI_LANGUAGES is '/nowhere'; there is no such folder\n");
    const std::string empty = folder / "empty";
    fs::create_directory(empty);
    EXPECT_EQ(saidOf(empty), "DISPLAYAPI_LANGUAGES is '" + empty + "'; that folder has no catalogue\n");
    EXPECT_EQ(saidOf(folder), "");
}

TEST_F(LanguagesTest, ThreadsLookUpWhileTheLanguageChanges)
{
    compileAll();
    Languages languages(folder);
    languages.use("de");
    std::atomic<bool> stop = false;
    std::atomic<int> strange = 0;
    const auto lookUp = [&] {
        while (!stop) {
            const std::string title = languages.translate("Menu.title");
            strange += title != "Menü" && title != "メニュー";
        }
    };
    std::jthread first(lookUp);
    std::jthread second(lookUp);
    const auto change = [&] {
        for (int i = 0; i < 100; ++i)
            strange += !languages.use(i % 2 == 0 ? "ja" : "de").empty();
    };
    std::jthread(change).join();
    {
        std::jthread one(change);
        std::jthread other(change);
    }
    stop = true;
    first.join();
    second.join();
    EXPECT_EQ(strange, 0);
}

} // namespace
