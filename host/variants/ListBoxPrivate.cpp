#include "variants/ListBoxPrivate.h"

#include "host/variants/ListBoxCore.h"
#include "host/variants/ListBoxText.h"
#include "widgets/KestrelListBoxWithTitle.h"

namespace DisplayAPI {

#define LIST_BOX_CLASS ListBoxPrivate
#include "host/variants/ListBoxForwarding.inc"

ListBoxPrivate::ListBoxPrivate(List* owner, bool backItem)
    : mImpl(std::make_unique<Impl>(*this, owner, makeWatched<KestrelListBoxWithTitle>(),
                                   backItem ? Impl::Back::KEY : Impl::Back::NONE))
{
}

} // namespace DisplayAPI
