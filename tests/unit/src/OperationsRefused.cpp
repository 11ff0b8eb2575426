// Tables that the compiler has to refuse, each with a sentence. Compiled once for each, and never linked.

#include "Operations.h"

using namespace DisplayAPI;

class PhonePrivate {
public:
    void fourTexts(std::string, std::string, std::string, std::string) {}
    int ofObject(void*) { return 0; }
    void clear() {}
};

#if defined FOURTH_TEXT
using Refused = Operations<Posts<0, &PhonePrivate::fourTexts>>;
#elif defined WRONG_ANSWER
using Refused = Operations<Waits<0, &PhonePrivate::ofObject, nullptr>>;
#elif defined SECOND_USE
using Refused = Operations<Waits<0, &PhonePrivate::ofObject, 0, &GuiRequestEvent::ptrParam1>>;
#elif defined SAME_CODE
using Refused = Operations<Posts<7, &PhonePrivate::clear>, Waits<7, &PhonePrivate::ofObject>>;
#elif defined NO_ROW
using Refused = Operations<Posts<0, &PhonePrivate::clear>>;
#endif

#ifdef NO_ROW
void call(Widget& facade, PhonePrivate* side)
{
    Refused::call<1>(facade, side);
}
#else
const Refused table;
#endif
