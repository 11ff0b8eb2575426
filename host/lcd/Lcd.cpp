#include "host/lcd/Lcd.h"

#include "host/lcd/DirtyArea.h"
#include "host/lcd/FrameBuffer.h"
#include "host/lcd/Geometry.h"
#include "host/lcd/Painter.h"
#include "host/lcd/TextMap.h"
#include "host/lcd/TextRenderer.h"
#include "presentation/PRESCPresentationManager.h"

#include <atomic>
#include <chrono>
#include <mutex>
#include <utility>

namespace host {

namespace {

using Time = std::chrono::steady_clock;

constexpr std::chrono::milliseconds FRAME_INTERVAL{16};

std::atomic<Lcd*> gCurrent{nullptr};

/// Most of a long form is out of sight: what is not in the clip costs a look.
void drawTree(PegThing& thing, const PegPainter& painter)
{
    if (!overlap(thing.Area(), painter.clip()))
        return;
    PegPainter own = painter.paintingFor(thing);
    thing.Draw(own);
    for (PegThing* child = thing.First(); child != nullptr; child = child->NextSibling())
        drawTree(*child, own);
}

/// The topmost thing in the area, where it is a window that fills it: nothing below shows. Null where it is not.
PegThing* coverOf(const PegRect& area)
{
    PegThing* topmost = nullptr;
    for (PegThing* child = gpPresent->First(); child != nullptr; child = child->NextSibling())
        if (overlap(child->Area(), area))
            topmost = child;
    return topmost != nullptr && topmost->Type() == TYPE_WINDOW && contains(topmost->Area(), area) ? topmost : nullptr;
}

PegRect focusArea()
{
    const PegThing* focus = gpPresent == nullptr ? nullptr : gpPresent->Focus();
    return focus == nullptr ? PegRect{0, 0, -1, -1} : focus->Area();
}

} // namespace

struct Lcd::Impl {
    Impl(int width, int height) : buffer(width, height) {}

    void paintArea(const PegRect& area);

    DirtyArea dirty;
    Time::time_point lastFrame;
    TextRenderer renderer;

    mutable std::mutex mutex; ///< guards what follows
    FrameBuffer buffer;
    TextMap texts;
    std::uint64_t frame = 0;
    PegRect focus{0, 0, -1, -1};
    std::shared_ptr<const std::function<void()>> listener;
};

void Lcd::Impl::paintArea(const PegRect& area)
{
    PegPainter painter(buffer, texts, renderer, area);
    PegThing* const cover = gpPresent != nullptr ? coverOf(area) : nullptr;
    if (cover != nullptr)
        return drawTree(*cover, painter);
    texts.forget(area);
    painter.fill(area, Level::BARE);
    if (gpPresent == nullptr)
        return;
    gpPresent->Draw(painter);
    for (PegThing* child = gpPresent->First(); child != nullptr; child = child->NextSibling())
        drawTree(*child, painter);
}

Lcd::Lcd(int width, int height) : mImpl(std::make_unique<Impl>(width, height)), mWidth(width), mHeight(height)
{
    gCurrent = this;
}

Lcd::~Lcd()
{
    Lcd* self = this;
    gCurrent.compare_exchange_strong(self, nullptr);
}

Lcd* Lcd::current()
{
    return gCurrent;
}

void Lcd::Invalidate(PegThing* thing)
{
    if (thing != nullptr && thing->StatusIs(PSF_VISIBLE))
        invalidate(thing->Area());
}

void Lcd::Update()
{
    if (untilFrameDue() == 0)
        paint();
}

void Lcd::invalidate(const PegRect& area)
{
    mImpl->dirty.add(intersection(area, rectAt(0, 0, mWidth, mHeight)));
}

bool Lcd::isDirty() const
{
    return !mImpl->dirty.isEmpty() || mImpl->focus != focusArea();
}

int Lcd::untilFrameDue() const
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(mImpl->lastFrame + FRAME_INTERVAL - Time::now());
    return static_cast<int>(std::max<std::int64_t>(0, left.count()));
}

void Lcd::paint()
{
    if (!isDirty())
        return;
    std::shared_ptr<const std::function<void()>> listener;
    {
        std::lock_guard lock(mImpl->mutex);
        for (const PegRect& area : mImpl->dirty.take())
            mImpl->paintArea(area);
        ++mImpl->frame;
        mImpl->focus = focusArea();
        listener = mImpl->listener;
    }
    mImpl->lastFrame = Time::now();
    if (listener)
        (*listener)();
}

int Lcd::textWidth(Font font, const PegString& text)
{
    return mImpl->renderer.mask(font, text, TextMask::MAX_WIDTH).width;
}

const std::vector<TextEdges>& Lcd::textEdges(Font font, const PegString& text)
{
    return mImpl->renderer.edges(font, text);
}

Picture Lcd::picture() const
{
    std::lock_guard lock(mImpl->mutex);
    return {mWidth, mHeight, mImpl->buffer.pixels(), mImpl->texts.sorted(), mImpl->frame, mImpl->focus};
}

Picture Lcd::reading() const
{
    std::lock_guard lock(mImpl->mutex);
    return {mWidth, mHeight, {}, mImpl->texts.sorted(), mImpl->frame, mImpl->focus};
}

void Lcd::setFrameListener(std::function<void()> listener)
{
    auto held = listener ? std::make_shared<const std::function<void()>>(std::move(listener)) : nullptr;
    std::lock_guard lock(mImpl->mutex);
    mImpl->listener.swap(held);
}

} // namespace host
