#include "apps/deskphone/Preferences.h"

#include "apps/deskphone/CallStore.h"
#include "apps/deskphone/StateFile.h"
#include "unit/apps/deskphone/StateFolder.h"

#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>

#include <thread>
#include <vector>

using deskphone::CallStore;
using deskphone::PastCall;
using deskphone::Preferences;
using deskphone::StateFile;
using testing::HasSubstr;

namespace {

class PreferencesTest : public testing::Test {
protected:
    std::shared_ptr<StateFile> file() const { return std::make_shared<StateFile>(folder.path()); }

    /// In the run after this one.
    std::string kept(const std::string& name) const { return Preferences(file()).get(name, "never set"); }

    /// As a telephone has left it that kept nothing that was set.
    void writeVersion3() const
    {
        PastCall call{.kind = PastCall::Kind::MISSED, .moment = 1, .party = "Ada", .number = "4711"};
        CallStore(file()).add(call);
        SQLite::Database database((folder.path() / "calls.sqlite").string(), SQLite::OPEN_READWRITE);
        database.exec("DROP TABLE preferences");
        database.exec("PRAGMA user_version = 3");
    }

    const test::StateFolder folder;
};

TEST_F(PreferencesTest, WhatHasNeverBeenSetIsWhatTheAskerSays)
{
    EXPECT_EQ(Preferences(nullptr).get("language", "en"), "en");
    EXPECT_EQ(Preferences(file()).get("language", "en"), "en");
    EXPECT_EQ(Preferences(file()).get("language"), "");
}

TEST_F(PreferencesTest, KeepsTheLastValue)
{
    Preferences preferences(file());
    preferences.set("notes", "Milk");
    preferences.set("notes", "Robert'); DROP TABLE preferences;--\nÅngström");
    preferences.set("language", "");
    EXPECT_EQ(preferences.get("notes"), "Robert'); DROP TABLE preferences;--\nÅngström");
    EXPECT_EQ(kept("notes"), "Robert'); DROP TABLE preferences;--\nÅngström");
    EXPECT_EQ(kept("language"), "");
}

TEST_F(PreferencesTest, KeepsUntilTheEndWithoutAFile)
{
    Preferences preferences(nullptr);
    preferences.set("language", "de");
    EXPECT_EQ(preferences.get("language", "en"), "de");
}

TEST_F(PreferencesTest, TakesOverAFileInWhichNothingWasSet)
{
    writeVersion3();
    Preferences(file()).set("language", "de");
    EXPECT_EQ(kept("language"), "de");
    ASSERT_EQ(CallStore(file()).calls().size(), 1U);
}

TEST_F(PreferencesTest, ReadsAFileThatCannotBeWritten)
{
    Preferences(file()).set("language", "de");
    const test::ReadOnly readOnly(folder.path());
    testing::internal::CaptureStderr();
    Preferences(file()).set("language", "fr");
    EXPECT_EQ(kept("language"), "de");
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("nothing is kept"));
}

TEST_F(PreferencesTest, BeginsAnewWhereAFileWithoutPreferencesCannotBeWritten)
{
    writeVersion3();
    const test::ReadOnly readOnly(folder.path());
    testing::internal::CaptureStderr();
    EXPECT_EQ(kept("language"), "never set");
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("nothing is kept"));
}

TEST_F(PreferencesTest, SeveralThreadsSetAtOnce)
{
    Preferences preferences(file());
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&, i] { preferences.set("value" + std::to_string(i), "set"); });
    for (std::thread& thread : threads)
        thread.join();
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(kept("value" + std::to_string(i)), "set");
}

} // namespace
