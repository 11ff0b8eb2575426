#pragma once

#include <array>
#include <string_view>

namespace host {

/// A small picture as text: '#' is ink, rows are equally long.
struct Icon {
    static constexpr int MAX_HEIGHT = 9;

    std::array<std::string_view, MAX_HEIGHT> rows{};

    constexpr int width() const { return static_cast<int>(rows[0].size()); }
    constexpr int height() const
    {
        int count = 0;
        while (count < MAX_HEIGHT && !rows[static_cast<std::size_t>(count)].empty())
            ++count;
        return count;
    }
};

namespace icons {

extern const Icon ARROW_UP;
extern const Icon ARROW_DOWN;
extern const Icon SMALL_ARROW_UP;
extern const Icon SMALL_ARROW_DOWN;
extern const Icon SMALL_ARROW_LEFT;
extern const Icon SMALL_ARROW_RIGHT;
extern const Icon BACK;
extern const Icon RADIO;
extern const Icon RADIO_CHOSEN;
extern const Icon CHECK;
extern const Icon HANDSET;
extern const Icon HOUSE;
extern const Icon MOBILE;
extern const Icon LETTER;
extern const Icon PERSON;
extern const Icon PICTURE;
extern const Icon DOT;
extern const Icon PADLOCK;
extern const Icon NO_ENTRY;
extern const Icon BELL_OFF;
extern const Icon WRENCH;
extern const Icon CALLBACK;
extern const Icon FORWARD;
extern const Icon MISSED_CALL;
extern const Icon FORWARDED;
extern const Icon SERVER_FORWARDED;
extern const Icon QUESTION;
extern const Icon INFORMATION;
extern const Icon WARNING;
extern const Icon FAILURE;
extern const Icon URGENT;
extern const Icon CALL_IN;
extern const Icon CALL_OUT;
extern const Icon DIALLED;
extern const Icon RECEIVED;
extern const Icon MORE;
extern const Icon HOLD;
extern const Icon HELD_BY_OTHER;
extern const Icon HELD_BY_BOTH;
extern const Icon RESUME;
extern const Icon PROCEEDING;
extern const Icon BELL;
extern const Icon CONSULTED;
extern const Icon CONFERENCE;
extern const Icon HUNG_UP;
extern const Icon PADLOCK_OPEN;
extern const Icon HD;
extern const Icon OPENED;
extern const Icon CLOSED;
extern const Icon BOX;
extern const Icon BOX_CHECKED;
extern const Icon RECORDING;
extern const Icon ON_HOOK;
extern const Icon SEARCH;

} // namespace icons

} // namespace host
