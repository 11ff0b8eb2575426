#include "apps/exchange/Sentence.h"

#include "apps/exchange/Words.h"

#include <array>
#include <utility>

namespace exchange {

namespace {

constexpr int MOST_LINES = 8;
constexpr int MOST_MESSAGES = 999;

/// One thing that somebody does, as it is said; what is not said is empty.
struct Clause {
    enum class Verb {
        CALLS,
        CALLS_BACK,
        ANSWERS,
        IS_BUSY,
        NEVER_ANSWERS,
        REJECTS,
        FAILS,
        FORWARDS,
        HOLDS,
        RESUMES,
        ENDS,
        TRANSFERS,
        PLAYS_IN_CONFERENCE
    };

    Verb verb;
    std::optional<std::int64_t> after = {};
    std::string number = {};
    std::string text = {};
    Deed deed = {}; ///< CALLS, ENDS: what a deed alone can say
};
using Verb = Clause::Verb;

struct Phrase {
    std::string_view words;
    Verb verb;
};

/// Longer ones before those that they begin with.
constexpr std::array<Phrase, 14> PHRASES = {{
    {"calls back", Verb::CALLS_BACK},
    {"calls", Verb::CALLS},
    {"answers", Verb::ANSWERS},
    {"is busy", Verb::IS_BUSY},
    {"never answers", Verb::NEVER_ANSWERS},
    {"rejects", Verb::REJECTS},
    {"fails with", Verb::FAILS},
    {"forwards to", Verb::FORWARDS},
    {"holds", Verb::HOLDS},
    {"resumes", Verb::RESUMES},
    {"ends", Verb::ENDS},
    {"transfers me to", Verb::TRANSFERS},
    {"transfers to", Verb::TRANSFERS},
    {"plays in a conference with", Verb::PLAYS_IN_CONFERENCE},
}};

std::string_view wordsFor(Verb verb)
{
    for (const Phrase& phrase : PHRASES)
        if (phrase.verb == verb)
            return phrase.words;
    return {};
}

Verb takeVerb(Words& words)
{
    for (const Phrase& phrase : PHRASES)
        if (words.skip(phrase.words))
            return phrase.verb;
    std::string known;
    for (const Phrase& phrase : PHRASES)
        known += (known.empty() ? "" : ", ") + std::string(phrase.words);
    throw Mistake("expected what the number does, not " + words.here() + "; that is one of: " + known);
}

void takeCall(Words& words, Deed& deed)
{
    if (words.skip("line"))
        deed.line = words.takeCount("the number of a line", 1, MOST_LINES);
    if (words.skip("forwarded by"))
        deed.forwardedBy = words.takeNumber();
    if (words.skip("for"))
        deed.patience = words.takeTime();
}

std::string takeReason(Words& words)
{
    std::string reason = words.takeText("the reason");
    if (reason.empty())
        throw Mistake("the reason is empty");
    return reason;
}

void takeEnd(Words& words, Deed& deed)
{
    deed.isBusy = words.skip("busy");
    if (!deed.isBusy && words.isText())
        deed.text = takeReason(words);
}

/// What belongs to the verb alone.
void takeObject(Words& words, Clause& clause)
{
    switch (clause.verb) {
    case Verb::FORWARDS:
    case Verb::TRANSFERS:
    case Verb::PLAYS_IN_CONFERENCE: clause.number = words.takeNumber(); return;
    case Verb::FAILS: clause.text = takeReason(words); return;
    case Verb::CALLS: return takeCall(words, clause.deed);
    case Verb::ENDS: return takeEnd(words, clause.deed);
    default: return;
    }
}

bool takesTime(Verb verb)
{
    return verb != Verb::CALLS && verb != Verb::IS_BUSY && verb != Verb::NEVER_ANSWERS && verb != Verb::FAILS;
}

Clause takeClause(Words& words)
{
    Clause clause{takeVerb(words)};
    takeObject(words, clause);
    if (takesTime(clause.verb) && words.skip("after"))
        clause.after = words.takeTime();
    return clause;
}

std::vector<Clause> takeClauses(Words& words)
{
    std::vector<Clause> clauses;
    do
        clauses.push_back(takeClause(words));
    while (words.skip(","));
    if (!words.areOver())
        throw Mistake("expected a comma or the end of the line, not " + words.here());
    return clauses;
}

std::optional<Behaviour::Arrival> arrivalOf(Verb verb)
{
    using Arrival = Behaviour::Arrival;
    switch (verb) {
    case Verb::ANSWERS: return Arrival::ANSWERS;
    case Verb::IS_BUSY: return Arrival::IS_BUSY;
    case Verb::NEVER_ANSWERS: return Arrival::NEVER_ANSWERS;
    case Verb::REJECTS: return Arrival::REJECTS;
    case Verb::FAILS: return Arrival::FAILS;
    case Verb::FORWARDS: return Arrival::FORWARDS;
    default: return {};
    }
}

std::optional<TalkStep::Kind> talkStepOf(Verb verb)
{
    using Kind = TalkStep::Kind;
    switch (verb) {
    case Verb::HOLDS: return Kind::HOLDS;
    case Verb::RESUMES: return Kind::RESUMES;
    case Verb::ENDS: return Kind::ENDS;
    case Verb::TRANSFERS: return Kind::TRANSFERS;
    case Verb::PLAYS_IN_CONFERENCE: return Kind::PLAYS_IN_CONFERENCE;
    default: return {};
    }
}

std::optional<Deed::Kind> deedOf(Verb verb)
{
    using Kind = Deed::Kind;
    switch (verb) {
    case Verb::CALLS: return Kind::CALLS;
    case Verb::ANSWERS: return Kind::ANSWERS;
    case Verb::REJECTS: return Kind::REJECTS;
    case Verb::HOLDS: return Kind::HOLDS;
    case Verb::RESUMES: return Kind::RESUMES;
    case Verb::ENDS: return Kind::ENDS;
    case Verb::TRANSFERS: return Kind::TRANSFERS;
    case Verb::PLAYS_IN_CONFERENCE: return Kind::PLAYS_IN_CONFERENCE;
    default: return {};
    }
}

/// Folds clauses into a behaviour.
class BehaviourMaker {
public:
    void add(const Clause& clause)
    {
        if (const auto arrival = arrivalOf(clause.verb))
            return addArrival(*arrival, clause);
        if (const auto step = talkStepOf(clause.verb))
            return addStep(*step, clause);
        if (clause.verb == Verb::CALLS_BACK)
            return addCallBack(clause);
        throw Mistake("'" + std::string(wordsFor(clause.verb)) + "' can be said while the program runs, and alone");
    }

    std::shared_ptr<const Behaviour> made() const
    {
        if (!mArrives)
            throw Mistake("it is not said what happens when it is called: answers, is busy, never answers, rejects, "
                          "fails with or forwards to");
        return std::make_shared<const Behaviour>(mBehaviour);
    }

private:
    void addArrival(Behaviour::Arrival arrival, const Clause& clause)
    {
        if (std::exchange(mArrives, true))
            throw Mistake("'" + std::string(wordsFor(clause.verb)) +
                          "' comes on top of what happens when it is called");
        mBehaviour.arrival = arrival;
        mBehaviour.after = clause.after.value_or(0);
        mBehaviour.text = clause.number + clause.text;
    }

    void addStep(TalkStep::Kind kind, const Clause& clause)
    {
        if (clause.deed.isBusy || !clause.deed.text.empty())
            throw Mistake("why it ends can be said while the program runs, and alone");
        mBehaviour.talk.push_back({kind, clause.after.value_or(0), clause.number});
    }

    void addCallBack(const Clause& clause)
    {
        if (mBehaviour.callsBack)
            throw Mistake("it calls back once only");
        if (!clause.after)
            throw Mistake("it is not said after what time it calls back");
        mBehaviour.callsBack = clause.after;
    }

    Behaviour mBehaviour;
    bool mArrives = false;
};

bool isDeed(const std::vector<Clause>& clauses)
{
    return clauses.size() == 1 && !clauses.front().after && deedOf(clauses.front().verb).has_value();
}

Deed makeDeed(const Party& who, const Clause& clause)
{
    Deed deed = clause.deed;
    deed.who = who;
    deed.kind = *deedOf(clause.verb);
    deed.number = clause.number;
    return deed;
}

Party takeParty(Words& words)
{
    Party party{words.takeNumber(), {}};
    if (words.isText())
        party.name = words.takeText("a name");
    return party;
}

LineSentence takeLine(Words& words)
{
    const LineNumber line = words.takeCount("the number of a line", 1, MOST_LINES);
    if (words.skip("is registered"))
        return {line, true};
    if (words.skip("is not registered"))
        return {line, false};
    if (words.skip("has no messages"))
        return {line, 0};
    if (words.skip("has")) {
        const int messages = words.takeCount("a number of messages", 0, MOST_MESSAGES);
        if (!words.skip("message"))
            words.expect("messages");
        return {line, messages};
    }
    words.expect("is");
    return {line, takeParty(words)};
}

Sentence parseLine(Words& words)
{
    const LineSentence line = takeLine(words);
    if (!words.areOver())
        throw Mistake("expected the end of the line, not " + words.here());
    return line;
}

} // namespace

Sentence parseSentence(std::string_view text, Occasion occasion)
{
    Words words(text);
    if (words.skip("line"))
        return parseLine(words);
    const Party who = takeParty(words);
    const std::vector<Clause> clauses = takeClauses(words);
    if (occasion == Occasion::AT_RUN_TIME && isDeed(clauses))
        return makeDeed(who, clauses.front());
    BehaviourMaker behaviour;
    for (const Clause& clause : clauses)
        behaviour.add(clause);
    return Number{who, behaviour.made()};
}

} // namespace exchange
