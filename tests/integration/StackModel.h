#pragma once

#include "doubles/Screen.h"

#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace test {

/// What a display has to do, as plainly as can be: the stack, what stands on the screen from bottom to top, who has the
/// focus, who owns each widget, who is attached, and how often the observer has been told.
class StackModel {
public:
    using Screen = doubles::Screen;

    std::vector<Screen*> stack;
    std::vector<Screen*> onScreen;
    std::set<Screen*> attached;
    std::map<Screen*, bool> ownsWidget; ///< true while the private side has to delete it
    Screen* current = nullptr;
    Screen* focus = nullptr;
    bool visible = false;
    int notifications = 0;

    void setCurrent(Screen* screen)
    {
        if (screen == nullptr)
            return clear();
        const bool shownAlready = isFull(screen) && contains(stack, screen) && contains(onScreen, screen);
        if (isFull(screen))
            takeAllOffBut(shownAlready ? screen : nullptr);
        if (!contains(stack, screen))
            stack.push_back(screen);
        attached.insert(screen);
        if (current != nullptr && current != screen)
            ownsWidget[current] = true;
        if (shownAlready) {
            focus = screen;
        } else {
            takeOff(screen);
            if (visible)
                putOn(screen, true);
            ownsWidget[screen] = false;
        }
        current = screen;
        notifications += 2;
    }

    void dismiss(Screen* screen)
    {
        if (contains(stack, screen) || contains(onScreen, screen))
            ownsWidget[screen] = true;
        std::erase(stack, screen);
        takeOff(screen);
        if (current != screen || current == nullptr)
            return;
        if (stack.empty())
            return clear();
        current = stack.back();
        if (visible)
            restore(current);
    }

    void show()
    {
        visible = true;
        for (Screen* screen : stack)
            if (!contains(onScreen, screen))
                putOn(screen, false);
        if (!stack.empty())
            focus = stack.back();
    }

    void hide()
    {
        visible = false;
        if (current != nullptr)
            takeStackOff();
    }

    /// A screen that has just been made.
    void add(Screen* screen)
    {
        ownsWidget[screen] = true;
        attached.erase(screen);
    }

private:
    static bool isFull(Screen* screen) { return screen->getPrivateImpl()->hideOldWidgetOnFocusGained(); }

    static bool contains(const std::vector<Screen*>& screens, const Screen* screen)
    {
        return std::find(screens.begin(), screens.end(), screen) != screens.end();
    }

    void putOn(Screen* screen, bool withFocus)
    {
        onScreen.push_back(screen);
        ownsWidget[screen] = false;
        if (withFocus)
            focus = screen;
    }

    void takeOff(Screen* screen)
    {
        std::erase(onScreen, screen);
        if (focus == screen)
            focus = nullptr;
    }

    void takeAllOffBut(const Screen* kept)
    {
        for (Screen* screen : stack) {
            if (screen == kept)
                continue;
            attached.erase(screen);
            ownsWidget[screen] = true;
            takeOff(screen);
        }
        stack.clear();
    }

    void takeStackOff()
    {
        for (Screen* screen : stack) {
            ownsWidget[screen] = true;
            takeOff(screen);
        }
    }

    /// A widget that still stands on the screen comes to the front with the focus; one that does not is only added.
    void restore(Screen* screen)
    {
        const bool wasOnScreen = contains(onScreen, screen);
        takeOff(screen);
        putOn(screen, wasOnScreen);
    }

    void clear()
    {
        takeStackOff();
        stack.clear();
        current = nullptr;
        ++notifications;
    }
};

} // namespace test
