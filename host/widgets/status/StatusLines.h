#pragma once

#include "host/lcd/Painter.h"

#include <array>
#include <string>

namespace host {

class StatusTime;

/// The texts of the status lines and how many of them are wanted.
class StatusLines {
public:
    static constexpr int MAX_LINES = 6;

    /// Cut to 0 to MAX_LINES. False where nothing has changed; so are the others.
    bool setSize(int lines);

    /// The text is UTF-8. Lines that do not exist are ignored.
    bool setText(int line, std::string text);

    int size() const { return mSize; }

    /// Empty where the line does not exist.
    const std::string& text(int line) const;

    /// The lines up to the last that is not blank: others take no room.
    int used() const;

private:
    std::array<std::string, MAX_LINES> mTexts;
    int mSize = 0;
};

/// Paints one line, and `time` at its end where that is not null.
void drawStatusLine(PegPainter& painter, const PegRect& cell, const std::string& text, Font font,
                    const StatusTime* time);

} // namespace host
