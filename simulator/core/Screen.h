#pragma once

#include "host/lcd/Lcd.h"

#include <cstdint>
#include <memory>
#include <string>

namespace simulator {

/// What the program says of its screen.
struct ScreenWords {
    std::string displayables; ///< what the library says of them; empty where there is no display
    std::string language;     ///< as the web names it, "en-GB"

    friend bool operator==(const ScreenWords&, const ScreenWords&) = default;
};

/// The screen as it was between two messages.
struct Screen {
    /// Counts the screens that could be told from the one before by what there is to read. Pixels alone, as of a text
    /// that moves, make no other screen.
    std::uint64_t number = 0;
    ScreenWords words;
    host::Picture picture; ///< its pixels only where they have been asked for

    bool readsAs(const Screen& other) const
    {
        return words == other.words && picture.texts == other.picture.texts && picture.focus == other.picture.focus;
    }
};

/// The screen as text, as docs/screen-formats.md tells it.
std::string textOf(const Screen& screen);

using ScreenPtr = std::shared_ptr<const Screen>;

} // namespace simulator
