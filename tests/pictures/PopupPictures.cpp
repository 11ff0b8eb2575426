#include "host/lcd/Geometry.h"
#include "host/widgets/edit/EditLine.h"
#include "host/widgets/form/ScrollingColumn.h"
#include "host/widgets/popup/PopupBox.h"
#include "pictures/StatusScreens.h"
#include "support/Keys.h"

namespace {

using host::EditLine;
using host::InputMode;
using host::PopupBox;

/// Popups over a list of rooms.
class PopupPictures : public StatusScreens {
protected:
    /// The manager owns it.
    PopupBox& showBox(const std::string& header, const std::vector<std::string>& body,
                      const std::vector<std::string>& commands)
    {
        showList("Rooms", rooms(9));
        std::vector<PopupBox::Line> lines;
        auto* const box = new PopupBox;
        box->setHeader(text(header));
        for (const std::string& line : body)
            lines.emplace_back(text(line));
        box->setBody(lines);
        box->setCommands(test::pegs(commands));
        gpPresent->Add(box);
        return *box;
    }

    void useLanguage(const char* locale) { mApplication.setLocale(text(locale)); }
};

} // namespace

TEST_P(PopupPictures, Question)
{
    PopupBox& box = showBox("Delete entry?", {"Ελένη Ιωάννου", "030 1234567"}, {"Yes", "No"});
    test::press(box.bar(), ">");
    expectScreen("popup-question");
}

TEST_P(PopupPictures, MoreCommandsThanFit)
{
    PopupBox& box = showBox("Incoming call", {"Zoë Ångström"}, {"Answer", "Forward to voicemail", "Reject", "Ignore"});
    test::press(box.bar(), ">");
    expectScreen("popup-many-commands");
}

TEST_P(PopupPictures, MoreLinesThanFit)
{
    showBox("Notice", {"One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight"}, {"Close"});
    expectScreen("popup-long");
}

TEST_P(PopupPictures, ReadFromTheRight)
{
    useLanguage("ar");
    showBox("حذف القيد؟", {"سارة"}, {"نعم", "لا"});
    expectScreen("popup-arabic");
}

TEST_P(PopupPictures, Number)
{
    PopupBox& box = showBox("Dial", {}, {"Call", "Cancel"});
    auto* const line = new EditLine;
    box.setField(line);
    test::press(*line, "0301234567<<");
    expectScreen("edit-number");
}

TEST_P(PopupPictures, LongNumberShowsItsEnd)
{
    PopupBox& box = showBox("", {}, {"Call"});
    auto* const line = new EditLine;
    box.setField(line);
    test::press(*line, "00493012345678901234567890123456789");
    expectScreen("edit-long-number");
}

TEST_P(PopupPictures, LetterThatIsBeingChosen)
{
    PopupBox& box = showBox("Name", {}, {"Save"});
    auto* const line = new EditLine;
    line->setModes({InputMode::CAPITALISED, InputMode::NUMBERS});
    box.setField(line);
    test::press(*line, "966633");
    expectScreen("edit-candidate");
}

TEST_P(PopupPictures, HiddenCharacters)
{
    PopupBox& box = showBox("PIN", {}, {"OK"});
    auto* const line = new EditLine;
    line->setHidden(true);
    box.setField(line);
    test::press(*line, "4711");
    expectScreen("edit-hidden");
}

TEST_P(PopupPictures, SymbolsToChooseFrom)
{
    PopupBox& box = showBox("Note", {}, {"Save"});
    auto* const line = new EditLine;
    line->setKind(host::EditKind::TEXT);
    line->setText(text("Zoë"));
    box.setField(line);
    test::press(*line, "*>>");
    expectScreen("edit-symbols");
}

TEST_P(PopupPictures, SymbolsFromTheRight)
{
    useLanguage("ar");
    PopupBox& box = showBox("ملاحظة", {}, {"حفظ"});
    auto* const line = new EditLine;
    line->setKind(host::EditKind::TEXT);
    box.setField(line);
    test::press(*line, "**<");
    expectScreen("edit-symbols-arabic");
}

TEST_P(PopupPictures, CursorBetweenDirections)
{
    PopupBox& box = showBox("Name", {}, {"Save"});
    auto* const line = new EditLine;
    line->setKind(host::EditKind::NAME);
    line->setText(text("Zoë (زوي 12)"));
    box.setField(line);
    test::press(*line, "<<<");
    expectScreen("edit-two-directions");
}

TEST_P(PopupPictures, RefusedKeyBlinks)
{
    PopupBox& box = showBox("Time", {}, {"Save"});
    auto* const line = new EditLine;
    line->setKind(host::EditKind::TIME);
    box.setField(line);
    test::press(*line, "2359"
                       "9");
    expectScreen("edit-blinks");
}

TEST_P(PopupPictures, ColumnOfLines)
{
    auto* const column = new host::ScrollingColumn;
    column->Resize(gpPresent->Area());
    for (int i = 1; i <= 9; ++i) {
        auto* const line = new EditLine;
        line->setText(text("Line " + std::to_string(i)));
        column->append(line);
    }
    column->setFocus(true);
    gpPresent->Add(column);
    test::press(*column, "vvvvvvv");
    expectScreen("column");
}

INSTANTIATE_TEST_SUITE_P(Panel, PopupPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
