#include "Cases.h"

#include "host/Phone.h"
#include "host/lcd/Lcd.h"
#include "presentation/PRESCPresentationManager.h"
#include "toolkit/PegFunctions.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBoxItem.h"
#include "widgets/KestrelListBoxWithTitle.h"
#include "widgets/SystemWindow.h"

#include <ctime>

namespace bench {

namespace {

constexpr int REPAINTS = 2'000;
constexpr int ROWS = 20;

PegString text(const std::string& utf8)
{
    return ICC::fromUTF8toUNICODE(utf8);
}

double threadCpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// A list with a title, more rows than fit, a status line and a clock, on a panel of 240 x 128. The calling thread is
/// the GUI thread.
class FullScreen {
public:
    FullScreen()
    {
        host::setVariant(host::Variant::PLAIN);
        pegInit();
        mTime = std::make_unique<SystemWindow>();
        mTime->showTime(true);
        mList = new KestrelListBoxWithTitle;
        mList->setTitle(text("Contacts"));
        mList->setSystemWindowText(text("Forwarded to 4711"), 0);
        mList->setSystemWindowLines(1);
        for (int row = 0; row < ROWS; ++row) {
            mRows.push_back(std::make_unique<KestrelListBoxItem>(text("Entry " + std::to_string(row))));
            mList->append(mRows.back().get());
        }
        gpPresent->Add(mList);
        host::Lcd::current()->paint();
    }
    FullScreen(const FullScreen&) = delete;
    FullScreen& operator=(const FullScreen&) = delete;
    ~FullScreen()
    {
        mTime.reset();
        pegCleanUp();
    }

    KestrelListBoxItem& row(int index) { return *mRows[static_cast<std::size_t>(index)]; }

    void repaint()
    {
        gpPresent->Invalidate();
        host::Lcd::current()->paint();
    }

private:
    std::unique_ptr<SystemWindow> mTime;
    std::vector<std::unique_ptr<KestrelListBoxItem>> mRows;
    KestrelListBoxWithTitle* mList = nullptr; ///< the manager's
};

template <typename Prepare>
double repaints(Prepare prepare)
{
    FullScreen screen;
    double spent = 0;
    for (int i = 0; i < REPAINTS; ++i) {
        prepare(screen, i);
        const double before = threadCpuSeconds();
        screen.repaint();
        spent += threadCpuSeconds() - before;
    }
    return spent / REPAINTS * 1e6;
}

double sameTexts()
{
    return repaints([](FullScreen&, int) {});
}

double newTexts()
{
    return repaints([](FullScreen& screen, int round) {
        for (int row = 0; row < 5; ++row)
            screen.row(row).DataSet(text("Entry " + std::to_string(round) + "." + std::to_string(row)));
    });
}

} // namespace

std::vector<Case> repaintCases()
{
    return {{SCREEN, "Full repaint of 240 x 128: list, title, status line", "us CPU", sameTexts},
            {SCREEN, "The same with five rows of texts never shown before", "us CPU", newTexts}};
}

} // namespace bench
