#include "toolkit/PegThing.h"

#include "host/lcd/Lcd.h"
#include "support/RunningToolkit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

using test::RecordingThing;
using test::StartedToolkit;
using testing::ElementsAre;

std::vector<PegThing*> childrenOf(const PegThing& thing)
{
    std::vector<PegThing*> children;
    for (PegThing* child = thing.First(); child; child = child->NextSibling())
        children.push_back(child);
    return children;
}

class VisibilityThing : public PegThing {
public:
    std::vector<bool> changes;

protected:
    void VisibilityChanged() override { changes.push_back(StatusIs(PSF_VISIBLE)); }
};

class Parent : public PegThing {
public:
    std::vector<PegThing*> gone;

protected:
    void ChildRemoved(PegThing* child) override
    {
        EXPECT_EQ(child->Parent(), nullptr);
        gone.push_back(child);
    }
};

class PegThingTest : public testing::Test {
protected:
    /// A thing without a parent.
    PegThing* loose() { return mLoose.emplace_back(std::make_unique<PegThing>()).get(); }

    void clearDirt()
    {
        host::Lcd::current()->paint();
        ASSERT_FALSE(host::Lcd::current()->isDirty());
    }

    StartedToolkit toolkit;

private:
    std::vector<std::unique_ptr<PegThing>> mLoose;
};

TEST_F(PegThingTest, StartsWithIdAndStyleOnly)
{
    const PegThing thing(7, FF_NONE);
    EXPECT_EQ(thing.Id(), 7);
    EXPECT_EQ(thing.Style(), FF_NONE);
    EXPECT_EQ(thing.Type(), TYPE_THING);
    EXPECT_EQ(thing.Layer(), LAYER_NORMAL);
    EXPECT_EQ(thing.Parent(), nullptr);
    EXPECT_FALSE(thing.StatusIs(PSF_VISIBLE));
}

TEST_F(PegThingTest, AddPutsTheChildOnTop)
{
    PegThing parent;
    auto* const bottom = new PegThing;
    auto* const top = new PegThing;
    parent.Add(bottom);
    parent.Add(top);
    EXPECT_THAT(childrenOf(parent), ElementsAre(bottom, top));
    EXPECT_EQ(top->Parent(), &parent);
}

TEST_F(PegThingTest, AddOfAChildRaisesIt)
{
    PegThing parent;
    auto* const first = new PegThing;
    auto* const second = new PegThing;
    parent.Add(first);
    parent.Add(second);
    parent.Add(first);
    EXPECT_THAT(childrenOf(parent), ElementsAre(second, first));
}

TEST_F(PegThingTest, AddTakesTheChildFromItsParent)
{
    PegThing from;
    PegThing to;
    auto* const child = new PegThing;
    from.Add(child);
    to.Add(child);
    EXPECT_TRUE(childrenOf(from).empty());
    EXPECT_THAT(childrenOf(to), ElementsAre(child));
}

TEST_F(PegThingTest, ParentHearsOfEachChildThatGoes)
{
    Parent parent;
    auto* const dying = new PegThing;
    PegThing* const moving = loose();
    parent.Add(dying);
    parent.Add(moving);
    parent.Remove(loose());
    EXPECT_TRUE(parent.gone.empty());
    loose()->Add(moving);
    delete dying;
    EXPECT_THAT(parent.gone, ElementsAre(moving, dying));
}

TEST_F(PegThingTest, AddOfNothingItselfOrAnAncestorIsIgnored)
{
    PegThing parent;
    auto* const child = new PegThing;
    parent.Add(child);
    parent.Add(nullptr);
    parent.Add(&parent);
    child->Add(&parent);
    EXPECT_THAT(childrenOf(parent), ElementsAre(child));
    EXPECT_EQ(parent.Parent(), nullptr);
    EXPECT_TRUE(childrenOf(*child).empty());
}

TEST_F(PegThingTest, RemoveFromAnyPlaceKeepsTheOthersInOrder)
{
    for (std::size_t removed = 0; removed < 3; ++removed) {
        PegThing parent;
        std::vector<PegThing*> children{new PegThing, new PegThing, new PegThing};
        for (PegThing* child : children)
            parent.Add(child);
        const std::unique_ptr<PegThing> own(children[removed]);
        parent.Remove(own.get());
        children.erase(children.begin() + static_cast<std::ptrdiff_t>(removed));
        EXPECT_EQ(childrenOf(parent), children);
        EXPECT_EQ(own->Parent(), nullptr);
        EXPECT_EQ(own->NextSibling(), nullptr);
    }
}

TEST_F(PegThingTest, RemoveOfAStrangerIsIgnored)
{
    PegThing parent;
    PegThing other;
    auto* const child = new PegThing;
    other.Add(child);
    parent.Remove(child);
    parent.Remove(nullptr);
    EXPECT_EQ(child->Parent(), &other);
}

TEST_F(PegThingTest, DeletingAThingTakesItOutOfItsParent)
{
    PegThing parent;
    auto* const child = new PegThing;
    parent.Add(child);
    delete child;
    EXPECT_EQ(parent.First(), nullptr);
}

TEST_F(PegThingTest, IsVisibleWhileReachableFromThePresentationManager)
{
    auto* const window = new VisibilityThing;
    auto* const row = new VisibilityThing;
    window->Add(row);
    EXPECT_FALSE(row->StatusIs(PSF_VISIBLE));

    gpPresent->Add(window);
    EXPECT_TRUE(window->StatusIs(PSF_VISIBLE));
    EXPECT_TRUE(row->StatusIs(PSF_VISIBLE));

    gpPresent->Remove(window);
    EXPECT_FALSE(window->StatusIs(PSF_VISIBLE));
    EXPECT_FALSE(row->StatusIs(PSF_VISIBLE));
    EXPECT_THAT(window->changes, ElementsAre(true, false));
    EXPECT_THAT(row->changes, ElementsAre(true, false));
    delete window;
}

TEST_F(PegThingTest, ChildAddedToAVisibleThingBecomesVisible)
{
    auto* const window = new PegThing;
    gpPresent->Add(window);
    auto* const row = new VisibilityThing;
    window->Add(row);
    EXPECT_THAT(row->changes, ElementsAre(true));
}

TEST_F(PegThingTest, AddAndRemoveWithoutRedrawMarkNothing)
{
    clearDirt();
    PegThing* const thing = loose();
    thing->Resize({0, 0, 9, 9});
    gpPresent->Add(thing, false);
    EXPECT_TRUE(thing->StatusIs(PSF_VISIBLE));
    EXPECT_FALSE(host::Lcd::current()->isDirty());
    gpPresent->Remove(thing, false);
    EXPECT_FALSE(host::Lcd::current()->isDirty());
    EXPECT_EQ(gpPresent->Pending(), nullptr);
}

TEST_F(PegThingTest, AddAndRemoveWithRedrawMarkTheArea)
{
    clearDirt();
    PegThing* const thing = loose();
    thing->Resize({0, 0, 9, 9});
    gpPresent->Add(thing);
    EXPECT_TRUE(host::Lcd::current()->isDirty());
    clearDirt();
    gpPresent->Remove(thing);
    EXPECT_TRUE(host::Lcd::current()->isDirty());
}

TEST_F(PegThingTest, InvisibleThingMarksNothing)
{
    clearDirt();
    PegThing thing;
    thing.Resize({0, 0, 9, 9});
    thing.Invalidate();
    thing.Invalidate({0, 0, 5, 5});
    EXPECT_FALSE(host::Lcd::current()->isDirty());
}

TEST_F(PegThingTest, VisibleThingMarksItsAreaAndPartsOfIt)
{
    PegThing* const thing = loose();
    thing->Resize({0, 0, 9, 9});
    gpPresent->Add(thing);
    clearDirt();
    thing->Invalidate();
    EXPECT_TRUE(host::Lcd::current()->isDirty());
    clearDirt();
    thing->Invalidate({2, 2, 3, 3});
    EXPECT_TRUE(host::Lcd::current()->isDirty());
    clearDirt();
    thing->Invalidate({20, 20, 30, 30});
    EXPECT_FALSE(host::Lcd::current()->isDirty()) << "not a part of the thing";
    gpPresent->Remove(thing);
}

TEST_F(PegThingTest, KeysGoToTheParentOtherMessagesDoNot)
{
    RecordingThing parent;
    auto* const child = new PegThing;
    parent.Add(child);
    EXPECT_EQ(child->Message({PM_KEY, PK_OK}), 0);
    EXPECT_EQ(child->Message({PM_KEYRELEASE, PK_OK}), 0);
    EXPECT_EQ(child->Message({PM_CLICKED, 3}), 0);
    ASSERT_EQ(parent.messages.size(), 2u);
    EXPECT_EQ(parent.messages[0].wType, PM_KEY);
    EXPECT_EQ(parent.messages[1].wType, PM_KEYRELEASE);
}

TEST_F(PegThingTest, DeletingAWholeScreenLeavesNothingBehind)
{
    auto* const window = new PegThing;
    auto* const row = new PegThing;
    window->Add(row);
    gpPresent->Add(window);
    gpPresent->MoveFocusTree(row);
    row->SetTimer(1, 10, true);
    PegMessageQueue().Push({PM_CLICKED, 1, row});
    delete window;
    EXPECT_EQ(gpPresent->First(), nullptr);
    EXPECT_EQ(gpPresent->Focus(), nullptr);
    EXPECT_FALSE(gpPresent->StatusIs(PSF_CURRENT));
    EXPECT_EQ(gtPegMainQueue->count(), 0);
}

} // namespace
