#include "host/lcd/Icons.h"

namespace host::icons {

// clang-format off
const Icon ARROW_UP{{
    "...#...",
    "..###..",
    ".#####.",
    "#######"}};

const Icon ARROW_DOWN{{
    "#######",
    ".#####.",
    "..###..",
    "...#..."}};

const Icon SMALL_ARROW_UP{{
    "..#..",
    ".###.",
    "#####"}};

const Icon SMALL_ARROW_DOWN{{
    "#####",
    ".###.",
    "..#.."}};

const Icon SMALL_ARROW_LEFT{{
    "..#",
    ".##",
    "###",
    ".##",
    "..#"}};

const Icon SMALL_ARROW_RIGHT{{
    "#..",
    "##.",
    "###",
    "##.",
    "#.."}};

const Icon BACK{{
    "...#",
    "..##",
    ".###",
    "####",
    ".###",
    "..##",
    "...#"}};

const Icon RADIO{{
    "..###..",
    ".#...#.",
    "#.....#",
    "#.....#",
    "#.....#",
    ".#...#.",
    "..###.."}};

const Icon RADIO_CHOSEN{{
    "..###..",
    ".#...#.",
    "#.###.#",
    "#.###.#",
    "#.###.#",
    ".#...#.",
    "..###.."}};
// clang-format on

} // namespace host::icons
