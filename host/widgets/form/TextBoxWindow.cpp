#include "host/widgets/form/TextBoxWindow.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Column.h"
#include "host/widgets/form/TitleBar.h"

#include <utility>

namespace host {

TextBoxWindow::TextBoxWindow(bool hasTitle, int mostLines)
    : PegWindow(FF_NONE), mHasTitle(hasTitle), mMostLines(mostLines), mStatus(new StatusStrip([this] { layOut(); })),
      mPage(new EditPage)
{
    Add(mStatus, false);
    Add(mPage, false);
    mPage->setKind(EditKind::TEXT);
    mPage->setFocus(true);
    mPage->setMessageTarget(this);
    const auto [width, height] = runningPanel();
    Resize(rectAt(0, 0, width, height));
}

void TextBoxWindow::Resize(const PegRect& area)
{
    PegWindow::Resize(area);
    layOut();
}

void TextBoxWindow::setTitle(PegString title)
{
    mTitle = std::move(title);
    layOut();
    Invalidate(parts().title);
}

TextBoxWindow::Parts TextBoxWindow::parts() const
{
    Column column(Area());
    Parts parts;
    parts.status = column.fromTop(mStatus->height());
    parts.title = column.fromTop(mHasTitle && !mTitle.empty() ? titleBarHeight() : 0);
    parts.page = mMostLines > 0 ? column.fromTop(mMostLines * Field::lineHeight()) : column.rest();
    return parts;
}

void TextBoxWindow::layOut()
{
    mStatus->setRoom(heightOf(Area()) - titleBarHeight() - Field::lineHeight());
    const Parts where = parts();
    if (mStatus->Area() != where.status)
        mStatus->Resize(where.status);
    if (mPage->Area() != where.page)
        mPage->Resize(where.page);
    const PegRect formerTitle = std::exchange(mTitleArea, where.title);
    if (formerTitle != where.title)
        Invalidate();
}

int TextBoxWindow::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_KEY: key(message.iData); break;
    case PM_KEYRELEASE: mPage->released(message.iData); break;
    case PM_CURRENT_CHANGED: tell(PM_CURRENT_CHANGED); break;
    default: return PegWindow::Message(message);
    }
    return 0;
}

/// What is typed is told, by which the window may go.
void TextBoxWindow::key(int key)
{
    if (key == PK_UP || key == PK_DOWN || key == PK_LEFT || key == PK_RIGHT)
        move(key);
    else if (!mPage->key(key) && key == PK_OK)
        tell(PM_CLICKED);
}

void TextBoxWindow::move(int key)
{
    const std::size_t top = mPage->topLine();
    const bool hasMoved = mPage->key(key);
    if (hasMoved && mPage->topLine() != top)
        tell(PM_ROW_CHANGED);
    else if (!hasMoved && key == PK_RIGHT)
        tell(PM_RIGHT);
    else if (!hasMoved && key == PK_LEFT)
        tell(PM_LEFT);
}

void TextBoxWindow::tell(std::uint16_t type)
{
    if (mTarget != nullptr)
        mTarget->Message({.wType = type, .pTarget = mTarget, .pSource = this});
}

void TextBoxWindow::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    const Parts where = parts();
    if (!isEmpty(where.title))
        drawTitleBar(painter, where.title, mTitle);
}

} // namespace host
