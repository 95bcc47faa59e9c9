#include "timespans.h"

#include <algorithm>

namespace CorvelGui {

TimeSpans joined(TimeSpans spans)
{
    std::erase_if(spans, [](const TimeSpan& span) { return span.isEmpty(); });
    const auto byBegin = [](const TimeSpan& a, const TimeSpan& b) {
        return a.begin < b.begin;
    };
    if (!std::is_sorted(spans.begin(), spans.end(), byBegin))
        std::sort(spans.begin(), spans.end(), byBegin);

    TimeSpans result;
    result.reserve(spans.size());
    for (const TimeSpan& span : spans) {
        if (!result.empty() && span.begin <= result.back().end)
            result.back().end = std::max(result.back().end, span.end);
        else
            result.push_back(span);
    }
    return result;
}

TimeSpans difference(const TimeSpans& spans, const TimeSpans& without)
{
    TimeSpans result;
    auto hole = without.begin();
    for (const TimeSpan& span : spans) {
        while (hole != without.end() && hole->end <= span.begin)
            ++hole;
        qint64 begin = span.begin;
        // A hole may reach into the next span, so only look ahead here.
        for (auto next = hole; next != without.end() && next->begin < span.end; ++next) {
            if (begin < next->begin)
                result.push_back({begin, next->begin});
            begin = next->end;
        }
        if (begin < span.end)
            result.push_back({begin, span.end});
    }
    return result;
}

} // namespace CorvelGui
