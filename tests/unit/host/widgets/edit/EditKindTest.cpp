#include "host/widgets/edit/EditKind.h"

#include "host/widgets/edit/EditText.h"

#include <gmock/gmock.h>

using host::EditKind;
using host::EditText;

namespace {

struct Setting {
    EditKind kind;
    std::u16string set;
    std::u16string there;
};

/// What is there when the keys have been pressed one after the other.
std::u16string typed(EditKind kind, const std::string& keys)
{
    EditText edit;
    edit.setKind(kind);
    for (const char key : keys) {
        edit.endCandidate();
        edit.type(key);
    }
    return edit.text();
}

} // namespace

TEST(EditKindTest, TextThatIsSetLosesWhatTheKindRefusesAndNothingElse)
{
    const std::vector<Setting> settings{
        {EditKind::TEXT, u"Zoë, 12!", u"Zoë, 12!"},
        {EditKind::NUMBER, u"a1 2-3", u"123"},
        {EditKind::PHONE_NUMBER, u"+49 (30) 12x3*#,;", u"+49 (30) 123*#,;"},
        {EditKind::PASSWORD, u"geheim€", u"geheim€"},
        {EditKind::IP_ADDRESS, u"192.168.300.1", u"192.168.30.1"},
        {EditKind::IP_ADDRESS, u"..1..2.3.4.5", u"1.2.3.45"},
        {EditKind::DATE, u"2026-11-22", u"2026-11-22"},
        {EditKind::DATE, u"20261122", u"2026-11-22"},
        {EditKind::DATE, u"2026-13-32", u"2026-1-3"},
        {EditKind::DATE, u"2023-02-29", u"2023-02-2"},
        {EditKind::DATE, u"2024-02-29", u"2024-02-29"},
        {EditKind::DATE, u"2024-00-00", u"2024-0-0"},
        {EditKind::TIME, u"23:59", u"23:59"},
        {EditKind::TIME, u"2460", u"20"},
        {EditKind::TIME, u"nonsense", u""},
    };
    for (const Setting& setting : settings) {
        EditText edit;
        edit.setKind(setting.kind);
        edit.set(setting.set);
        EXPECT_EQ(edit.text(), setting.there) << static_cast<int>(setting.kind);
    }
}

TEST(EditKindTest, KeysTypeWhatTheKindTakes)
{
    EXPECT_EQ(typed(EditKind::NUMBER, "1*2#3"), u"123");
    EXPECT_EQ(typed(EditKind::PHONE_NUMBER, "030#1"), u"030#1");
    EXPECT_EQ(typed(EditKind::IP_ADDRESS, "2561"), u"251");
    EXPECT_EQ(typed(EditKind::DATE, "202611229"), u"2026-11-22");
    EXPECT_EQ(typed(EditKind::TIME, "2359"), u"23:59");
    EXPECT_EQ(typed(EditKind::NAME, "233"), u"Add");
    EXPECT_EQ(typed(EditKind::PASSWORD, "233"), u"add");
}
