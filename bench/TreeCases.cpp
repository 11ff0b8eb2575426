#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/Tree.h"
#include "DisplayAPI/TreeNode.h"
#include "kit/OnGuiThread.h"

namespace bench {

namespace {

constexpr int NODES = 10'000;
constexpr int BELOW = 1'000;
constexpr int QUESTIONS = 200;

/// Ten nodes on top, a thousand below each: with those on top, as many as are asked for.
DisplayAPI::TreeNode* build(DisplayAPI::Tree& tree)
{
    DisplayAPI::TreeNode* top = nullptr;
    for (int i = 0; i < NODES; ++i) {
        const std::string text = "Node " + std::to_string(i);
        if (i % BELOW == 0)
            top = tree.addNode(text, i);
        else
            top->addNode(text, i);
    }
    return tree.findItemAt(0);
}

/// A tree on the screen, built where `run` runs it. Milliseconds.
template <typename Run>
double built(Run run)
{
    Phone phone;
    DisplayAPI::Tree tree;
    phone.display().setCurrent(&tree);
    waitUntilShown();
    const auto start = Clock::now();
    run([&] { build(tree); });
    waitUntilShown();
    const double milliseconds = secondsSince(start) * 1e3;
    phone.display().setCurrent(nullptr);
    return milliseconds;
}

double builtOnGuiThread()
{
    return built([](const auto& work) { DisplayAPI::kit::onGuiThread(work); });
}

double builtByWorker()
{
    return built([](const auto& work) { work(); });
}

/// From the call to the finished frame. Milliseconds.
double opened()
{
    Phone phone;
    DisplayAPI::Tree tree;
    DisplayAPI::TreeNode* const node = build(tree);
    phone.display().setCurrent(&tree);
    waitUntilShown();
    const auto start = Clock::now();
    tree.expandNode(node, false);
    waitUntilShown();
    const double milliseconds = secondsSince(start) * 1e3;
    phone.display().setCurrent(nullptr);
    return milliseconds;
}

/// The last of all, asked for by a worker. Microseconds.
double found()
{
    Phone phone;
    DisplayAPI::Tree tree;
    build(tree);
    return nanosecondsEach(QUESTIONS, [&] { static_cast<void>(tree.findItemAt(NODES - 1)); }) / 1e3;
}

} // namespace

std::vector<Case> treeCases()
{
    return {{SCREEN, "Tree of 10,000 nodes built on the GUI thread, until shown", "ms", builtOnGuiThread},
            {SCREEN, "Tree of 10,000 nodes built by a worker, which waits for each", "ms", builtByWorker},
            {SCREEN, "Node of 1,000 opened by a worker, until shown", "ms", opened},
            {SCREEN, "findItemAt(9999) of a tree of 10,000 nodes, by a worker", "us", found}};
}

} // namespace bench
