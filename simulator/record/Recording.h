#pragma once

#include "host/input/Workplace.h"
#include "host/lcd/Lcd.h"
#include "simulator/script/ScriptText.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace simulator {

/// Makes lines of a script of what a user does and sees: what he means where that can be told, and his key where it
/// cannot. A line is written before its key has done anything, but where only that tells what the key means.
/// GUI thread only.
class Recording {
public:
    using Texts = std::vector<std::string>;
    using Workplace = host::Workplace;

    struct Surroundings {
        std::function<Workplace(const Texts& wanted)> look;
        std::function<ScriptText(const std::string& text)> textOf;
        std::function<std::int64_t()> now; ///< milliseconds on the telephone's clock
        std::int64_t atOnce;               ///< what comes so soon after a key comes of it
        std::function<void(const std::string& line)> write;
    };

    explicit Recording(Surroundings surroundings) : mWorld(std::move(surroundings)) {}

    /// A key is about to go down, and has done what it does.
    void comes(PegKey key, const Workplace& before);
    void done(PegKey key, const Workplace& before, const Workplace& after);

    /// A key is about to go up.
    void released(PegKey key, const Workplace& before);

    /// There is another screen.
    void shown(const Workplace& place, const std::vector<host::TextRun>& texts);

    /// Somebody is about to say a line to the program; and has: empty where it was taken.
    void saying(const std::string& wire, const std::string& line);
    void said(const std::string& wire, const std::string& line, const std::string& refusal);

    /// The program ends.
    void end();

private:
    using Choices = host::Choices;

    static constexpr std::size_t MOST_MOVES = 1000;

    /// What is being typed.
    struct Typing {
        const void* window = nullptr;
        int field = -1;                      ///< of a form
        std::string fieldLine{};             ///< what it is called
        std::string nameless{};              ///< or why not
        std::optional<std::string> before{}; ///< what stood there; nothing where the keys have opened it
        std::string text{};
        PegKey opener{}; ///< the first key
    };

    /// A field that is being set by left and right.
    struct Setting {
        const void* window = nullptr;
        std::string field;
        std::string value;
    };

    /// The key that is down.
    struct Down {
        PegKey key;
        std::int64_t since;
        int screens = 0;        ///< that have come meanwhile
        bool isWritten = false; ///< before it has done what it does
    };

    /// A key of the keypad of which it is to be seen what it types into.
    struct Loose {
        PegKey key;
        std::int64_t heldFor;
    };

    /// What the user sees that other panels show as well, the best first.
    struct Facts {
        const void* window = nullptr;
        Texts texts{};
        bool areRows = false;
    };

    bool isEditing(const Workplace& before, PegKey key) const;
    bool dials(const Workplace& before);
    void pressedOk(const Workplace& before);
    void pressedOther(PegKey key, const Workplace& before);
    void pressKey(PegKey key);
    Typing typingIn(const Workplace& place, std::optional<std::string> text, PegKey opener);
    void followText(PegKey key, const Workplace& before, const Workplace& after);
    void followMove(PegKey key, const Workplace& before, const Workplace& after);
    void followValue(const Workplace& after);
    void followTyped(const Workplace& place);
    void openMenu(const Workplace& before);

    void joinLoose(const Workplace& place);
    void finishText(const Workplace* place);
    void finishLoose();
    void finishSetting();
    void finishOk(const Workplace* before, std::int64_t held);
    void finishMenu();
    void finishInVain(const Workplace& place);
    void finishSaying();
    void writeSaid(const std::string& line);
    void finishAll();
    void leftBy(const Workplace& before);
    void goToTab(const Workplace& place);
    void goToWhereHeIs(const Workplace& place);
    void keepWay(const Workplace& place);
    void repeatMoves(const std::string& reason);
    void forgetMoves();
    std::string nameOfCurrent(const Choices& choices);

    static bool isOther(const Workplace& place, const Workplace& former);
    static bool isRenamed(const Workplace& place, const Workplace& former);
    static bool isSameList(const Workplace& place, const Workplace& former);
    Facts factsOf(const Workplace& place, const std::vector<host::TextRun>& texts) const;
    void noteMessage(const std::vector<host::TextRun>& texts);
    void messageHasGone(const std::string& message);
    void expectNews(const Workplace& place);
    void expect(const std::string& text, bool comesByItself);

    void write(const std::string& line) { mWorld.write(line); }
    bool isAtOnce() const;
    void acted();
    bool isWritten() const { return mDown && mDown->isWritten; }

    const Surroundings mWorld;

    Workplace mLast;      ///< as it has been seen last
    std::string mMessage; ///< that lies over it
    std::int64_t mMessageSince = 0;
    bool mMayBeHidden = false; ///< by a message, where the clock has stood still since
    Facts mTold;
    std::optional<Facts> mNews;
    std::int64_t mNewsSince = 0;
    bool mNewsComeByThemselves = false;
    std::int64_t mActedAt = 0;

    // What has been done, and is no line yet.
    std::optional<Typing> mTyping;
    std::optional<Setting> mSetting;
    std::vector<Loose> mLoose;
    std::optional<std::string> mMenu;                    ///< the row for which the right key has been pressed
    std::optional<std::pair<PegKey, Workplace>> mInVain; ///< an arrow, where it has changed nothing yet
    bool mIsOkDown = false;                              ///< in a form, where it matters how long
    Workplace mOkField;
    std::vector<std::string> mSayings; ///< of which it is not known yet whether they are taken

    bool mHasMoved = false;
    bool mHasTurnedTab = false;
    std::vector<PegKey> mMoves; ///< the keys by which he has gone somewhere since the last line
    std::optional<Down> mDown;
};

} // namespace simulator
