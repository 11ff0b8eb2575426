#include "unit/host/variants/list/ListVariantTest.h"

using namespace DisplayAPI;

namespace {

template <typename Variant>
class ExclusiveListPrivateTest : public test::ListVariantTest<Variant> {
protected:
    using Row = typename Variant::Row;

    typename Variant::Exclusive list{&this->owner};
    Row a{std::string("a"), true}, b{std::string("b"), true};
};

TYPED_TEST_SUITE(ExclusiveListPrivateTest, test::Variants);

TYPED_TEST(ExclusiveListPrivateTest, ChosenIsWhatIsSelected)
{
    EXPECT_FALSE(this->list.isSelected(-1));
    this->list.append(&this->a);
    this->list.append(&this->b);
    EXPECT_TRUE(this->list.isSelected(0));
    this->list.setSelectedIndex(1);
    EXPECT_FALSE(this->list.isSelected(0));
    EXPECT_TRUE(this->list.isSelected(1));
    EXPECT_FALSE(this->list.isSelected(2));
}

TYPED_TEST(ExclusiveListPrivateTest, ChosenRowCarriesTheMark)
{
    this->list.append(&this->a);
    this->list.append(&this->b);
    this->press(this->list, PK_DOWN);
    EXPECT_FALSE(this->a.getKestrelListItem()->isMarked());
    EXPECT_TRUE(this->b.getKestrelListItem()->isMarked());
}

TYPED_TEST(ExclusiveListPrivateTest, LeftGoesBack)
{
    this->attach(this->list);
    EXPECT_CALL(this->listener, postCommandAction(DisplayAPI::List::BACK_COMMAND(), &this->owner));
    this->press(this->list, PK_LEFT);
}

} // namespace
