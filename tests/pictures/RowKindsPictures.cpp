#include "apps/examples/TwoLineRow.h"
#include "host/lcd/Lcd.h"
#include "pictures/PictureTest.h"
#include "support/Application.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"
#include "widgets/KestrelListBox.h"

#include <tuple>

namespace {

using examples::TwoLineRow;

std::unique_ptr<TwoLineRow> callRow(const std::string& name, const std::string& number)
{
    return std::make_unique<TwoLineRow>(ICC::fromUTF8toUNICODE(name), ICC::fromUTF8toUNICODE(number));
}

/// Rows of two heights, with marks of their own, among rows of text.
class RowKindsPictures : public PictureTest, public testing::WithParamInterface<host::Variant> {
protected:
    RowKindsPictures()
    {
        start(GetParam());
        const bool hasRoom = GetParam() != host::Variant::WP1;
        list = &showList(hasRoom ? "Calls" : "", {"Line 1", "Line 2", "Line 3"});
        list->insert(ada.get(), 1);
        list->append(zoe.get());
    }
    ~RowKindsPictures() override { list->clear(); }

    void expectScreen(const std::string& screen)
    {
        expectPicture(std::string(host::nameOf(GetParam())) + "-" + screen);
    }

    std::unique_ptr<TwoLineRow> ada = callRow("Ada", "+44 20 1815");
    std::unique_ptr<TwoLineRow> zoe = callRow("Zoë", "+31 20 1995");
    KestrelListBox* list = nullptr;
};

TEST_P(RowKindsPictures, TwoHeights)
{
    press(PK_DOWN);
    press(PK_STAR);
    expectScreen("two-heights");
}

TEST_P(RowKindsPictures, TwoHeightsAtTheBottom)
{
    press(PK_DOWN, 4);
    expectScreen("two-heights-bottom");
}

TEST_P(RowKindsPictures, TwoHeightsFromTheRight)
{
    auto* const application = KestrelApplication::getCurrentApplication();
    application->setLocale(text("ar"));
    press(PK_DOWN);
    expectScreen("two-heights-right");
    application->setLocale(PegString());
}

INSTANTIATE_TEST_SUITE_P(Panels, RowKindsPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& panel) { return std::string(host::nameOf(panel.param)); });

/// A row whose mark comes and goes.
class MarkableRow : public TwoLineRow {
public:
    using TwoLineRow::TwoLineRow;

    void showMark(bool on)
    {
        mHasMark = on;
        changed();
    }

    bool hasMark() const override { return mHasMark; }

private:
    bool mHasMark = true;
};

std::unique_ptr<MarkableRow> markableRow(const std::string& name)
{
    return std::make_unique<MarkableRow>(ICC::fromUTF8toUNICODE(name), ICC::fromUTF8toUNICODE("second"));
}

/// Whatever happens to a list, repainting what has changed leaves the picture that laying it out and painting all
/// of it anew would.
class ListRepaint : public PictureTest, public testing::WithParamInterface<std::tuple<host::Variant, unsigned int>> {
protected:
    ListRepaint() : chance(std::get<unsigned int>(GetParam()), 0)
    {
        start(std::get<host::Variant>(GetParam()));
        list = &showList("Rooms", rooms(4));
        for (int i = 0; i < SPARE; ++i)
            spare.push_back(markableRow("Call " + std::to_string(i)));
    }
    ~ListRepaint() override { list->clear(); }

    void change()
    {
        std::unique_ptr<MarkableRow>& owned = spare[static_cast<std::size_t>(chance.below(SPARE))];
        MarkableRow* const row = owned.get();
        switch (chance.below(16)) {
        case 0: return list->insert(row, chance.below(list->numItems() + 1));
        case 1: return list->append(row);
        case 2: return list->remove(list->itemAt(chance.below(list->numItems() + 1)));
        case 3: return list->remove(list->itemAt(list->numItems() - 1));
        case 4: return list->setCurrentRow(chance.below(list->numItems() + 1));
        case 5: return row->open(chance.oneIn(2));
        case 6: return list->setExclusive(chance.oneIn(3));
        case 7: return list->setTitle(text(chance.oneIn(2) ? "Rooms" : ""));
        case 8: return press(PK_STAR);
        case 9: owned = markableRow("Call"); return;
        case 10: return list->setSelectionHighlight(chance.oneIn(2));
        case 11: return list->setBackArrow(chance.oneIn(2));
        case 12: return list->setTickerShown(chance.oneIn(2));
        case 13: return row->showMark(chance.oneIn(2));
        case 14: return row->setSecond(text(chance.oneIn(2) ? "second" : "another"));
        default: return press(chance.oneIn(2) ? PK_DOWN : PK_UP);
        }
    }

    static constexpr int SPARE = 6;

    test::Chance chance;
    std::vector<std::unique_ptr<MarkableRow>> spare;
    KestrelListBox* list = nullptr;
};

TEST_P(ListRepaint, OfPartsLeavesWhatAFullOneWould)
{
    host::Lcd& lcd = *host::Lcd::current();
    for (int step = 0; step < 300; ++step) {
        for (int changes = chance.below(3); changes >= 0; --changes)
            change();
        lcd.paint();
        const host::Picture partly = lcd.picture();
        list->Resize(list->Area());
        lcd.paint();
        ASSERT_EQ(partly.pixels, lcd.picture().pixels) << "after step " << step;
        ASSERT_EQ(partly.texts, lcd.picture().texts) << "after step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Panels, ListRepaint,
                         testing::Combine(testing::Values(host::Variant::PLAIN, host::Variant::WP1),
                                          testing::ValuesIn(test::seeds())),
                         [](const auto& tested) {
                             return std::string(host::nameOf(std::get<0>(tested.param))) +
                                    std::to_string(std::get<1>(tested.param));
                         });

} // namespace
