#pragma once

#include "DisplayAPI/WatchedWidget.h"
#include "host/variants/menu/CommandTexts.h"
#include "host/widgets/popup/PopupBox.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace DisplayAPIUtils {
class Rect;
}

namespace DisplayAPI {

class Command;

/// The commands in the bar of a popup's box or of a form, of which another thread may delete any: it keeps its text,
/// and is none any more. Where the bar has gone they are nowhere. GUI thread only.
class BarCommands {
public:
    /// Null where the bar has gone; and what is done when it wants another place.
    BarCommands(std::function<host::CommandBar*()> bar, std::function<void()> fit)
        : mBar(std::move(bar)), mFit(std::move(fit))
    {
    }

    explicit BarCommands(const WatchedWidget<host::PopupBox>& box)
        : BarCommands([&box] { return box != nullptr ? &box->bar() : nullptr; }, [&box] { box->fitField(); })
    {
    }

    /// Null, a deleted and an unknown one are ignored: false.
    bool add(Command* command);
    bool remove(Command* command);

    /// Forgets the default one, too.
    void clear();

    /// Selected where the user has not moved, now or when it is added; null is the first one.
    void setDefault(Command* command);

    /// Begins anew: the user has not moved.
    void begin();
    void userMoved() { mUserHasMoved = true; }
    bool userHasMoved() const { return mUserHasMoved; }

    /// -1 where there is none.
    int selected() const;

    /// What stands there, or null where that has been deleted.
    Command* at(int place) const;

    /// Looks up the texts in the language of the moment.
    void translate();

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

private:
    void selectDefault();

    const std::function<host::CommandBar*()> mBar;
    const std::function<void()> mFit;
    CommandTexts mTexts;
    std::vector<Command*> mCommands;
    Command* mDefault = nullptr;
    bool mUserHasMoved = false;
};

} // namespace DisplayAPI
