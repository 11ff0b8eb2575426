#pragma once

#include "host/widgets/form/Field.h"
#include "toolkit/PString.h"
#include "utilities/ICC.h"

#include <string>
#include <vector>

namespace test {

/// '<', '>', '^', 'v' and '!' are the arrows and OK, all others themselves.
inline int keyCode(char key)
{
    switch (key) {
    case '<': return PK_LEFT;
    case '>': return PK_RIGHT;
    case '^': return PK_UP;
    case 'v': return PK_DOWN;
    case '!': return PK_OK;
    default: return key;
    }
}

/// Presses keys on a field, as keyCode() has them. Returns whether the field has used the last one.
inline bool press(host::Field& field, const std::string& keys)
{
    bool used = false;
    for (const char key : keys)
        used = field.key(keyCode(key));
    return used;
}

inline PegString peg(const std::string& utf8)
{
    return ICC::fromUTF8toUNICODE(utf8);
}

inline std::vector<PegString> pegs(const std::vector<std::string>& texts)
{
    std::vector<PegString> all;
    for (const std::string& text : texts)
        all.push_back(peg(text));
    return all;
}

/// Notes what a field tells it, as type and number, and which one has spoken last.
class Listener : public PegThing {
public:
    int Message(const PegMessage& message) override
    {
        heard.push_back({message.wType, message.iData});
        source = message.pSource;
        return 0;
    }

    std::vector<std::pair<int, int>> heard;
    const PegThing* source = nullptr;
};

} // namespace test
