#pragma once

#include "host/variants/popup/Popup.h"
#include "host/variants/popup/TextLine.h"

#include <array>

namespace DisplayAPI {

/// A popup that says something: its first line is the box's header, further ones that are not empty its body.
struct LinesPopup : public PopupSide::Popup {
    using Line = TextLine;

    using Popup::Popup;

    /// Changes one of the texts, or an icon, and shows it.
    void set(OwnedText& which, OwnedText text);
    void setIcon(Line& line, const host::Icon* icon);

    /// At the end of the first line; and both ends at once.
    void setMark(const host::Icon* mark) { setIconAndMark(lines[0].icon, mark); }
    void setIconAndMark(const host::Icon* icon, const host::Icon* mark);

    std::array<Line, 3> lines;

protected:
    void languageChanged() override { showLines(); }

    /// Header and body as the screen's text has them.
    std::string linesAsText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

private:
    void showLines();

    const host::Icon* mMark = nullptr;
};

} // namespace DisplayAPI
