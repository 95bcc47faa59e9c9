// SPDX-License-Identifier: MIT
#include "timespans.h"

#include <algorithm>
#include <iterator>

namespace CorvelGui {

namespace {

void replace(TimeSpans& spans, TimeSpans::iterator first, TimeSpans::iterator last,
             const TimeSpans& by)
{
    const auto common = std::min(last - first, std::ptrdiff_t(by.size()));
    first = std::copy_n(by.begin(), common, first);
    spans.insert(spans.erase(first, last), by.begin() + common, by.end());
}

} // namespace

QList<TimeSpan> TimeSpan::joined(const QList<TimeSpan>& spans)
{
    const auto meets = [](const TimeSpan& span, const TimeSpan& next) {
        return next.begin <= span.end;
    };
    if (std::ranges::none_of(spans, &TimeSpan::isEmpty) &&
        std::ranges::adjacent_find(spans, meets) == spans.end())
        return spans;
    const TimeSpans all = CorvelGui::joined({spans.begin(), spans.end()});
    return {all.begin(), all.end()};
}

TimeSpans joined(TimeSpans spans)
{
    std::erase_if(spans, [](const TimeSpan& span) { return span.isEmpty(); });
    const auto byBegin = [](const TimeSpan& a, const TimeSpan& b) {
        return a.begin < b.begin;
    };
    if (!std::is_sorted(spans.begin(), spans.end(), byBegin))
        std::sort(spans.begin(), spans.end(), byBegin);

    auto end = spans.begin(); // of those that are joined
    for (const TimeSpan& span : spans) {
        if (end != spans.begin() && span.begin <= std::prev(end)->end)
            std::prev(end)->end = std::max(std::prev(end)->end, span.end);
        else
            *end++ = span;
    }
    spans.erase(end, spans.end());
    return spans;
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

void unite(TimeSpans& spans, const TimeSpan& span)
{
    if (span.isEmpty())
        return;
    const auto first = std::partition_point(spans.begin(), spans.end(),
                                            [&](const TimeSpan& s) { return s.end < span.begin; });
    const auto last = std::partition_point(first, spans.end(),
                                           [&](const TimeSpan& s) { return s.begin <= span.end; });
    TimeSpan whole = span;
    if (first != last)
        whole = {std::min(first->begin, span.begin), std::max(std::prev(last)->end, span.end)};
    replace(spans, first, last, {whole});
}

void subtract(TimeSpans& spans, const TimeSpan& span)
{
    if (span.isEmpty())
        return;
    const auto first = std::partition_point(spans.begin(), spans.end(),
                                            [&](const TimeSpan& s) { return s.end <= span.begin; });
    const auto last = std::partition_point(first, spans.end(),
                                           [&](const TimeSpan& s) { return s.begin < span.end; });
    replace(spans, first, last, difference({first, last}, {span}));
}

std::optional<qint64> nearestEdge(const TimeSpans& spans, qint64 msecs)
{
    const auto next = std::partition_point(spans.begin(), spans.end(),
                                           [&](const TimeSpan& s) { return s.end < msecs; });
    std::optional<qint64> nearest;
    const auto consider = [&](qint64 edge) {
        if (!nearest || distanceOf(edge, msecs) < distanceOf(*nearest, msecs))
            nearest = edge;
    };
    if (next != spans.begin())
        consider(std::prev(next)->end);
    if (next != spans.end()) {
        consider(next->begin);
        consider(next->end);
    }
    return nearest;
}

} // namespace CorvelGui
