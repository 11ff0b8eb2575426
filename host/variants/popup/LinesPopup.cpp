#include "host/variants/popup/LinesPopup.h"

#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

void LinesPopup::set(OwnedText& which, OwnedText text)
{
    which = std::move(text);
    showLines();
}

void LinesPopup::setIcon(Line& line, const host::Icon* icon)
{
    line.icon = icon;
    showLines();
}

void LinesPopup::setIconAndMark(const host::Icon* icon, const host::Icon* mark)
{
    if (lines[0].icon == icon && mMark == mark)
        return;
    lines[0].icon = icon;
    mMark = mark;
    showLines();
}

void LinesPopup::showLines()
{
    if (box == nullptr)
        return;
    std::vector<host::PopupBox::Line> body;
    for (std::size_t i = 1; i < lines.size(); ++i)
        if (const host::PopupBox::Line line(lines[i].shown(), lines[i].icon); !line.isEmpty())
            body.push_back(line);
    box->setHeader({lines[0].shown(), lines[0].icon, mMark});
    box->setBody(std::move(body));
    changed();
}

std::string LinesPopup::linesAsText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    std::string text;
    if (isVisible(box->headerArea(), visible))
        text += screen::caption(ICC::fromUNICODEtoUTF8(box->header()));
    const std::vector<PegRect> areas = box->bodyAreas();
    for (std::size_t i = 0; i < areas.size(); ++i)
        if (isVisible(areas[i], visible))
            text += screen::textLine(static_cast<int>(i), ICC::fromUNICODEtoUTF8(box->body()[i].text));
    return text;
}

} // namespace DisplayAPI
