#include "variants/list/ListBoxPrivateWP1.h"

#include "host/variants/list/ListBoxCore.h"
#include "host/variants/list/ListBoxText.h"
#include "widgets/KestrelListBoxWP1.h"

namespace DisplayAPI {

#define LIST_BOX_CLASS ListBoxPrivateWP1
#include "host/variants/list/ListBoxForwarding.inc"

ListBoxPrivateWP1::ListBoxPrivateWP1(List* owner, bool backItem)
    : mImpl(std::make_unique<Impl>(*this, owner, std::in_place_type<KestrelListBoxWP1>,
                                   backItem ? Impl::Back::KEY_AND_ROW : Impl::Back::NONE))
{
}

} // namespace DisplayAPI
