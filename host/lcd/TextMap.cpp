#include "host/lcd/TextMap.h"

#include "host/lcd/Geometry.h"

#include <tuple>
#include <utility>

namespace host {

void TextMap::forget(const PegRect& dirty)
{
    std::erase_if(mRuns, [&](const TextRun& run) { return overlap(run.area, dirty); });
}

void TextMap::cover(const PegRect& area, const PegRect& clip)
{
    std::erase_if(mRuns, [&](const TextRun& run) { return contains(area, run.area) && overlap(run.area, clip); });
}

void TextMap::add(TextRun run)
{
    std::erase_if(mRuns, [&](const TextRun& old) { return old.area == run.area; });
    mRuns.push_back(std::move(run));
}

std::vector<TextRun> TextMap::sorted() const
{
    auto runs = mRuns;
    std::sort(runs.begin(), runs.end(), [](const TextRun& one, const TextRun& other) {
        return std::tie(one.area.top, one.area.left) < std::tie(other.area.top, other.area.left);
    });
    return runs;
}

} // namespace host
