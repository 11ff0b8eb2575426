#pragma once

#include "apps/deskphone/Screen.h"

#include <vector>

namespace deskphone {

/// A screen whose rows lead to other screens.
class Menu : public Screen {
public:
    struct Entry {
        std::string text; ///< its key
        Place* target;
    };

    using Screen::Screen;

    /// REQUIRES: before the first open().
    void setEntries(std::vector<Entry> entries) { mEntries = std::move(entries); }

private:
    void build() override;
    void chosen(int row) override;

    std::vector<Entry> mEntries;
};

} // namespace deskphone
