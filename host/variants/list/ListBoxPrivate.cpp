#include "variants/list/ListBoxPrivate.h"

#include "host/variants/list/ListBoxCore.h"
#include "host/variants/list/ListBoxText.h"
#include "widgets/KestrelListBoxWithTitle.h"

namespace DisplayAPI {

#define LIST_BOX_CLASS ListBoxPrivate
#include "host/variants/list/ListBoxForwarding.inc"

ListBoxPrivate::ListBoxPrivate(List* owner, bool backItem)
    : mImpl(std::make_unique<Impl>(*this, owner, std::in_place_type<KestrelListBoxWithTitle>,
                                   backItem ? Impl::Back::KEY : Impl::Back::NONE))
{
}

} // namespace DisplayAPI
