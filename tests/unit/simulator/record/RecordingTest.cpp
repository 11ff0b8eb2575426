#include "simulator/record/Recording.h"

#include "toolkit/PegThing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace simulator;
using host::Choices;
using host::EditedText;
using host::Workplace;
using Kind = Choices::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

using Names = std::vector<std::string>;

constexpr int WINDOWS[4] = {};

/// A part with its names, of which one is current; the keys are its own.
Choices part(Kind kind, Names names, int current)
{
    Choices choices{.kind = kind, .count = static_cast<int>(names.size()), .current = current, .hasKeys = true};
    choices.texts = {names.at(static_cast<std::size_t>(current))};
    choices.names = std::move(names);
    return choices;
}

Workplace place(int window, Kind kind, Names names, int current = 0, std::string title = {})
{
    Workplace there;
    there.window = &WINDOWS[window];
    there.title = std::move(title);
    there.choices = {part(kind, std::move(names), current)};
    return there;
}

Workplace list(Names names, int current = 0)
{
    return place(0, Kind::ROWS, std::move(names), current);
}

Workplace typing(Workplace there, std::string text)
{
    const int cursor = static_cast<int>(text.size());
    there.edited = EditedText{std::move(text), cursor};
    return there;
}

class RecordingTest : public testing::Test {
protected:
    void press(PegKey key, const Workplace& before, const Workplace& after)
    {
        now = before;
        recording.comes(key, before);
        now = after;
        recording.done(key, before, after);
        recording.released(key, after);
    }

    void press(PegKey key, const Workplace& before) { press(key, before, before); }

    /// All its names are on the panel.
    void show(const Workplace& there, const std::string& message = {})
    {
        now = there;
        std::vector<host::TextRun> texts;
        for (const Choices& choices : there.choices)
            for (const std::string& name : choices.names)
                texts.push_back({.area = {}, .text = name});
        texts.push_back({.area = {}, .text = there.title});
        if (!message.empty())
            texts.push_back({.area = {}, .text = message, .widget = TYPE_STATUS_MESSAGE});
        recording.shown(there, texts);
    }

    Workplace look(const Names& wanted)
    {
        Workplace there = now;
        for (Choices& choices : there.choices)
            for (int at = 0; at < choices.count; ++at)
                if (choices.names[static_cast<std::size_t>(at)] == wanted.front())
                    choices.found.push_back(at);
        return there;
    }

    static ScriptText textOf(const std::string& text)
    {
        if (text == "Menu")
            return {{{true, {"key.of.menu"}}}};
        return ScriptText::literal(text);
    }

    Workplace now; ///< what is there to be looked at
    std::int64_t clock = 0;
    Names lines;
    Recording recording{{[this](const Names& wanted) { return look(wanted); }, textOf, [this] { return clock; }, 0,
                         [this](const std::string& line) { lines.push_back(line); }}};
};

TEST_F(RecordingTest, StepsToARowAndOkAreAChoice)
{
    press(PK_DOWN, list({"a", "b", "c"}, 0), list({"a", "b", "c"}, 1));
    press(PK_DOWN, list({"a", "b", "c"}, 1), list({"a", "b", "c"}, 2));
    press(PK_OK, list({"a", "b", "c"}, 2));
    EXPECT_THAT(lines, ElementsAre("choose \"c\""));
}

TEST_F(RecordingTest, ChoiceIsWrittenBeforeTheProgramHearsOfIt)
{
    now = list({"crash"});
    recording.comes(PK_OK, now);
    EXPECT_THAT(lines, ElementsAre("choose \"crash\""));
}

TEST_F(RecordingTest, RowsOfTheSameNameAreCounted)
{
    press(PK_OK, list({"Ada", "x", "Ada"}, 2));
    press(PK_OK, list({"Ada", "x", "Ada"}, 0));
    EXPECT_THAT(lines, ElementsAre("choose \"Ada\" #2", "choose \"Ada\""));
}

TEST_F(RecordingTest, TextOfTheCatalogueIsItsKey)
{
    press(PK_OK, list({"Menu"}));
    EXPECT_THAT(lines, ElementsAre("choose _(\"key.of.menu\")"));
}

TEST_F(RecordingTest, HostileTextStandsOnOneLine)
{
    press(PK_OK, list({"\"a\"\nkey ok\x1B\xE2\x80\xAE"}));
    EXPECT_THAT(lines, ElementsAre("choose \"\\\"a\\\"\\nkey ok\\x1B\\u202E\""));
    show(place(1, Kind::ROWS, {"b\nkey ok"}));
    show(place(2, Kind::ROWS, {"_(\"x\")"}));
    recording.end();
    EXPECT_EQ(lines.back(), "await \"_(\\\"x\\\")\"");
}

TEST_F(RecordingTest, RowWithoutATextIsReachedByKeysAndSaysWhy)
{
    press(PK_DOWN, list({"a", ""}, 0), list({"a", ""}, 1));
    press(PK_OK, list({"a", ""}, 1));
    EXPECT_THAT(lines, ElementsAre("# what is chosen here has no text", "key down", "key ok"));
}

TEST_F(RecordingTest, FieldsWithoutATextAreReachedByKeysBeforeWhatIsDoneThere)
{
    const auto field = [](int current) { return place(0, Kind::FIELDS, {"", ""}, current); };
    press(static_cast<PegKey>('2'), typing(field(0), ""), typing(field(0), "a"));
    press(PK_DOWN, typing(field(0), "a"), typing(field(1), ""));
    press(static_cast<PegKey>('2'), typing(field(1), ""), typing(field(1), "b"));
    press(PK_UP, typing(field(1), "b"), field(0));
    press(PK_HOOK, field(0));
    const std::string why = "# what is chosen here has no text";
    EXPECT_THAT(lines, ElementsAre("type \"a\"", why, "key down", "type \"b\"", why, "key up", "key hook"));
}

TEST_F(RecordingTest, WayToARowWithoutATextOutlivesAScreenThatComesOverIt)
{
    show(list({"", ""}, 0));
    press(PK_DOWN, list({"", ""}, 0), list({"", ""}, 1));
    show(list({"", ""}, 1));
    show(place(1, Kind::ROWS, {"b"}));
    show(list({"", ""}, 1));
    press(PK_OK, list({"", ""}, 1));
    const std::string why = "# what is chosen here has no text";
    EXPECT_THAT(lines, ElementsAre(why, "key down", why, "key ok"));
}

TEST_F(RecordingTest, ArrowThatMovesNothingIsAKeyWhereTheProgramDoesSomethingAboutIt)
{
    show(place(1, Kind::TABS, {"All"}));
    press(PK_LEFT, place(1, Kind::TABS, {"All"}));
    show(place(1, Kind::TABS, {"The end"}));
    press(PK_DOWN, place(1, Kind::MENU, {"a"}));
    show(place(1, Kind::MENU, {"a"}, 0, "other title"));
    press(PK_DOWN, place(1, Kind::MENU, {"a"}, 0, "other title"));
    clock += 5000;
    show(place(1, Kind::MENU, {"a"}, 0, "third title"));
    recording.end();
    EXPECT_THAT(lines, ElementsAre("expect All", "back", "key down", "expect a"));
}

TEST_F(RecordingTest, RowThatLeadsBackOnThisPanelIsBack)
{
    Workplace there = list({"a", "Back"}, 1);
    there.choices[0].isAtBack = true;
    press(PK_DOWN, list({"a", "Back"}, 0), there);
    press(PK_OK, there);
    show(there);
    press(PK_RIGHT, list({"a"}));
    Workplace menu = place(1, Kind::MENU, {"Back"});
    menu.choices[0].isAtBack = true;
    show(menu);
    press(PK_OK, menu);
    EXPECT_THAT(lines, ElementsAre("back", "select \"a\"", "key right", "back"));
}

TEST_F(RecordingTest, RowThatIsCalledOtherwiseTheNextTimeIsReachedByKeys)
{
    press(PK_DOWN, list({"1 Ada Byron", "Up 7 s"}, 0), list({"1 Ada Byron", "Up 7 s"}, 1));
    press(PK_OK, list({"1 Ada Byron", "Up 7 s"}, 1));
    press(PK_UP, list({"1 Ada Byron", "Up 8 s"}, 1), list({"1 Ada Byron", "Up 8 s"}, 0));
    press(PK_OK, list({"1 Ada Byron", "Up 8 s"}, 0));
    EXPECT_THAT(lines, ElementsAre("# what is chosen here is called otherwise the next time", "key down", "key ok",
                                   "choose \"1 Ada Byron\""));
}

TEST_F(RecordingTest, KeyWithoutAMeaningIsTheKeyOfTheRowWhereItIsPressed)
{
    press(PK_DOWN, list({"a", "b"}, 0), list({"a", "b"}, 1));
    press(PK_HOOK, list({"a", "b"}, 1));
    press(PK_VOLUME_UP, list({"a", "b"}, 1));
    EXPECT_THAT(lines, ElementsAre("select \"b\"", "key hook", "key volume-up"));
}

TEST_F(RecordingTest, WhatIsTypedIsTheTextThatStandsThereInTheEnd)
{
    const Workplace form = place(0, Kind::FIELDS, {"Name", "Number"}, 0);
    press(static_cast<PegKey>('2'), typing(form, ""), typing(form, "A"));
    press(static_cast<PegKey>('2'), typing(form, "A"), typing(form, "B"));
    press(PK_LEFT, typing(form, "B"), typing(form, "B"));
    show(typing(form, "Ba")); // what is held has its time
    press(PK_DOWN, typing(form, "Ba"), place(0, Kind::FIELDS, {"Name", "Number"}, 1));
    EXPECT_THAT(lines, ElementsAre("select \"Name\"", "type \"Ba\"", "expect Name"));
}

TEST_F(RecordingTest, TextThatIsTakenBackIsNone)
{
    const Workplace form = place(0, Kind::FIELDS, {"Name"}, 0);
    press(static_cast<PegKey>('2'), typing(form, "x"), typing(form, "xa"));
    press(PK_LEFT, typing(form, "xa"), typing(form, "x"));
    press(PK_OK, typing(form, "x"));
    EXPECT_THAT(lines, ElementsAre("key ok"));
}

TEST_F(RecordingTest, DigitsThatOpenADiallerAreDialled)
{
    Workplace dialler = typing(place(1, Kind::BAR, {"Dial", "Paste"}), "4");
    dialler.edited->isDialler = true;
    press(static_cast<PegKey>('4'), list({"a"}));
    show(dialler);
    Workplace more = dialler;
    more.edited->text = "47";
    press(static_cast<PegKey>('7'), dialler, more);
    press(PK_OK, more);
    EXPECT_THAT(lines, ElementsAre("dial 47"));
}

TEST_F(RecordingTest, DigitsThatTypeNothingAreKeys)
{
    press(static_cast<PegKey>('4'), list({"a"}));
    now = list({"a"});
    recording.comes(PK_0, now);
    clock += 700;
    recording.released(PK_0, now);
    press(PK_OK, list({"a"}));
    EXPECT_THAT(lines, ElementsAre("key 4", "hold 0 700", "choose \"a\""));
}

TEST_F(RecordingTest, CommandOfARowsMenuIsTheRowsCommand)
{
    press(PK_RIGHT, list({"Ada"}));
    const Workplace menu = place(1, Kind::MENU, {"Call", "Delete"}, 0);
    show(menu);
    press(PK_DOWN, menu, place(1, Kind::MENU, {"Call", "Delete"}, 1));
    press(PK_OK, place(1, Kind::MENU, {"Call", "Delete"}, 1));
    EXPECT_THAT(lines, ElementsAre("select \"Ada\"", "command \"Delete\""));
}

TEST_F(RecordingTest, MenuThatIsLeftIsTheRightKey)
{
    press(PK_RIGHT, list({"Ada"}));
    press(PK_LEFT, place(1, Kind::MENU, {"Call", "Delete"}));
    EXPECT_THAT(lines, ElementsAre("select \"Ada\"", "key right", "back"));
}

TEST_F(RecordingTest, RightThatOpensNoMenuStandsBeforeWhatComesOfIt)
{
    press(PK_RIGHT, list({"Ada"}));
    show(place(1, Kind::ROWS, {"Dialling"}));
    recording.end();
    EXPECT_THAT(lines, ElementsAre("select \"Ada\"", "key right", "expect Dialling"));
}

TEST_F(RecordingTest, DigitThatHasOpenedADiallerIsAKeyWhereItIsTakenBack)
{
    press(static_cast<PegKey>('4'), list({"a"}));
    show(typing(place(1, Kind::BAR, {"Dial"}), "4"));
    press(PK_LEFT, typing(place(1, Kind::BAR, {"Dial"}), "4"), typing(place(1, Kind::BAR, {"Dial"}), ""));
    press(PK_LEFT, typing(place(1, Kind::BAR, {"Dial"}), ""), list({"a"}));
    EXPECT_THAT(lines, ElementsAre("key 4", "type \"\"", "back"));
}

TEST_F(RecordingTest, RightInAMenuIsWhatItsCommandSays)
{
    press(PK_RIGHT, place(1, Kind::MENU, {"Call", "Delete"}, 1));
    EXPECT_THAT(lines, ElementsAre("select \"Delete\"", "key right"));
}

TEST_F(RecordingTest, RowThatBecomesAnotherOneInItsPlaceIsAwaited)
{
    show(list({"Dialling"}));
    press(PK_VOLUME_UP, list({"Dialling"}));
    show(list({"Connected"}));
    recording.end();
    EXPECT_THAT(lines, ElementsAre("expect Dialling", "key volume-up", "await \"Connected\""));
}

TEST_F(RecordingTest, FieldThatIsSteppedThroughIsSet)
{
    Workplace five = place(0, Kind::FIELDS, {"Ringing"});
    five.choices[0].texts.emplace_back("5");
    Workplace six = five;
    six.choices[0].texts[1] = "6";
    press(PK_RIGHT, five, six);
    press(PK_RIGHT, six, five);
    press(PK_RIGHT, five, six);
    press(PK_HOOK, six);
    EXPECT_THAT(lines, ElementsAre("select \"Ringing\"", "set \"6\"", "key hook"));
}

TEST_F(RecordingTest, TabIsSelectedBeforeItsRow)
{
    Workplace first = list({"a", "b"}, 0);
    first.choices.push_back(part(Kind::TABS, {"All", "Missed"}, 0));
    first.choices[1].hasKeys = false;
    Workplace second = first;
    second.choices[1] = part(Kind::TABS, {"All", "Missed"}, 1);
    second.choices[1].hasKeys = false;
    press(PK_RIGHT, first, second);
    press(PK_OK, second);
    EXPECT_THAT(lines, ElementsAre("select \"Missed\"", "choose \"a\""));
}

TEST_F(RecordingTest, KeyWhereNothingCanBeChosenLeavesTheNextOneItsMeaning)
{
    Workplace idle;
    idle.window = &WINDOWS[2];
    press(PK_DOWN, idle);
    press(PK_RIGHT, list({"Ada"}));
    const Workplace menu = place(1, Kind::MENU, {"Call"});
    show(menu);
    press(PK_OK, menu);
    EXPECT_THAT(lines, ElementsAre("key down", "select \"Ada\"", "command \"Call\""));
}

TEST_F(RecordingTest, WhatATabHasIsExpectedBehindTheWayToTheTab)
{
    const auto tab = [](int number, const Names& names) {
        Workplace there = list(names);
        there.choices.push_back(part(Kind::TABS, {"All", "Missed"}, number));
        there.choices[1].hasKeys = false;
        return there;
    };
    show(tab(0, {"a", "b"}));
    press(PK_RIGHT, tab(0, {"a", "b"}), tab(1, {"c", "d"}));
    show(tab(1, {"c", "d"}));
    press(PK_HOOK, tab(1, {"c", "d"}));
    EXPECT_THAT(lines, ElementsAre("expect a", "select \"Missed\"", "select \"c\"", "await \"c\"", "key hook"));
}

TEST_F(RecordingTest, HeldOkOfAFormLeadsToItsCommands)
{
    const Workplace form = place(0, Kind::FIELDS, {"Name"});
    now = form;
    recording.comes(PK_OK, form);
    recording.done(PK_OK, form, form);
    recording.released(PK_OK, place(0, Kind::BAR, {"Save"}));
    EXPECT_THAT(lines, IsEmpty());
    press(PK_OK, place(0, Kind::BAR, {"Save"}));
    EXPECT_THAT(lines, ElementsAre("command \"Save\""));
}

TEST_F(RecordingTest, KeyThatIsHeldSaysForHowLong)
{
    for (const auto& there : {list({"a"}), place(1, Kind::FIELDS, {"Name"})}) {
        for (const PegKey key : {PK_HOOK, PK_OK}) {
            now = there;
            recording.comes(key, there);
            recording.done(key, there, there);
            clock += 3950;
            recording.released(key, there);
        }
    }
    EXPECT_THAT(lines,
                ElementsAre("key hook", "# hook was held for 4000 ms", "choose \"a\"", "# ok was held for 4000 ms",
                            "key hook", "# hook was held for 4000 ms", "hold ok 4000"));
}

TEST_F(RecordingTest, HeldLeftThatLeadsFurtherThanBackIsHeld)
{
    for (const int screens : {1, 2}) {
        now = place(3, Kind::ROWS, {"a"});
        recording.comes(PK_LEFT, now);
        recording.done(PK_LEFT, now, now);
        for (int screen = 0; screen < screens; ++screen)
            show(place(screens + screen, Kind::ROWS, {"09:41"}));
        clock += 750;
        recording.released(PK_LEFT, now);
    }
    EXPECT_THAT(lines, ElementsAre("back", "back", "hold left 800"));
}

TEST_F(RecordingTest, ScreenThatComesOfAKeyIsExpected)
{
    show(list({"a"}));
    press(PK_OK, list({"a"}));
    show(place(1, Kind::ROWS, {"b", "c"}));
    press(PK_LEFT, place(1, Kind::ROWS, {"b", "c"}));
    EXPECT_THAT(lines, ElementsAre("expect a", "choose \"a\"", "expect b", "back"));
}

TEST_F(RecordingTest, ScreenThatComesByItselfIsAwaited)
{
    show(list({"a"}));
    press(PK_OK, list({"a"}));
    clock += 5000;
    show(place(1, Kind::BAR, {"Answer", "Reject"}, 0, "Ada"));
    press(PK_OK, place(1, Kind::BAR, {"Answer", "Reject"}, 0, "Ada"));
    EXPECT_THAT(lines,
                ElementsAre("expect a", "choose \"a\"", "await \"Ada\"", "await \"Answer\"", "command \"Answer\""));
}

TEST_F(RecordingTest, RowsThatComeWhileTheUserWalksAreNoNews)
{
    show(list({"a"}));
    recording.end();
    show(list({"a", "b"}));
    press(PK_DOWN, list({"a", "b"}, 0), list({"a", "b"}, 1));
    show(list({"a", "b", "c"}, 1));
    press(PK_OK, list({"a", "b", "c"}, 1));
    EXPECT_THAT(lines, ElementsAre("expect a", "choose \"b\""));
}

TEST_F(RecordingTest, MenuThatOpensInAWindowIsExpected)
{
    show(place(1, Kind::FIELDS, {"Ring tone"}));
    recording.end();
    show(place(1, Kind::VALUES, {"Classic", "Marimba"}));
    show(place(1, Kind::VALUES, {"Classic", "Marimba"}, 1));
    recording.end();
    EXPECT_THAT(lines, ElementsAre("expect Ring tone", "expect Marimba"));
}

TEST_F(RecordingTest, ScreenOnTheWayIsNotExpected)
{
    show(place(1, Kind::ROWS, {"loading"}));
    show(place(2, Kind::ROWS, {"a"}));
    clock += 1000;
    show(place(3, Kind::ROWS, {"b"}));
    recording.end();
    EXPECT_THAT(lines, ElementsAre("expect a", "await \"b\""));
}

TEST_F(RecordingTest, TimesAreNotExpected)
{
    show(list({"09:41"}));
    show(place(1, Kind::ROWS, {"Up 4 s"}));
    show(place(2, Kind::ROWS, {"22.11.2026"}));
    recording.end();
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(RecordingTest, MessageIsExpectedAndItsEndAwaited)
{
    show(list({"a"}), "Saved");
    clock += 2000;
    show(list({"a"}));
    show(list({"a"}), "Call ended 00:04");
    clock += 2000;
    show(list({"a"}));
    EXPECT_THAT(lines, ElementsAre("await \"Saved\"", "await \"a\"", "await-not \"Saved\"", "wait 2100"));
}

TEST_F(RecordingTest, MessageComesBehindTheScreenThatWasThereBefore)
{
    show(list({"a"}));
    clock += 5000;
    show(place(1, Kind::ROWS, {"b"}));
    clock += 5000;
    show(place(1, Kind::ROWS, {"b"}), "Missed");
    EXPECT_THAT(lines, ElementsAre("expect a", "await \"b\"", "await \"Missed\""));
}

TEST_F(RecordingTest, WhatAMessageMayHideIsAwaited)
{
    show(list({"a"}), "Saved");
    show(place(1, Kind::ROWS, {"b"}), "Saved");
    recording.end();
    EXPECT_THAT(lines, ElementsAre("await \"Saved\"", "await \"b\""));
}

TEST_F(RecordingTest, DialogThatClosesByItselfKeepsWhatWasTyped)
{
    const Workplace dialog = place(1, Kind::BAR, {"OK"});
    press(static_cast<PegKey>('2'), typing(dialog, ""), typing(dialog, "a"));
    clock += 9000;
    show(list({"x"}));
    recording.end();
    EXPECT_THAT(lines, ElementsAre("type \"a\"", "await \"x\""));
}

TEST_F(RecordingTest, LinesSaidToTheProgramStandBeforeWhatComesOfThem)
{
    recording.saying("exchange", "4711 calls");
    show(place(1, Kind::BAR, {"Answer"}, 0, "Ada"));
    recording.said("exchange", "4711 calls", "");
    recording.saying("exchange", "4711 jumps");
    recording.said("exchange", "4711 jumps", "nobody jumps");
    recording.saying("jukebox", "play");
    recording.said("jukebox", "play", "");
    EXPECT_THAT(lines, ElementsAre("exchange 4711 calls", "expect Ada", "expect Answer",
                                   "# refused: exchange 4711 jumps: nobody jumps", "act jukebox play"));
}

TEST_F(RecordingTest, LinesThatAreSaidAtOnceAreToldApart)
{
    recording.saying("exchange", "4711 jumps");
    recording.saying("exchange", "4712 calls");
    recording.said("exchange", "4711 jumps", "nobody jumps");
    recording.said("exchange", "4712 calls", "");
    EXPECT_THAT(lines, ElementsAre("# refused: exchange 4711 jumps: nobody jumps", "exchange 4712 calls"));
}

TEST_F(RecordingTest, NothingUnseenIsSaid)
{
    recording.saying("exchange", "4711 \u202Esllac");
    recording.said("exchange", "4711 \u202Esllac", "");
    recording.saying("exchange", "47\n");
    recording.said("exchange", "47\n", "no \u061C");
    EXPECT_THAT(lines,
                ElementsAre(R"(# said to the program, which no line of a script can: "exchange 4711 \u202Esllac")",
                            R"(# refused: exchange 47\n: no \u061C)"));
}

TEST_F(RecordingTest, TwoPagesThatPressAtOnceAreOneUser)
{
    now = list({"a", "b"}, 0);
    recording.comes(PK_DOWN, list({"a", "b"}, 0));
    recording.done(PK_DOWN, list({"a", "b"}, 0), list({"a", "b"}, 1));
    recording.comes(PK_OK, list({"a", "b"}, 1));
    recording.done(PK_OK, list({"a", "b"}, 1), list({"a", "b"}, 1));
    recording.released(PK_DOWN, list({"a", "b"}, 1));
    recording.released(PK_OK, list({"a", "b"}, 1));
    EXPECT_THAT(lines, ElementsAre("choose \"b\""));
}

} // namespace
