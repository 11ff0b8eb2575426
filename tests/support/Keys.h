#pragma once

#include "host/widgets/form/Field.h"
#include "toolkit/PString.h"
#include "utilities/ICC.h"

#include <string>
#include <vector>

namespace test {

/// Presses keys on a field: '<', '>', '^', 'v' and '!' are the arrows and OK, all others themselves. Returns whether
/// the field has used the last one.
inline bool press(host::Field& field, const std::string& keys)
{
    bool used = false;
    for (const char key : keys) {
        switch (key) {
        case '<': used = field.key(PK_LEFT); break;
        case '>': used = field.key(PK_RIGHT); break;
        case '^': used = field.key(PK_UP); break;
        case 'v': used = field.key(PK_DOWN); break;
        case '!': used = field.key(PK_OK); break;
        default: used = field.key(key); break;
        }
    }
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
