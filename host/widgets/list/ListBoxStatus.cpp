#include "host/lcd/Geometry.h"
#include "host/widgets/list/ListBoxImpl.h"

#include <algorithm>
#include <utility>

using namespace host;

void KestrelListBox::Impl::setStatusLines(int lines)
{
    if (status.setSize(lines))
        placeStatus();
}

void KestrelListBox::Impl::setStatusText(int line, std::string text)
{
    if (!status.setText(line, std::move(text)))
        return;
    placeStatus();
    if (line < statusShown)
        box.Invalidate(view().parts.statusLine(line));
}

void KestrelListBox::Impl::statusTimeChanged()
{
    placeStatus();
    if (statusShown > 0)
        box.Invalidate(view().parts.statusLine(0));
}

/// The time alone keeps line 0 visible. The rows have what the status lines leave.
void KestrelListBox::Impl::placeStatus()
{
    const bool timed = status.size() > 0 && statusTime() != nullptr && !statusTime()->text().empty();
    const int shown = std::max(status.used(), timed ? 1 : 0);
    if (shown != statusShown) {
        statusShown = shown;
        update();
        box.Invalidate();
    }
    StatusTime::watch(*this, status.size() > 0 && box.StatusIs(PSF_VISIBLE));
}

int KestrelListBox::systemWindowLines() const
{
    return mImpl->view().parts.statusLines();
}

const std::string& KestrelListBox::systemWindowText(int line) const
{
    return mImpl->status.text(line);
}

PegRect KestrelListBox::systemWindowArea() const
{
    return mImpl->view().parts.status;
}

void KestrelListBox::VisibilityChanged()
{
    mImpl->placeStatus();
}
