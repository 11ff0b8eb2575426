#pragma once

namespace DisplayAPI {

class ContentWidget;

/// Makes the content widget of a display.
class ContentWidgetFactoryIfc {
public:
    virtual ~ContentWidgetFactoryIfc() = default;

    /// The caller owns what it gets.
    virtual ContentWidget* createContentWidget() = 0;
};

class ContentWidgetFactory : public ContentWidgetFactoryIfc {
public:
    ContentWidget* createContentWidget() override;
};

} // namespace DisplayAPI
