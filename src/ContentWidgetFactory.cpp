#include "ContentWidgetFactory.h"

#include "ContentWidget.h"

namespace DisplayAPI {

ContentWidget* ContentWidgetFactory::createContentWidget()
{
    return new ContentWidget;
}

} // namespace DisplayAPI
