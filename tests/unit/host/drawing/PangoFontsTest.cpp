#include "host/drawing/PangoFonts.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;

namespace host {

namespace {

TEST(PangoFontsTest, MissingFontIsReportedOnceWithItsPackage)
{
    PangoFonts fonts({"/usr/share/fonts/opentype/terminus"});
    std::u16string abc = u"abc", def = u"def";
    testing::internal::CaptureStderr();
    EXPECT_NE(fonts.layoutFor(Font::FIXED, abc), nullptr);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());

    testing::internal::CaptureStderr();
    EXPECT_NE(fonts.layoutFor(Font::TEXT, abc), nullptr);
    EXPECT_NE(fonts.layoutFor(Font::TEXT, def), nullptr);
    const std::string report = testing::internal::GetCapturedStderr();
    EXPECT_THAT(report, HasSubstr("the font DejaVu Sans Condensed is missing; install the Debian package "
                                  "fonts-dejavu-extra"));
    EXPECT_EQ(report.find("DejaVu"), report.rfind("DejaVu"));
}

} // namespace

} // namespace host
