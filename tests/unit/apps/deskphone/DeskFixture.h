#pragma once

#include "DisplayAPI/Display.h"
#include "apps/deskphone/Desk.h"
#include "apps/deskphone/Memory.h"
#include "host/Phone.h"
#include "kit/Fence.h"
#include "kit/OnGuiThread.h"
#include "kit/Phone.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Worker.h"
#include "unit/apps/deskphone/Parties.h"
#include "unit/apps/deskphone/ShownObject.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBox.h"
#include "widgets/KestrelListBoxItem.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace test {

/// The whole desk phone on a panel. Made on the test's thread, which is its GUI thread; what is done with it is done
/// inside run().
class DeskFixture : public Parties {
public:
    explicit DeskFixture(host::Variant panel) : mPanel(panel) { mDesk.open(); }

    /// Runs `work` on a thread of its own beside the loop.
    void run(std::function<void()> work)
    {
        Worker worker([this, work = std::move(work)] {
            work();
            mPhone.quit();
        });
        mPhone.run();
    }

    /// What a listener does to the screen may be for another listener to hear: until nothing moves any more.
    void settle() override
    {
        exchange.waitUntilHeard();
        std::string before;
        do {
            before = std::exchange(mShown, look());
        } while (mShown != before);
    }

    exchange::CallId place(exchange::LineNumber line, const exchange::Party& party) override
    {
        return exchange.place(line, party.number);
    }

    DisplayAPI::Display& display() { return mPhone.display(); }

    /// The displayables as text, from the lowest one to the one on top, when it settled last.
    const std::string& shows() const { return mShown; }

    /// All rows of the lists on the panel, in view or not, be there something over them.
    std::vector<ShownObject> rows()
    {
        std::vector<ShownObject> all;
        DisplayAPI::kit::onGuiThread([&] { addRows(all, *gpPresent); });
        return all;
    }

private:
    /// When what has been raised by now is heard.
    std::string look()
    {
        DisplayAPI::kit::Fence().wait();
        return mPhone.display().serialise();
    }

    static void addRows(std::vector<ShownObject>& all, PegThing& thing)
    {
        if (auto* const list = dynamic_cast<KestrelListBox*>(&thing); list != nullptr)
            for (int row = 0; row < list->numItems(); ++row)
                all.push_back(objectOf(list->itemAt(row)->describe()));
        for (PegThing* child = thing.First(); child != nullptr; child = child->NextSibling())
            addRows(all, *child);
    }

    static ShownObject objectOf(const KestrelListBoxItem::Description& row)
    {
        ShownObject object;
        object.name = row.name;
        for (const PegString& text : row.texts)
            object.texts.push_back(ICC::fromUNICODEtoUTF8(text));
        return object;
    }

    /// Before the toolkit starts, and after it has ended.
    struct Panel {
        explicit Panel(host::Variant panel) { host::setVariant(panel); }
        ~Panel()
        {
            DisplayAPI::Widget::setGuiThreadId(0);
            host::setVariant(host::Variant::PLAIN);
        }
    };

    Panel mPanel;
    DisplayAPI::kit::Phone mPhone{{.hardware = host::hardwareName(), .narrow = host::isNarrow()}};
    deskphone::Memory mMemory;
    deskphone::Desk mDesk{mPhone.display(), exchange, "en", mMemory};
    std::string mShown;
};

} // namespace test
