#include "host/variants/list/RowCore.h"

#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"

namespace DisplayAPI {

RowCore::RowCore(const std::string& text)
    : mItem(new KestrelListBoxItem(ICC::fromUTF8toUNICODE(text))), mOwnership(&mItem, true)
{
}

RowCore::RowCore(TranslationInfo* text) : RowCore(std::string())
{
    mTranslation = text;
    lookUp();
}

void RowCore::lookUp()
{
    if (mTranslation != nullptr)
        mItem->DataSet(ICC::fromUTF8toUNICODE(mTranslation->getCompleteString()));
}

} // namespace DisplayAPI
