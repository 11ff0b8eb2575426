#include "simulator/record/Recording.h"

#include "host/input/Keyboard.h"
#include "toolkit/PegThing.h"

#include <algorithm>

namespace simulator {

namespace {

using host::Choices;
using host::Keyboard;
using host::Workplace;
using Kind = Choices::Kind;

/// A screen that gives way to another one sooner has only been on the way there.
constexpr std::int64_t LONG_ENOUGH = 300;

constexpr std::int64_t LONG_PRESS = 600;
constexpr std::int64_t HOLD_STEP = 100;
constexpr std::size_t LONGEST_EXPECTED = 200;
constexpr std::size_t LONGEST_UNIT = 6;  ///< bytes
constexpr std::size_t MOST_EXPECTED = 2; ///< the small panel has no more lines

bool areOf(const Choices* choices, std::initializer_list<Kind> kinds)
{
    return choices != nullptr && std::ranges::find(kinds, choices->kind) != kinds.end();
}

/// Which field of a form; -1 where it is none.
int fieldOf(const Workplace& place)
{
    const Choices* const here = place.withKeys();
    return areOf(here, {Kind::FIELDS}) ? here->current : -1;
}

bool isSidewards(PegKey key)
{
    return key == PK_LEFT || key == PK_RIGHT;
}

bool isArrow(PegKey key)
{
    return key >= PK_UP && key <= PK_RIGHT;
}

/// Milliseconds, as a script has them.
std::string inSteps(std::int64_t held)
{
    return std::to_string((held + HOLD_STEP - 1) / HOLD_STEP * HOLD_STEP);
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Whether it looks like a time, a date or a duration, which are others the next time: a digit, what separates, and two
/// digits; or at the end a number and a short unit in small letters.
bool isOfTheMoment(const std::string& text)
{
    for (std::size_t at = 0; at + 3 < text.size(); ++at) {
        const bool separates = text[at + 1] == ':' || text[at + 1] == '.' || text[at + 1] == '/';
        if (separates && isDigit(text[at]) && isDigit(text[at + 2]) && isDigit(text[at + 3]))
            return true;
    }
    const auto space = text.rfind(' ');
    if (space == text.npos || space == 0 || !isDigit(text[space - 1]))
        return false;
    const std::string_view unit = std::string_view(text).substr(space + 1);
    const auto isInIt = [](unsigned char byte) { return byte >= 0x80 || (byte >= 'a' && byte <= 'z'); };
    return !unit.empty() && unit.size() <= LONGEST_UNIT && std::ranges::all_of(unit, isInIt);
}

/// Why a replay could not find the current one by what it is called; empty where it can.
std::string whyNameless(const Choices& choices)
{
    if (choices.texts.empty() || choices.texts.front().empty())
        return "what is chosen here has no text";
    if (choices.isAtBack)
        return "what is chosen here is not on every panel";
    if (isOfTheMoment(choices.texts.front()))
        return "what is chosen here is called otherwise the next time";
    return {};
}

bool isLiteral(const ScriptText& text)
{
    return text.pieces.size() == 1 && !text.pieces.front().isTranslated;
}

/// Whether it can stand behind `expect` as it is.
bool isPlain(const std::string& text)
{
    const std::string quoted = quotedForScript(text);
    const bool isSeen =
        quoted.find("\\x") == quoted.npos && quoted.find("\\u") == quoted.npos && quoted.find("\\n") == quoted.npos;
    return isSeen && text.front() != ' ' && text.back() != ' ' && !text.starts_with("_(");
}

/// The beginning of a long one, without half a character.
std::string beginningOf(const std::string& text)
{
    std::size_t end = std::min(text.size(), LONGEST_EXPECTED);
    while (end < text.size() && end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80)
        --end;
    return text.substr(0, end);
}

bool canBeDialled(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789*#+") == text.npos;
}

std::string lineFor(const std::string& wire, const std::string& line)
{
    if (wire == "exchange" || wire == "language")
        return wire + ' ' + line;
    return "act " + wire + (line.empty() ? "" : " ") + line;
}

} // namespace

/// Left and right may lead out of what is typed: that is seen when they have.
bool Recording::isEditing(const Workplace& before, PegKey key) const
{
    return before.edited && (before.edited->takesAllKeys || isOfKeypad(key) || isSidewards(key));
}

void Recording::comes(PegKey key, const Workplace& before)
{
    if (!mDown || mDown->key != key)
        mDown = Down{.key = key, .since = mWorld.now()};
    mDown->isWritten = false;
    finishInVain(before);
    joinLoose(before);
    acted();
    if (isEditing(before, key))
        return;
    if (key == PK_OK && dials(before))
        return;
    finishText(&before);
    if (!isSidewards(key))
        finishSetting();
    if (mMenu && areOf(before.withKeys(), {Kind::MENU})) {
        mNews.reset();
    } else {
        finishMenu();
        expectNews(before);
    }
    finishSaying();
    if (isOfKeypad(key)) {
        keepWay(before);
        mLoose.push_back({key, 0});
    } else if (key == PK_OK) {
        pressedOk(before);
    } else {
        pressedOther(key, before);
    }
}

/// A number that has been typed into a dialler, whose first command OK is.
bool Recording::dials(const Workplace& before)
{
    const bool isDialler = before.edited && before.edited->isDialler && !before.edited->takesAllKeys;
    const Choices* const bar = before.part(Kind::BAR);
    if (!isDialler || !mTyping || (bar != nullptr && bar->current > 0) || !canBeDialled(before.edited->text))
        return false;
    mTyping.reset();
    mNews.reset();
    write("dial " + before.edited->text);
    return true;
}

void Recording::pressedOk(const Workplace& before)
{
    finishLoose();
    const Choices* const here = before.withKeys();
    if (areOf(here, {Kind::FIELDS})) {
        mIsOkDown = true;
        mOkField = before;
        return;
    }
    if (areOf(here, {Kind::MENU}) && !here->isAtBack && mMenu)
        write("select " + *std::exchange(mMenu, std::nullopt));
    finishMenu();
    if (here == nullptr)
        return pressKey(PK_OK);
    if (here->isAtBack) {
        write("back");
        return forgetMoves();
    }
    if (const std::string reason = whyNameless(*here); !reason.empty()) {
        repeatMoves(reason);
        return pressKey(PK_OK);
    }
    goToTab(before);
    const bool isCommand = areOf(here, {Kind::MENU, Kind::BAR});
    write((isCommand ? "command " : "choose ") + nameOfCurrent(*here));
    forgetMoves();
}

/// Where up, down, left and right lead is seen when they have been handled.
void Recording::pressedOther(PegKey key, const Workplace& before)
{
    const Choices* const here = before.withKeys();
    const bool moves = isArrow(key);
    if (moves && here != nullptr) {
        const bool isMenu = areOf(here, {Kind::MENU, Kind::VALUES});
        const bool leaves =
            key == PK_LEFT && (isMenu || (here->kind == Kind::ROWS && before.part(Kind::TABS) == nullptr));
        if (!leaves && !(key == PK_RIGHT && isMenu))
            return;
    }
    finishLoose();
    finishSetting();
    finishMenu();
    if (key == PK_LEFT) {
        write("back");
        mDown->isWritten = true;
        forgetMoves();
        return;
    }
    mHasMoved = mHasMoved || key == PK_RIGHT; // it is what the command there says
    if (!moves || key == PK_RIGHT)
        goToWhereHeIs(before);
    pressKey(key);
    mDown->isWritten = true;
}

/// As the telephone has it.
void Recording::pressKey(PegKey key)
{
    write("key " + Keyboard::nameOf(key));
    forgetMoves();
}

void Recording::done(PegKey key, const Workplace& before, const Workplace& after)
{
    acted();
    joinLoose(after);
    if (isEditing(before, key))
        return followText(key, before, after);
    if (mIsOkDown && key == PK_OK && areOf(after.withKeys(), {Kind::VALUES})) {
        mIsOkDown = false;
        finishMenu();
        write("choose " + nameOfCurrent(*before.withKeys()));
        forgetMoves();
    }
    if (isArrow(key) && before.withKeys() != nullptr && !isWritten())
        followMove(key, before, after);
}

/// What a key has done in what is typed, or how it has led out of it.
void Recording::followText(PegKey key, const Workplace& before, const Workplace& after)
{
    const bool isThere = after.edited && after.window == before.window && fieldOf(after) == fieldOf(before);
    if (isThere) {
        const std::string& text = after.edited->text;
        if (!mTyping && text != before.edited->text)
            mTyping = typingIn(before, before.edited->text, key);
        if (mTyping)
            mTyping->text = text;
        const bool isUnmoved = text == before.edited->text && after.edited->cursor == before.edited->cursor;
        if (key == PK_LEFT && isUnmoved && !before.edited->takesAllKeys)
            mInVain = {key, before};
        return;
    }
    if (!isSidewards(key))
        return;
    finishText(&before);
    mNews.reset();
    if (key == PK_LEFT)
        write("back");
    else
        pressKey(key);
}

Recording::Typing Recording::typingIn(const Workplace& place, std::optional<std::string> text, PegKey opener)
{
    Typing typing{.window = place.window, .field = fieldOf(place), .before = std::move(text), .opener = opener};
    const Choices* const here = place.withKeys();
    if (!areOf(here, {Kind::FIELDS}))
        return typing;
    typing.nameless = whyNameless(*here);
    if (typing.nameless.empty())
        typing.fieldLine = nameOfCurrent(*here);
    return typing;
}

void Recording::followMove(PegKey key, const Workplace& before, const Workplace& after)
{
    const Choices& from = *before.withKeys();
    const Choices* const to = after.withKeys();
    if (after.window != before.window || to == nullptr) {
        if (key == PK_LEFT)
            return leftBy(before);
        goToWhereHeIs(before);
        return pressKey(key);
    }
    const Choices* const tabs = before.part(Kind::TABS);
    const Choices* const tabsNow = after.part(Kind::TABS);
    if (tabs != nullptr && tabsNow != nullptr && tabs->current != tabsNow->current)
        mHasTurnedTab = true;
    else if (isSidewards(key) && from.kind == Kind::FIELDS && to->kind == Kind::FIELDS && to->current == from.current)
        return followValue(after);
    else if (to->kind == from.kind && to->current == from.current)
        return key == PK_RIGHT && from.kind == Kind::ROWS ? openMenu(before) : void(mInVain = {key, before});
    mHasMoved = true;
    if (mMoves.size() < MOST_MOVES)
        mMoves.push_back(key);
}

/// Of a field, by left or right; at its ends it has none.
void Recording::followValue(const Workplace& after)
{
    const Choices& field = *after.withKeys();
    if (field.texts.size() < 2 || field.texts[1].empty())
        return;
    const bool hasName = whyNameless(field).empty();
    if (!hasName)
        goToWhereHeIs(after);
    mSetting = Setting{after.window, hasName ? nameOfCurrent(field) : "", field.texts[1]};
}

/// What else can be done with a row: mostly a command of it.
void Recording::openMenu(const Workplace& before)
{
    finishLoose();
    finishSetting();
    finishMenu();
    const Choices& rows = *before.withKeys();
    if (const std::string reason = whyNameless(rows); !reason.empty()) {
        repeatMoves(reason);
        return pressKey(PK_RIGHT);
    }
    goToTab(before);
    mMenu = nameOfCurrent(rows);
    forgetMoves();
}

void Recording::released(PegKey key, const Workplace& before)
{
    const std::int64_t held = mDown && mDown->key == key ? mWorld.now() - mDown->since : 0;
    const int screens = mDown ? mDown->screens : 0;
    mDown.reset();
    acted();
    joinLoose(before);
    if (mIsOkDown && key == PK_OK)
        return finishOk(&before, held);
    if (!mLoose.empty() && mLoose.back().key == key)
        mLoose.back().heldFor = held;
    else if (key == PK_LEFT && held >= LONG_PRESS && screens > 1) // it has led further than back
        write("hold left " + inSteps(held));
    else if (held >= LONG_PRESS && !isOfKeypad(key) && !isArrow(key)) // the line stands before what the key does
        write("# " + Keyboard::nameOf(key) + " was held for " + inSteps(held) + " ms");
}

void Recording::shown(const Workplace& place, const std::vector<host::TextRun>& texts)
{
    finishInVain(place);
    joinLoose(place);
    const bool isElsewhere = place.window != mLast.window;
    if (isElsewhere) {
        if (mDown)
            ++mDown->screens;
        if (mTyping && mTyping->window != place.window)
            finishText(nullptr);
        if (!areOf(place.withKeys(), {Kind::MENU}))
            finishMenu();
        finishLoose();
        finishSetting();
        if (mHasMoved) // what has come of it
            mNews.reset();
        keepWay(mLast);
        forgetMoves();
    }
    followTyped(place);
    noteMessage(texts);
    if (isOther(place, mLast)) {
        if (mNews && mNews->window != place.window && mWorld.now() - mNewsSince >= LONG_ENOUGH)
            expectNews(mLast);
        mNewsComeByThemselves = !isAtOnce() || isSameList(place, mLast);
        mNewsSince = mWorld.now();
        mNews = factsOf(place, texts);
    } else if (mNews) {
        mNews = factsOf(place, texts);
    }
    mLast = place;
}

void Recording::saying(const std::string& wire, const std::string& line)
{
    finishAll();
    expectNews(mLast);
    mSayings.push_back(lineFor(wire, line));
    acted();
}

/// One thread after the other, or several at once. What has come of a line by now has had it written.
void Recording::said(const std::string& wire, const std::string& line, const std::string& refusal)
{
    const std::string whole = lineFor(wire, line);
    const auto found = std::ranges::find(mSayings, whole);
    const bool isWritten = found == mSayings.end();
    if (!isWritten)
        mSayings.erase(found);
    if (!refusal.empty())
        write("# refused: " + onOneLine(whole + ": " + refusal));
    else if (!isWritten)
        writeSaid(whole);
}

void Recording::end()
{
    finishAll();
    expectNews(mLast);
    finishSaying();
}

/// The keypad has typed into something by now.
void Recording::joinLoose(const Workplace& place)
{
    if (mLoose.empty() || !place.edited)
        return;
    mTyping = typingIn(place, {}, mLoose.front().key);
    mTyping->fieldLine.clear(); // it may have come with the key
    mTyping->text = place.edited->text;
    mLoose.clear();
}

/// What runs out in the meantime changes the text as well.
void Recording::followTyped(const Workplace& place)
{
    const bool isThere = mTyping && place.edited && place.window == mTyping->window && fieldOf(place) == mTyping->field;
    if (isThere)
        mTyping->text = place.edited->text;
}

void Recording::finishText(const Workplace* place)
{
    if (place != nullptr)
        followTyped(*place);
    const std::optional<Typing> typed = std::exchange(mTyping, std::nullopt);
    if (!typed || typed->text == typed->before)
        return;
    if (!typed->before && typed->text.empty()) // what has been opened by a key stays open without a text
        write("key " + Keyboard::nameOf(typed->opener));
    if (!typed->fieldLine.empty())
        write("select " + typed->fieldLine);
    else if (!typed->nameless.empty() && !mMoves.empty())
        repeatMoves(typed->nameless);
    write("type " + quotedForScript(typed->text));
    forgetMoves();
}

void Recording::finishLoose()
{
    for (const Loose& loose : std::exchange(mLoose, {})) {
        write(loose.heldFor >= LONG_PRESS ? "hold " + Keyboard::nameOf(loose.key) + ' ' + inSteps(loose.heldFor)
                                          : "key " + Keyboard::nameOf(loose.key));
    }
}

void Recording::finishSetting()
{
    const std::optional<Setting> set = std::exchange(mSetting, std::nullopt);
    if (!set)
        return;
    if (!set->field.empty())
        write("select " + set->field);
    write("set " + mWorld.textOf(set->value).written());
    forgetMoves();
}

/// A form's OK counts when it goes up; while it is held it leads to the commands.
void Recording::finishOk(const Workplace* before, std::int64_t held)
{
    if (!std::exchange(mIsOkDown, false))
        return;
    if (before != nullptr && areOf(before->withKeys(), {Kind::BAR})) {
        mHasMoved = true;
        return;
    }
    goToWhereHeIs(mOkField);
    write(held >= LONG_PRESS ? "hold ok " + inSteps(held) : "key ok");
    forgetMoves();
}

void Recording::finishMenu()
{
    const std::optional<std::string> row = std::exchange(mMenu, std::nullopt);
    if (!row)
        return;
    write("select " + *row);
    write("key right");
}

/// A key that has moved nothing has led away by now, or the program has done something else about it.
void Recording::finishInVain(const Workplace& place)
{
    if (!mInVain)
        return;
    const auto [key, before] = *std::exchange(mInVain, std::nullopt);
    const bool isElsewhere = before.window != place.window;
    const bool leads = isElsewhere || (before.edited.has_value() && !place.edited);
    if (leads && key == PK_LEFT)
        return leftBy(before);
    if (!isAtOnce() || !(isElsewhere || isOther(place, before) || isRenamed(place, before)))
        return;
    finishText(&before);
    finishSetting();
    goToWhereHeIs(before);
    if (key == PK_LEFT)
        write("back");
    else
        pressKey(key);
}

void Recording::leftBy(const Workplace& before)
{
    finishText(&before);
    finishSetting();
    finishMenu();
    write("back");
    forgetMoves();
}

void Recording::finishSaying()
{
    for (const std::string& line : std::exchange(mSayings, {}))
        writeSaid(line);
}

void Recording::writeSaid(const std::string& line)
{
    write(isPlainLine(line) ? line : "# said to the program, which no line of a script can: " + quotedForScript(line));
    acted();
}

void Recording::finishAll()
{
    finishOk(nullptr, 0);
    finishText(nullptr);
    finishSetting();
    finishLoose();
    finishMenu();
}

void Recording::goToTab(const Workplace& place)
{
    const Choices* const tabs = place.part(Kind::TABS);
    if (std::exchange(mHasTurnedTab, false) && tabs != nullptr && tabs != place.withKeys())
        write("select " + nameOfCurrent(*tabs));
}

void Recording::goToWhereHeIs(const Workplace& place)
{
    const Choices* const here = place.withKeys();
    if (!mHasMoved || here == nullptr)
        return;
    if (const std::string reason = whyNameless(*here); !reason.empty()) {
        if (!mMoves.empty())
            repeatMoves(reason);
        return;
    }
    goToTab(place);
    write("select " + nameOfCurrent(*here));
    forgetMoves();
}

/// Before another screen is there, whose return would leave nobody to tell it.
void Recording::keepWay(const Workplace& place)
{
    const Choices* const here = place.withKeys();
    if (here != nullptr && !whyNameless(*here).empty())
        goToWhereHeIs(place);
}

/// From where the last line has left the user.
void Recording::repeatMoves(const std::string& reason)
{
    write("# " + reason);
    for (const PegKey move : mMoves)
        write("key " + Keyboard::nameOf(move));
    forgetMoves();
}

void Recording::forgetMoves()
{
    mMoves.clear();
    mHasMoved = false;
    mHasTurnedTab = false;
}

/// With its number where others before it are called the same.
std::string Recording::nameOfCurrent(const Choices& choices)
{
    const std::string& name = choices.texts.front();
    const Workplace place = mWorld.look({name});
    const Choices* const there = place.part(choices.kind);
    std::ptrdiff_t number = 1;
    if (there != nullptr)
        number = std::ranges::find(there->found, choices.current) - there->found.begin() + 1;
    return mWorld.textOf(name).written() + (number > 1 ? " #" + std::to_string(number) : "");
}

/// A row that is another one because the user has gone there is none.
bool Recording::isOther(const Workplace& place, const Workplace& former)
{
    if (place.window != former.window || place.title != former.title || place.lines != former.lines)
        return true;
    const Choices* const here = place.withKeys();
    const Choices* const before = former.withKeys();
    const bool hasOpened = areOf(here, {Kind::MENU, Kind::VALUES}) && (before == nullptr || before->kind != here->kind);
    if (hasOpened)
        return true;
    const bool areRows = areOf(here, {Kind::ROWS}) && areOf(before, {Kind::ROWS});
    return areRows && here->current == before->current && here->texts != before->texts;
}

/// The tab, or whatever else he is at.
bool Recording::isRenamed(const Workplace& place, const Workplace& former)
{
    const Choices* const here = place.withKeys();
    const Choices* const before = former.withKeys();
    return here != nullptr && before != nullptr && here->kind == before->kind && here->current == before->current &&
           here->texts != before->texts;
}

/// What changes in its place mostly does so as time passes, and soon after a key by chance.
bool Recording::isSameList(const Workplace& place, const Workplace& former)
{
    return place.window == former.window && areOf(place.withKeys(), {Kind::ROWS}) &&
           areOf(former.withKeys(), {Kind::ROWS});
}

/// What the small panel has room for as well: the row, and what stands in a popup's first line; and no time.
Recording::Facts Recording::factsOf(const Workplace& place, const std::vector<host::TextRun>& texts) const
{
    Texts candidates;
    const Choices* const here = place.withKeys();
    const bool isPopup = areOf(here, {Kind::BAR}) && place.part(Kind::FIELDS) == nullptr;
    if (isPopup && !place.edited)
        candidates.push_back(!place.title.empty() || place.lines.empty() ? place.title : place.lines.front());
    if (areOf(here, {Kind::ROWS}) && place.part(Kind::TABS) == nullptr)
        candidates.insert(candidates.end(), here->texts.begin(), here->texts.end());
    else if (here != nullptr && !here->texts.empty())
        candidates.push_back(here->texts.front());
    if (here == nullptr)
        candidates.push_back(place.title);
    const auto isLasting = [&](const std::string& text) {
        const auto isIt = [&](const host::TextRun& run) { return run.text == text && !run.runs; };
        return !text.empty() && !isOfTheMoment(text) && std::ranges::any_of(texts, isIt);
    };
    Facts facts{place.window, {}, areOf(here, {Kind::ROWS})};
    const bool isElsewhereAsWell = here == nullptr || !here->isAtBack;
    if (isElsewhereAsWell && (!place.edited || !place.edited->isDialler))
        std::ranges::copy_if(candidates, std::back_inserter(facts.texts), isLasting);
    return facts;
}

/// A message lies over the rest for a while: on the small panel over all of it.
void Recording::noteMessage(const std::vector<host::TextRun>& texts)
{
    const auto found = std::ranges::find(texts, TYPE_STATUS_MESSAGE, &host::TextRun::widget);
    const std::string message = found != texts.end() ? found->text : std::string();
    if (message == mMessage)
        return;
    finishSaying();
    const std::string former = std::exchange(mMessage, message);
    if (mNews && mWorld.now() - mNewsSince >= LONG_ENOUGH)
        expectNews(mLast);
    if (message.empty())
        return messageHasGone(former);
    mMayBeHidden = true;
    mMessageSince = mWorld.now();
    if (!isOfTheMoment(message))
        expect(message, true);
}

/// One that says a time is another one the next time, and stays as long.
void Recording::messageHasGone(const std::string& message)
{
    const std::int64_t stayed = mWorld.now() - mMessageSince + HOLD_STEP;
    if (isOfTheMoment(message))
        write("wait " + std::to_string(stayed / HOLD_STEP * HOLD_STEP));
    else
        write("await-not " + mWorld.textOf(beginningOf(message)).written());
    mMayBeHidden = false;
}

/// Behind the way to it. What is new comes first; on another screen that has nothing new, what there is.
void Recording::expectNews(const Workplace& place)
{
    const std::optional<Facts> news = std::exchange(mNews, std::nullopt);
    if (!news)
        return;
    const auto isNew = [&](const std::string& text) {
        return std::ranges::find(mTold.texts, text) == mTold.texts.end();
    };
    Texts texts;
    std::ranges::copy_if(news->texts, std::back_inserter(texts), isNew);
    if (texts.empty() && news->window != mTold.window)
        texts = news->texts;
    texts.resize(std::min(texts.size(), MOST_EXPECTED));
    finishSaying();
    if (!texts.empty())
        goToWhereHeIs(place);
    for (const std::string& text : texts) // behind a row's name stands how it is by now
        expect(text, mNewsComeByThemselves || mMayBeHidden || (news->areRows && text != news->texts.front()));
    mTold = *news;
}

void Recording::expect(const std::string& text, bool comesByItself)
{
    const ScriptText whole = mWorld.textOf(text);
    const bool isOwn = isLiteral(whole);
    const std::string begin = beginningOf(text);
    if (!comesByItself && (isOwn ? isPlain(begin) : whole.pieces.front().isTranslated))
        write("expect " + (isOwn ? begin : whole.written()));
    else
        write("await " + (isOwn ? quotedForScript(begin) : whole.written()));
}

void Recording::acted()
{
    mActedAt = mWorld.now();
}

bool Recording::isAtOnce() const
{
    return mWorld.now() - mActedAt <= mWorld.atOnce;
}

} // namespace simulator
