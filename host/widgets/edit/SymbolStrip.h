#pragma once

#include "host/lcd/Painter.h"

#include <cstddef>
#include <string_view>

namespace host {

/// Symbols in a row over a line of text, ten at a time, for the digits from 1 to 0. Left and right go from one to the
/// next, up and down from page to page, OK takes one, star shows the next page and goes away after the last one, and
/// hash goes away.
class SymbolStrip {
public:
    /// They stay as long as the strip is open. None is nothing to open.
    void open(std::u16string_view symbols);
    void close() { mSymbols = {}; }
    bool isOpen() const { return !mSymbols.empty(); }

    /// The symbol that the key takes, by which the strip closes; 0 where it takes none.
    char16_t key(int key);

    /// In the cell of the line.
    void draw(PegPainter& painter, const PegRect& cell, Font font) const;

private:
    static constexpr std::size_t ON_A_PAGE = 10;

    char16_t take(std::size_t index);
    void step(int by);
    void turn(int by);
    std::size_t pages() const { return (mSymbols.size() + ON_A_PAGE - 1) / ON_A_PAGE; }
    std::size_t page() const { return mCurrent / ON_A_PAGE; }
    void drawPage(PegPainter& painter, const PegRect& cell, Font font) const;

    std::u16string_view mSymbols;
    std::size_t mCurrent = 0;
};

} // namespace host
