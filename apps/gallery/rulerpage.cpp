// SPDX-License-Identifier: MIT
#include "rulerpage.h"

#include <CorvelGui/Ruler>

#include <QLabel>
#include <QVBoxLayout>

using CorvelGui::Ruler;
using CorvelGui::TrackDescription;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr qint64 minute = 60'000;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

// 60 days around the change to summer time, seen from Berlin.
constexpr qint64 begin = 1'772'406'000'000;
constexpr qint64 period = 60 * day;
constexpr qint64 middle = begin + 27 * day + 90 * minute;

TrackDescription track()
{
    TrackDescription gate{u"gate"_s, u"Gate"_s, begin + day, begin + 50 * day, {}};
    for (qint64 time = gate.begin; time < gate.end; time += 47 * minute)
        gate.recorded.append({time, time + (time / minute % 31) * minute});
    return gate;
}

QDateTime at(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC);
}

Ruler* createRuler(QWidget* parent)
{
    auto* ruler = new Ruler(parent);
    ruler->setTimeZone(u"Europe/Berlin"_s);
    ruler->setActive(true, false);
    ruler->setTrackDescriptions({track()});
    ruler->setTimeLimits(quint64(begin), quint64(begin + period));
    return ruler;
}

} // namespace

RulerPage::RulerPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    const auto add = [&](const QString& caption) {
        layout->addWidget(new QLabel(caption, this));
        Ruler* ruler = createRuler(this);
        layout->addWidget(ruler);
        return ruler;
    };

    const QStringList spans{tr("20 minutes"), tr("1 hour"),  tr("3 hours"),
                            tr("12 hours"),   tr("1 day"),   tr("3 days"),
                            tr("7 days"),     tr("14 days"), tr("The whole period of 60 days")};
    for (int level = 0; level < spans.size(); ++level) {
        Ruler* ruler = add(spans[level]);
        ruler->setIndicatorPosition(quint64(middle));
        ruler->onTimelineOffsetChanged(double(middle - begin) / period);
        ruler->changeLevel(level, 0.5);
    }

    Ruler* search =
        add(tr("Search range and preview line; the view runs past the end of the period"));
    search->setPlayMode(false);
    search->setOrvaneGuiTheme(true);
    search->setTimeLimits(quint64(begin), quint64(begin + 40 * day));
    search->changeLevel(4, 0.5);
    search->onTimelineOffsetChanged(1.0);
    search->setIndicatorPosition(quint64(begin + 40 * day - 5 * hour));
    search->displaySearchTimeRange(true);
    search->setSearchTimeRange(at(begin + 40 * day - 9 * hour), at(begin + 40 * day - 7 * hour),
                               false);
    search->setPreviewIndicatorPosition(quint64(begin + 40 * day - 2 * hour));
    search->onPreviewVisible(true, false);

    Ruler* large = add(tr("Larger text"));
    large->setFontSize(12);
    large->changeLevel(2, 0.5);

    auto* empty = new Ruler(this);
    layout->addWidget(new QLabel(tr("Without a period"), this));
    layout->addWidget(empty);
    layout->addStretch();
}

} // namespace Gallery
