#include "DisplayAPI/Dialog.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace DisplayAPI;

namespace {

class EmptyDialog : public Dialog {
public:
    DisplayablePrivateIfc* getPrivateImpl() override { return nullptr; }
};

} // namespace

TEST(DialogTest, IsADisplayableWithNothingOfItsOwn)
{
    EXPECT_TRUE((std::is_base_of_v<Displayable, Dialog>));
    EXPECT_EQ(sizeof(Dialog), sizeof(Displayable));
    EXPECT_EQ(EmptyDialog().getName(), "Displayable with no name");
}
