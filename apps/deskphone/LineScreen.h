#pragma once

#include "apps/deskphone/Screen.h"

#include <string>
#include <vector>

namespace deskphone {

/// A screen with lines of its own above the rows, in the place of the telephone's and of a title.
class LineScreen : public Screen {
protected:
    LineScreen(Telephone& telephone, Place* parent);

private:
    void bringUp() override;

    /// In the language of the moment, the first one on top. The small panel has room for that.
    virtual std::vector<std::string> lines() = 0;
};

} // namespace deskphone
