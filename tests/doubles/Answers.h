#pragma once

#include <atomic>

namespace DisplayAPI {
class CallConnectedItem;
class ContextMenu;
class Item;
class MenuCommand;
class TreeNode;
} // namespace DisplayAPI

namespace doubles {

/// What the recording private sides answer when they are asked. Safe from any thread.
struct Answers {
    std::atomic<int> size{0};
    std::atomic<int> selectedIndex{-1};
    std::atomic<bool> isSelected{false};
    std::atomic<int> icon{0};
    std::atomic<DisplayAPI::CallConnectedItem*> call{nullptr};
    std::atomic<DisplayAPI::ContextMenu*> menu{nullptr};
    std::atomic<DisplayAPI::TreeNode*> node{nullptr};
    std::atomic<DisplayAPI::Item*> item{nullptr};
    std::atomic<DisplayAPI::MenuCommand*> command{nullptr};

    static Answers& instance();

    /// The answers that a process starts with.
    void reset();
};

} // namespace doubles
