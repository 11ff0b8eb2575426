#include "host/variants/list/RowCore.h"

#include <utility>

namespace DisplayAPI {

RowCore::RowCore(TranslatedText text) : mText(std::move(text)), mItem(new KestrelListBoxItem(mText.shown())) {}

void RowCore::lookUp()
{
    if (mText.isTranslated())
        mItem->DataSet(mText.shown());
}

} // namespace DisplayAPI
