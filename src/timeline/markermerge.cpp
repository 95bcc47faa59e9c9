#include "markermerge.h"

#include <cmath>

namespace CorvelGui {

std::vector<MarkerRun> mergeMarkers(std::span<const MarkerPlace> places)
{
    std::vector<MarkerRun> runs;
    for (std::size_t first = 0; first < places.size();) {
        MarkerRun run{first, first, first};
        for (std::size_t next = first + 1; next < places.size(); ++next) {
            const std::size_t middle = (first + next) / 2;
            if (!places[first].overlaps(places[middle]) || !places[next].overlaps(places[middle]))
                break;
            run.last = next;
            run.representative = middle;
        }
        runs.push_back(run);
        first = run.last + 1;
    }
    return runs;
}

int visibleHalfWidth(int width, double visibleFraction)
{
    const int visible = int(std::lround(width * visibleFraction));
    return width / 2 - (width - visible) / 2 - visible / 8;
}

} // namespace CorvelGui
