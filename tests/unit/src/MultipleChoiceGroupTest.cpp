#include "DisplayAPI/MultipleChoiceGroup.h"

#include "DisplayAPI/CheckBoxField.h"
#include "DisplayAPI/Form.h"
#include "DisplayAPI/Image.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"

using namespace DisplayAPI;
using test::From;
using testing::Each;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class MultipleChoiceGroupTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }
};

TEST_P(MultipleChoiceGroupTest, GivesItsFieldsToTheFormOnceTheyAreInIt)
{
    std::unique_ptr<Form> form;
    run([&] {
        form = std::make_unique<Form>(Form::HALF_AND_HALF);
        MultipleChoiceGroup group("Days");
        for (const char* day : {"Monday", "Tuesday", "Wednesday"})
            group.append(day, nullptr);
        group.addToForm(nullptr);
        EXPECT_THAT(form->getItems(), IsEmpty());
        group.addToForm(form.get());
        group.append("Thursday", nullptr); // the group's own
    });
    EXPECT_THAT(form->getItems(), SizeIs(3));
    run([&] { form.reset(); });
}

TEST_P(MultipleChoiceGroupTest, FieldIsGivenToOneFormOnce)
{
    std::unique_ptr<Form> form, other;
    run([&] {
        form = std::make_unique<Form>(Form::HALF_AND_HALF);
        other = std::make_unique<Form>(Form::HALF_AND_HALF);
        MultipleChoiceGroup group("Days");
        group.append("Monday", nullptr);
        group.addToForm(form.get());
        group.append("Tuesday", nullptr);
        group.addToForm(other.get());
        group.addToForm(other.get());
    });
    EXPECT_THAT(form->getItems(), SizeIs(1));
    EXPECT_THAT(other->getItems(), SizeIs(1));
    run([&] {
        form.reset();
        other.reset();
    });
}

/// Fields without a look or a state: what the group says of them is that there are so many.
TEST_P(MultipleChoiceGroupTest, AsksTheFieldsThatThereAre)
{
    run([] {
        MultipleChoiceGroup group("Days");
        EXPECT_THAT(group.getSelectedFlags(), IsEmpty());
        group.append("Monday", nullptr);
        group.append("Tuesday", nullptr);
        group.setSelectedIndex(0, true);
        group.setSelectedIndex(1, true);
        group.setSelectedIndex(2, true);
        group.setSelectedIndex(-1, true);
        group.setSelectedFlags({});
        group.setSelectedFlags({true, true, true});
        EXPECT_THAT(group.getSelectedFlags(), testing::AllOf(SizeIs(2), Each(false)));
        for (const int index : {-1, 0, 1, 2, 99}) {
            EXPECT_FALSE(group.isSelected(index));
            EXPECT_EQ(group.getString(index), "");
            EXPECT_EQ(group.getImage(index), nullptr);
        }
    });
}

TEST_P(MultipleChoiceGroupTest, FieldsStay)
{
    run([] {
        MultipleChoiceGroup group("Days");
        group.append("Monday", nullptr);
        group.insert(0, "Sunday", nullptr);
        group.deleteItem(0);
        group.deleteAll();
        group.removeFromForm();
        EXPECT_THAT(group.getSelectedFlags(), SizeIs(1));
    });
}

INSTANTIATE_FROM_BOTH_THREADS(MultipleChoiceGroupTest);

/// What a group asks of its fields shows in what it posts.
class QueuedMultipleChoiceGroupTest : public test::SteppedTest {
protected:
    std::vector<int> postedBy(const std::function<void()>& operation)
    {
        std::vector<int> codes;
        test::Worker worker(operation);
        while (!worker.hasReturned()) {
            if (worker.isBlocked() && gui.queued() > 0)
                codes.push_back(gui.queuedCodes().front());
            gui.step();
        }
        worker.join();
        return codes;
    }

    MultipleChoiceGroup group{"Days"};
};

TEST_F(QueuedMultipleChoiceGroupTest, FirstFieldIsNotSelectedByItsIndex)
{
    group.append("Monday", nullptr);
    group.append("Tuesday", nullptr);
    EXPECT_THAT(postedBy([&] { group.setSelectedIndex(0, true); }), IsEmpty());
    EXPECT_THAT(postedBy([&] { group.setSelectedIndex(2, true); }), IsEmpty());
    EXPECT_THAT(postedBy([&] { group.setSelectedIndex(1, true); }), testing::ElementsAre(6));
    EXPECT_THAT(postedBy([&] { group.setSelectedFlags({true, true, true}); }), testing::ElementsAre(6, 6));
    EXPECT_THAT(postedBy([&] { group.setSelectedFlags({true}); }), testing::ElementsAre(6));
}

TEST_F(QueuedMultipleChoiceGroupTest, NameIsTheLabelOfTheFirstFieldAlone)
{
    std::vector<std::string> labels;
    test::Worker worker([&] {
        for (const char* day : {"Monday", "Tuesday", "Wednesday"})
            group.append(day, nullptr);
    });
    for (int i = 0; i < 3; ++i) {
        gui.waitForQueued(1);
        const auto* const request = static_cast<GuiRequestEvent*>(gui.messages().front().pData);
        labels.push_back(request->stringParam1 + "/" + request->stringParam2);
        gui.step();
    }
    worker.join();
    EXPECT_THAT(labels, testing::ElementsAre("Days/Monday", "/Tuesday", "/Wednesday"));
}

} // namespace
