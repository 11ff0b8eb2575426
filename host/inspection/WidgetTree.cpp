#include "host/inspection/WidgetTree.h"

#include "host/inspection/FacadeNames.h"
#include "presentation/DisplayStack.h"
#include "presentation/PRESCPresentationManager.h"

#include <algorithm>

std::vector<StackedDisplayable> (*gpDisplayStack)() = nullptr;

namespace host {

namespace {

using Stack = std::vector<StackedDisplayable>;

WidgetNode nodeOf(const PegThing& thing, std::string owner, const Stack& stack)
{
    const auto own = std::ranges::find(stack, &thing, &StackedDisplayable::widget);
    if (own != stack.end())
        owner = FacadeNames::classOf(*own->facade);
    WidgetNode node{FacadeNames::readable(typeid(thing)), thing.Area(), gpPresent->Focus() == &thing, owner, {}};
    for (const PegThing* child = thing.First(); child != nullptr; child = child->NextSibling())
        node.children.push_back(nodeOf(*child, owner, stack));
    return node;
}

} // namespace

WidgetTree WidgetTree::read()
{
    const Stack stack = gpDisplayStack != nullptr ? gpDisplayStack() : Stack();
    WidgetTree tree;
    for (const StackedDisplayable& entry : stack)
        tree.displayables.push_back(FacadeNames::classOf(*entry.facade));
    tree.root = nodeOf(*gpPresent, {}, stack);
    return tree;
}

} // namespace host
