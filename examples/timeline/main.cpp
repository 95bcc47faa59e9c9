// SPDX-License-Identifier: MIT
// Two cameras' recordings of a week with the events in them; a click or the arrow keys choose a
// moment.
#include <CorvelGui/Ruler>
#include <CorvelGui/RulerMarker>
#include <CorvelGui/TrackDescription>
#include <CorvelGui/ZoomTimeline>

#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QTimeZone>
#include <QVBoxLayout>

using namespace CorvelGui;

constexpr qint64 minute = 60'000;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
constexpr qint64 weekBegin = 1'774'306'800'000; // a Tuesday, 0:00 in Brussels
constexpr qint64 weekEnd = weekBegin + 7 * day;

/// Recorded for some minutes of each hour between opening and closing.
TrackDescription camera(const QString& name, int opens, int closes, int minutes)
{
    TrackDescription track{name, name, weekBegin, weekEnd, {}};
    for (qint64 midnight = weekBegin; midnight < weekEnd; midnight += day) {
        for (int hours = opens; hours < closes; ++hours)
            track.recorded.append(
                {midnight + hours * hour, midnight + hours * hour + minutes * minute});
    }
    return track;
}

RulerMarker event(qint64 time, const QString& text)
{
    RulerMarker marker;
    marker.identifier = QUuid::createUuid();
    marker.time = QDateTime::fromMSecsSinceEpoch(time);
    marker.text = text;
    return marker;
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    QWidget window;
    window.setWindowTitle("A week of recordings");
    auto* moment = new QLabel;
    auto* timeline = new ZoomTimeline;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(moment);
    layout->addWidget(timeline);

    const QTimeZone zone("Europe/Brussels");
    Ruler* ruler = timeline->ruler();
    const auto tell = [=](quint64 msecs) {
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(qint64(msecs), zone);
        moment->setText(QLocale().toString(time, QLocale::LongFormat));
    };
    QObject::connect(ruler, &Ruler::indicatorPositionChanged, moment, tell); // the user chose

    timeline->setTimeZone("Europe/Brussels");
    timeline->setActive(true, false); // a new timeline shows no markers
    ruler->setTrackDescriptions({camera("Gate", 6, 22, 45), camera("Car park", 8, 18, 20)});
    timeline->setTimeLimits(weekBegin, weekEnd);
    timeline->setIndicatorPosition(weekBegin + 3 * day + 10 * hour);
    tell(ruler->getIndicatorMSecs());
    ruler->changeLevel(4, 0.5);    // one day, in the middle of the week
    ruler->setCalendarTicks(true); // labels have room
    ruler->onAddMarkers({event(weekBegin + 3 * day + 8 * hour, "Gate opened"),
                         event(weekBegin + 3 * day + 9 * hour, "Motion in the car park"),
                         event(weekBegin + 3 * day + 17 * hour, "Gate closed")});

    window.show();
    return app.exec();
}
