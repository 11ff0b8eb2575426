// What a list writes to the log: its readers know these lines by heart.

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "support/LogLines.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/LiveRow.h"
#include "utilities/TranslationInfo.h"

#include <latch>

using namespace DisplayAPI;
using test::From;
using test::LiveRow;
using test::shown;

namespace {

/// A line without its number, which is free: a list of one row.
struct Line {
    int level;
    std::string text;

    friend bool operator==(const Line&, const Line&) = default;
};

void PrintTo(const Line& line, std::ostream* out)
{
    *out << line.level << " \"" << line.text << '"';
}

class ListLogTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ListLogTest()
    {
        list.append(row);
        gui.settle();
    }

    ~ListLogTest() override
    {
        LiveRow::deleteUnlessIn(list, row);
        LiveRow::deleteUnlessIn(list, other);
    }

    /// What `work` writes, all of it with the module and file of lists.
    std::vector<Line> logged(const std::function<void()>& work)
    {
        host::LogCapture capture;
        run(GetParam(), work);
        std::vector<Line> lines;
        for (const host::LogLine& line : capture.lines()) {
            EXPECT_EQ(line.module, "DisplayAPI::List") << line.text;
            EXPECT_EQ(line.file, "./src/List.cpp") << line.text;
            EXPECT_GT(line.line, 0) << line.text;
            lines.push_back({line.level, line.text});
        }
        return lines;
    }

    /// The text of a line: "DAPI::List::" and what follows, with the list's address put in for "%".
    Line line(std::string text, int level = 5) const
    {
        text.replace(text.find('%'), 1, shown(&list));
        return {level, text};
    }

    List list{0};
    LiveRow* row = new LiveRow("row");
    LiveRow* other = new LiveRow("other");
};

using Lines = std::vector<Line>;

} // namespace

TEST_P(ListLogTest, AppendOfATextLogsEachStep)
{
    const Lines lines = logged([&] { list.append(std::string("new")); });
    const std::string made = shown(list.getItems().back());
    EXPECT_EQ(lines,
              (Lines{line("DAPI::List::append() this: % , text new"), line("DAPI::List::createAndAppendItem() this: %"),
                     line("DAPI::List::append() this: % listItem: " + made + ", new"),
                     line("DAPI::List::privateAppend() this: %")}));
}

TEST_P(ListLogTest, AppendOfATranslationLogsEachStep)
{
    TranslationInfo text("key", nullptr);
    const Lines lines = logged([&] { list.append(&text); });
    const std::string made = shown(list.getItems().back());
    EXPECT_EQ(lines, (Lines{line("DAPI::List::append() this: % tinfo: " + shown(&text)),
                            line("DAPI::List::createAndAppendItem() this: %"),
                            line("DAPI::List::append() this: % listItem: " + made + ", key"),
                            line("DAPI::List::privateAppend() this: %")}));
}

TEST_P(ListLogTest, AppendOfARowLogsItsText)
{
    EXPECT_EQ(logged([&] { list.append(other); }),
              (Lines{line("DAPI::List::append() this: % listItem: " + shown(other) + ", other"),
                     line("DAPI::List::privateAppend() this: %")}));
}

TEST_P(ListLogTest, InsertAtLogsRowAndIndex)
{
    EXPECT_EQ(logged([&] { list.insertAt(other, -5); }),
              (Lines{line("DAPI::List::insertAt() this: % item " + shown(other) + " index -5"),
                     line("DAPI::List::privateInsertAt() this: %")}));
}

TEST_P(ListLogTest, RemoveAtLogsTheIndex)
{
    EXPECT_EQ(logged([&] { list.removeAt(0); }),
              (Lines{line("DAPI::List::removeAt() this: % index 0"), line("DAPI::List::privateRemoveAt() this: %")}));
}

TEST_P(ListLogTest, RemoveAtPastTheEndLogsARefusal)
{
    EXPECT_EQ(logged([&] { list.removeAt(1); }),
              (Lines{line("DAPI::List::removeAt() this: % index 1"), line("DAPI::List::privateRemoveAt() this: %"),
                     line("DAPI::List::removeAt() this %, cannot remove item at index 1", 3)}));
}

TEST_P(ListLogTest, RemoveLogsTheRow)
{
    EXPECT_EQ(logged([&] { list.remove(row); }), (Lines{line("DAPI::List::remove() this: % item " + shown(row)),
                                                        line("DAPI::List::privateRemove() this: %")}));
}

TEST_P(ListLogTest, ClearLogsItself)
{
    EXPECT_EQ(logged([&] { list.clear(); }), (Lines{line("DAPI::List::clear() this: %")}));
}

TEST_P(ListLogTest, GetItemsLogsItself)
{
    EXPECT_EQ(logged([&] { list.getItems(); }), (Lines{line("DAPI::List::getItems() this: %")}));
}

TEST_P(ListLogTest, GetSelectedLogsTheRowThatItFinds)
{
    doubles::Answers::instance().selectedIndex = 0;
    EXPECT_EQ(logged([&] { list.getSelected(); }),
              (Lines{line("DAPI::List::findSelectedItem() this: % returns " + shown(row)),
                     line("*** DAPI::List::getSelected() this: % returns " + shown(row))}));
}

TEST_P(ListLogTest, GetSelectedLogsThatItFindsNothing)
{
    for (const int index : {-1, 1}) {
        doubles::Answers::instance().selectedIndex = index;
        EXPECT_EQ(logged([&] { list.getSelected(); }),
                  (Lines{line("DAPI::List::findSelectedItem() this: % returns NULL"),
                         line("*** DAPI::List::getSelected() this: % returns " + shown(nullptr))}));
    }
}

TEST_P(ListLogTest, SetSelectedLogsTheRow)
{
    EXPECT_EQ(logged([&] { list.setSelected(row); }),
              (Lines{line("*** DAPI::List::setSelected() this: % item " + shown(row))}));
}

TEST_P(ListLogTest, SelectedIndexIsLogged)
{
    doubles::Answers::instance().selectedIndex = 4;
    EXPECT_EQ(logged([&] { list.setSelectedIndex(2); }),
              (Lines{line("DAPI::List::setSelectedIndex() this: % index 2")}));
    EXPECT_EQ(logged([&] { list.getSelectedIndex(); }),
              (Lines{line("*** DAPI::List::getSelectedIndex() this: % returns 4")}));
}

TEST_P(ListLogTest, SizeIsLogged)
{
    doubles::Answers::instance().size = 12;
    EXPECT_EQ(logged([&] { list.size(); }), (Lines{line("DAPI::List::size() this: % returns 12")}));
}

TEST_P(ListLogTest, DestructionLogsTheCleanUp)
{
    auto doomed = std::make_unique<List>(0);
    gui.settle();
    const std::string address = shown(doomed.get());
    EXPECT_EQ(logged([&] { doomed.reset(); }), (Lines{{5, "DAPI::List::cleanup() this: " + address}}));
}

TEST_P(ListLogTest, OperationsWithoutALineWriteNone)
{
    EXPECT_EQ(logged([&] {
                  list.setTitle(std::string("t"));
                  list.setSystemWindowSize(1);
                  list.setSystemWindowText(0, "s");
                  list.hide();
                  list.setTicker(nullptr);
                  list.getTicker();
                  list.addDialer(nullptr);
                  list.getDialer();
                  list.setSelectionHighlight(true);
                  list.showDiallerOnInitialKeyEvent(true);
                  list.addCommandListener(nullptr);
                  list.removeCommandListener(nullptr);
                  list.replace(row, nullptr);
              }),
              Lines{});
}

INSTANTIATE_TEST_SUITE_P(From, ListLogTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });

TEST(ListLogCostTest, WithoutALogAPostedAppendAsksTheRowForNothing)
{
    test::SteppedLoop gui;
    List list(0);
    auto* const row = new LiveRow;
    test::onOtherThread([&] { list.append(row); });
    EXPECT_EQ(gui.queuedCodes(), std::vector<int>{7});
    gui.runAll();
}
