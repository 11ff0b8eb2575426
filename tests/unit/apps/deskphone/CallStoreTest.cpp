#include "apps/deskphone/CallStore.h"

#include "unit/apps/deskphone/StateFolder.h"

#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>

#include <fstream>
#include <thread>
#include <unistd.h>

using deskphone::CallStore;
using deskphone::PastCall;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

using enum PastCall::Kind;

class CallStoreTest : public testing::Test {
protected:
    static PastCall callOf(const std::string& party)
    {
        return {.kind = MISSED, .moment = 1'000'000, .party = party, .number = "030 4711"};
    }

    std::vector<std::string> parties()
    {
        std::vector<std::string> all;
        for (const PastCall& call : CallStore(folder).calls())
            all.push_back(call.party);
        return all;
    }

    void write(const fs::path& name, const std::string& bytes)
    {
        fs::create_directories(folder);
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }

    std::string read(const fs::path& name)
    {
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// Opens the store and says what it has complained of.
    std::string complaint()
    {
        testing::internal::CaptureStderr();
        const CallStore store(folder);
        return testing::internal::GetCapturedStderr();
    }

    void expectSetAside(const std::string& reason)
    {
        const std::string before = read(FILE);
        EXPECT_THAT(complaint(), HasSubstr(reason));
        EXPECT_TRUE(read("calls.sqlite.broken") == before) << "it has been written to";
        EXPECT_THAT(parties(), IsEmpty());
    }

    /// As a telephone has left it that knew of no lines.
    void writeVersion1()
    {
        fs::create_directories(folder);
        SQLite::Database file = database();
        file.exec("CREATE TABLE calls (id INTEGER PRIMARY KEY AUTOINCREMENT, kind INTEGER NOT NULL CHECK (kind BETWEEN "
                  "0 AND 3), moment INTEGER NOT NULL, party TEXT NOT NULL, number TEXT NOT NULL, seconds INTEGER NOT "
                  "NULL, other TEXT NOT NULL, seen INTEGER NOT NULL) STRICT");
        file.exec("INSERT INTO calls (kind, moment, party, number, seconds, other, seen) VALUES (0, 1000000, 'Ada', "
                  "'4711', 0, '', 0)");
        file.exec("PRAGMA user_version = 1");
        file.exec("PRAGMA journal_mode = WAL");
    }

    SQLite::Database database() { return {(folder / FILE).string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE}; }

    static constexpr const char* FILE = "calls.sqlite";

    const test::StateFolder state;
    const fs::path folder = state.path();
};

TEST_F(CallStoreTest, BeginsWithoutCallsInAFolderThatItMakes)
{
    EXPECT_EQ(complaint(), "");
    EXPECT_THAT(parties(), IsEmpty());
    EXPECT_TRUE(fs::exists(folder / FILE));
}

TEST_F(CallStoreTest, KeepsEverythingOfACall)
{
    PastCall call{.kind = FORWARDED,
                  .moment = 5'000'000'000,
                  .party = "Zoë \"'; DROP TABLE calls",
                  .number = "+44",
                  .seconds = 36'001,
                  .other = "Ελένη",
                  .line = 2,
                  .isSeen = true};
    CallStore(folder).add(call);
    const std::deque<PastCall> calls = CallStore(folder).calls();
    ASSERT_EQ(calls.size(), 1U);
    const PastCall& kept = calls.front();
    EXPECT_EQ(kept.kind, FORWARDED);
    EXPECT_EQ(kept.moment, 5'000'000'000);
    EXPECT_EQ(kept.party, call.party);
    EXPECT_EQ(kept.number, "+44");
    EXPECT_EQ(kept.seconds, 36'001);
    EXPECT_EQ(kept.other, "Ελένη");
    EXPECT_EQ(kept.line, 2);
    EXPECT_TRUE(kept.isSeen);
    EXPECT_EQ(kept.id, call.id);
}

TEST_F(CallStoreTest, LatestCallIsTheFirst)
{
    CallStore store(folder);
    for (const char* party : {"Ada", "Zoë", "Ida"}) {
        PastCall call = callOf(party);
        store.add(call);
    }
    EXPECT_THAT(parties(), ElementsAre("Ida", "Zoë", "Ada"));
}

TEST_F(CallStoreTest, ForgetsOneCallAndNoOther)
{
    CallStore store(folder);
    PastCall ada = callOf("Ada");
    PastCall zoe = callOf("Zoë");
    store.add(ada);
    store.add(zoe);
    store.forget(ada);
    EXPECT_THAT(parties(), ElementsAre("Zoë"));
}

TEST_F(CallStoreTest, KeepsThatCallsHaveBeenSeen)
{
    CallStore store(folder);
    PastCall call = callOf("Ada");
    store.add(call);
    EXPECT_FALSE(CallStore(folder).calls().front().isSeen);
    store.seeAll();
    EXPECT_TRUE(CallStore(folder).calls().front().isSeen);
}

TEST_F(CallStoreTest, SetsAsideWhatIsNoDatabase)
{
    write(FILE, "my calls, by hand");
    expectSetAside("not a database");
}

TEST_F(CallStoreTest, SetsAsideADamagedFile)
{
    {
        CallStore store(folder);
        for (int i = 0; i < 200; ++i) {
            PastCall call = callOf(std::string(100, 'a'));
            store.add(call);
        }
    }
    std::string bytes = read(FILE);
    bytes.replace(bytes.size() / 2, 2000, 2000, '\x7F');
    write(FILE, bytes);
    expectSetAside("cannot be read");
}

TEST_F(CallStoreTest, TakesOverTheCallsOfAFileWithoutLines)
{
    writeVersion1();
    CallStore store(folder);
    ASSERT_EQ(store.calls().size(), 1U);
    EXPECT_EQ(store.calls().front().party, "Ada");
    EXPECT_EQ(store.calls().front().line, 0);
    PastCall zoe = callOf("Zoë");
    zoe.line = 2;
    store.add(zoe);
    EXPECT_EQ(CallStore(folder).calls().front().line, 2);
    EXPECT_THAT(parties(), ElementsAre("Zoë", "Ada"));
}

TEST_F(CallStoreTest, TelephonesThatBeginAtOnceShareTheFile)
{
    for (int round = 0; round < 20; ++round) {
        fs::remove_all(folder);
        testing::internal::CaptureStderr();
        std::vector<std::thread> telephones;
        for (int i = 0; i < 4; ++i)
            telephones.emplace_back([&] {
                PastCall call = callOf("Ada");
                CallStore(folder).add(call);
            });
        for (std::thread& telephone : telephones)
            telephone.join();
        ASSERT_EQ(testing::internal::GetCapturedStderr(), "");
        ASSERT_EQ(parties().size(), 4U);
    }
}

TEST_F(CallStoreTest, ShowsTheCallsOfAFileThatCannotBeWritten)
{
    PastCall ada = callOf("Ada");
    CallStore(folder).add(ada);
    const test::ReadOnly readOnly(folder);
    testing::internal::CaptureStderr();
    CallStore store(folder);
    PastCall zoe = callOf("Zoë");
    store.add(zoe);
    store.seeAll();
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "deskphone: nothing is kept: " + (folder / FILE).string() + " cannot be written\n");
    EXPECT_THAT(parties(), ElementsAre("Ada"));
}

TEST_F(CallStoreTest, ShowsTheCallsOfAFileWithoutLinesThatCannotBeWritten)
{
    writeVersion1();
    const test::ReadOnly readOnly(folder);
    EXPECT_THAT(complaint(), HasSubstr("cannot be written"));
    EXPECT_THAT(parties(), ElementsAre("Ada"));
}

TEST_F(CallStoreTest, SetsAsideAFileOfALaterVersion)
{
    complaint();
    database().exec("PRAGMA user_version = 5");
    expectSetAside("of version 5");
}

TEST_F(CallStoreTest, SetsAsideAnotherProgramsDatabase)
{
    fs::create_directories(folder);
    database().exec("CREATE TABLE songs (title TEXT)");
    expectSetAside("another program");
}

TEST_F(CallStoreTest, SetsAsideAFileWithOtherColumns)
{
    complaint();
    database().exec("ALTER TABLE calls DROP COLUMN party");
    expectSetAside("no such column");
}

TEST_F(CallStoreTest, EachFileSetAsideHasANameOfItsOwn)
{
    write(FILE, "first, and long enough");
    complaint();
    write(FILE, "second, and long enough");
    EXPECT_THAT(complaint(), HasSubstr("calls.sqlite.broken-2"));
    EXPECT_EQ(read("calls.sqlite.broken"), "first, and long enough");
    EXPECT_EQ(read("calls.sqlite.broken-2"), "second, and long enough");
}

TEST_F(CallStoreTest, WorksWithoutAFileWhereThereCanBeNone)
{
    std::ofstream(folder) << "a file, not a folder";
    testing::internal::CaptureStderr();
    CallStore store(folder);
    PastCall call = callOf("Ada");
    store.add(call);
    store.seeAll();
    store.forget(call);
    EXPECT_THAT(store.calls(), IsEmpty());
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("nothing is kept"));
}

TEST_F(CallStoreTest, ACallThatCannotBeWrittenIsSaidAndTheFileIsLeft)
{
    CallStore store(folder);
    PastCall ada = callOf("Ada");
    store.add(ada);
    SQLite::Database other = database();
    other.exec("BEGIN EXCLUSIVE");
    testing::internal::CaptureStderr();
    PastCall zoe = callOf("Zoë");
    store.add(zoe);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("locked"));
    other.exec("COMMIT");
    EXPECT_THAT(parties(), ElementsAre("Ada"));
}

} // namespace
