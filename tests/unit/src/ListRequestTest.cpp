// Every request of a list: what its operation posts, and what of it reaches the private side.

#include "unit/src/FacadeTest.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "DisplayAPI/ListItem.h"
#include "doubles/Mocks.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// What the requests need: none of it is looked at by the facade.
struct Arguments {
    TranslationInfo text{"key", nullptr};
    testing::NiceMock<doubles::MockCommandListener> listener;
    PopupDialer* dialer = reinterpret_cast<PopupDialer*>(0x2000);
};

/// A request that only the private side has a part in: its code, the operation that sends it, a record filled by hand,
/// and the call that has to arrive.
struct Forwarded {
    const char* name;
    int code;
    std::function<void(List&, Arguments&)> call;
    std::function<void(GuiRequestEvent&, Arguments&)> fill;
    std::function<std::string(Arguments&)> arrives;
};

void PrintTo(const Forwarded& request, std::ostream* out)
{
    *out << request.name;
}

const Forwarded FORWARDED[] = {
    {"setSelectedIndex", 12, [](List& l, Arguments&) { l.setSelectedIndex(3); },
     [](GuiRequestEvent& r, Arguments&) { r.intParam1 = 3; },
     [](Arguments&) { return callText("setSelectedIndex", 3); }},
    {"hide", 19, [](List& l, Arguments&) { l.hide(); }, [](GuiRequestEvent&, Arguments&) {},
     [](Arguments&) { return callText("hide"); }},
    {"setTitle", 22, [](List& l, Arguments&) { l.setTitle(std::string("Menu")); },
     [](GuiRequestEvent& r, Arguments&) { r.stringParam1 = "Menu"; },
     [](Arguments&) { return callText("setTitle", std::string("Menu")); }},
    {"setTitleTranslated", 23, [](List& l, Arguments& a) { l.setTitle(&a.text); },
     [](GuiRequestEvent& r, Arguments& a) { r.ptrParam1 = &a.text; },
     [](Arguments& a) { return callText("setTitle", &a.text); }},
    {"setSystemWindowSize", 24, [](List& l, Arguments&) { l.setSystemWindowSize(2); },
     [](GuiRequestEvent& r, Arguments&) { r.intParam1 = 2; },
     [](Arguments&) { return callText("setSystemWindowSize", 2); }},
    {"setSystemWindowText", 25, [](List& l, Arguments&) { l.setSystemWindowText(1, "busy"); },
     [](GuiRequestEvent& r, Arguments&) {
         r.intParam1 = 1;
         r.stringParam1 = "busy";
     },
     [](Arguments&) { return callText("setSystemWindowText", 1, std::string("busy")); }},
    {"removeCommandListener", 26, [](List& l, Arguments& a) { l.removeCommandListener(&a.listener); },
     [](GuiRequestEvent& r, Arguments& a) { r.ptrParam1 = static_cast<CommandListener*>(&a.listener); },
     [](Arguments& a) { return callText("removeCommandListener", &a.listener); }},
    {"addCommandListener", 27, [](List& l, Arguments& a) { l.addCommandListener(&a.listener); },
     [](GuiRequestEvent& r, Arguments& a) { r.ptrParam1 = static_cast<CommandListener*>(&a.listener); },
     [](Arguments& a) { return callText("addCommandListener", &a.listener); }},
    {"showDiallerOnInitialKeyEvent", 28, [](List& l, Arguments&) { l.showDiallerOnInitialKeyEvent(true); },
     [](GuiRequestEvent& r, Arguments&) { r.boolParam1 = true; },
     [](Arguments&) { return callText("showDiallerOnInitialKeyEvent", true); }},
    {"addDialer", 29, [](List& l, Arguments& a) { l.addDialer(a.dialer); },
     [](GuiRequestEvent& r, Arguments& a) { r.ptrParam1 = a.dialer; },
     [](Arguments& a) { return callText("setDialler", static_cast<const void*>(a.dialer)); }},
    {"setSelectionHighlight", 32, [](List& l, Arguments&) { l.setSelectionHighlight(true); },
     [](GuiRequestEvent& r, Arguments&) { r.boolParam1 = true; },
     [](Arguments&) { return callText("setSelectionHighlight", true); }},
};

using Parameters = std::tuple<Forwarded, From, int>;

std::string nameOf(const testing::TestParamInfo<Parameters>& info)
{
    const auto& [request, from, variant] = info.param;
    return std::string(request.name) + "From" + test::nameOf(from) + (variant == 1 ? "OnFullPanel" : "OnSmallPanel");
}

class ListForwardedRequestTest : public test::FacadeTest, public testing::WithParamInterface<Parameters> {
protected:
    ListForwardedRequestTest() { test::setHardwareVariant(variant()); }

    const Forwarded& request() const { return std::get<0>(GetParam()); }
    From from() const { return std::get<1>(GetParam()); }
    int variant() const { return std::get<2>(GetParam()); }

    std::string arrival()
    {
        return (variant() == 1 ? "ListBoxPrivate::" : "ListBoxPrivateWP1::") + request().arrives(arguments);
    }

    Arguments arguments;
};

} // namespace

TEST_P(ListForwardedRequestTest, OperationReachesThePrivateSideOnTheGuiThread)
{
    List list(0);
    gui.settle();
    reached();
    run(from(), [&] { request().call(list, arguments); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(arrival()));
}

TEST_P(ListForwardedRequestTest, RecordWithTheCodeReachesThePrivateSideOnTheGuiThread)
{
    List list(0);
    gui.settle();
    reached();
    carryOut(from(), list, request().code, [&](GuiRequestEvent& r) { request().fill(r, arguments); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre(arrival()));
}

TEST_P(ListForwardedRequestTest, OperationWithoutAPrivateSideDoesNothing)
{
    List list(nullptr);
    run(from(), [&] { request().call(list, arguments); });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Requests, ListForwardedRequestTest,
                         testing::Combine(testing::ValuesIn(FORWARDED), testing::Values(From::GUI_THREAD, From::WORKER),
                                          testing::Values(0, 1)),
                         nameOf);
