// SPDX-License-Identifier: MIT
#include "sampledata.h"

#include "sampleclips.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <vector>

using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

using namespace std::chrono;

constexpr int days = 14;
constexpr qint64 sampleHour = milliseconds(hours(1)).count();

constexpr qint64 marchTime(int dayOfMonth, int hour)
{
    const sys_days date = year(2026) / March / dayOfMonth;
    return milliseconds(date.time_since_epoch() + hours(hour)).count();
}

constexpr qint64 sampleBegin = marchTime(2, 0);
constexpr qint64 sampleEnd = marchTime(2 + days, 0);

/// Random numbers of the SplitMix64 sequence. Those of the standard library differ between
/// platforms.
class Dice
{
public:
    explicit Dice(quint64 seed) : m_state(seed) {}

    /// A number from @p lowest to @p highest, both included.
    qint64 roll(qint64 lowest, qint64 highest)
    {
        return lowest + qint64(next() % quint64(highest - lowest + 1));
    }
    bool percent(int chance) { return roll(1, 100) <= chance; }

private:
    quint64 next()
    {
        m_state += 0x9e3779b97f4a7c15U;
        quint64 mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebU;
        return mixed ^ (mixed >> 31);
    }

    quint64 m_state;
};

struct SampleCamera
{
    QLatin1StringView identifier;
    const char* name;
    /// Recordings in each hour of a busy day, on average.
    std::array<int, 24> recordingsPerHour;
    /// Percentages of them on working days, and on Saturdays and Sundays.
    int workdayShare;
    int weekendShare;
    /// Of one recording, in seconds.
    int shortest;
    int longest;
    TimeSpan described;
    /// Nothing is recorded in it.
    TimeSpan outage;
    /// Percentages of the recordings that show one; the rest shows nothing of note.
    int persons;
    int vehicles;
    int animals;
};

constexpr TimeSpan always{sampleBegin, sampleEnd};

constexpr SampleCamera cameras[] = {
    {.identifier = "cam-1"_L1,
     .name = QT_TRANSLATE_NOOP("Review::SampleData", "Main gate"),
     .recordingsPerHour = {1,  0, 0, 0, 1,  2,  6,  12, 14, 9, 8, 8,
                           10, 9, 8, 8, 10, 14, 11, 7,  5,  3, 2, 1},
     .workdayShare = 100,
     .weekendShare = 40,
     .shortest = 12,
     .longest = 95,
     .described = always,
     .outage = {},
     .persons = 30,
     .vehicles = 25,
     .animals = 2},
    {.identifier = "cam-2"_L1,
     .name = QT_TRANSLATE_NOOP("Review::SampleData", "Car park"),
     .recordingsPerHour = {0, 0, 0, 0, 0, 1,  5, 10, 9, 4, 3, 4,
                           7, 5, 3, 4, 8, 10, 5, 3,  2, 1, 1, 0},
     .workdayShare = 100,
     .weekendShare = 30,
     .shortest = 20,
     .longest = 180,
     .described = always,
     .outage = {marchTime(6, 19), marchTime(8, 9)},
     .persons = 20,
     .vehicles = 45,
     .animals = 3},
    {.identifier = "cam-3"_L1,
     .name = QT_TRANSLATE_NOOP("Review::SampleData", "Loading dock"),
     .recordingsPerHour = {0, 0, 0, 0, 0, 2, 4, 4, 4, 4, 4, 3, 2, 4, 4, 4, 3, 1, 0, 0, 0, 0, 0, 0},
     .workdayShare = 100,
     .weekendShare = 4,
     .shortest = 120,
     .longest = 1'100,
     .described = always,
     .outage = {},
     .persons = 25,
     .vehicles = 35,
     .animals = 0},
    {.identifier = "cam-4"_L1,
     .name = QT_TRANSLATE_NOOP("Review::SampleData", "North fence"),
     .recordingsPerHour = {2, 2, 2, 2, 3, 3, 2, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 3, 3, 2, 2, 2, 2},
     .workdayShare = 30,
     .weekendShare = 35,
     .shortest = 10,
     .longest = 45,
     .described = {sampleBegin, marchTime(12, 10)},
     .outage = {},
     .persons = 4,
     .vehicles = 0,
     .animals = 45},
};

bool isNight(int hour)
{
    return hour < 5 || hour >= 21;
}

/// Makes the recordings of a camera of its two clips, by day and by night.
class Footage
{
public:
    Footage(const QDir& folder, int camera, QList<VideoFile>& files)
        : m_day(QDir::cleanPath(folder.filePath(SampleClips::fileName(camera, false))))
        , m_night(QDir::cleanPath(folder.filePath(SampleClips::fileName(camera, true))))
        , m_files(files)
    {}

    /// A visitor, if @p kind is one of those, is in the middle of the picture at @p time.
    void add(const TimeSpan& recording, bool atNight, EventKind kind, qint64 time)
    {
        const QString& path = atNight ? m_night : m_day;
        const auto visitor = std::ranges::find(SampleClips::visitors, kind);
        if (visitor == std::end(SampleClips::visitors)) {
            addQuiet(path, recording.begin, recording.end);
            return;
        }
        const qint64 enters = time - SampleClips::visit / 2;
        const qint64 begin = std::max(recording.begin, enters);
        const qint64 end = std::min(recording.end, enters + SampleClips::visit);
        const qint64 number = visitor - std::begin(SampleClips::visitors);
        addQuiet(path, recording.begin, begin);
        m_files.append(
            {path, begin, end, SampleClips::quiet + SampleClips::visit * number + begin - enters});
        addQuiet(path, end, recording.end);
    }

private:
    void addQuiet(const QString& path, qint64 begin, qint64 end)
    {
        for (; begin < end; begin += SampleClips::quiet)
            m_files.append({path, begin, std::min(begin + SampleClips::quiet, end), 0});
    }

    const QString m_day;
    const QString m_night;
    QList<VideoFile>& m_files;
};

std::vector<TimeSpan> recordingsOf(const SampleCamera& camera, Dice& dice)
{
    constexpr qint64 shortestPause = 15'000;
    std::vector<TimeSpan> recordings;
    for (int hour = 0; hour < days * 24; ++hour) {
        const bool weekend = hour / 24 % 7 >= 5; // the sample begins on a Monday
        const int average = camera.recordingsPerHour[hour % 24] *
                            (weekend ? camera.weekendShare : camera.workdayShare);
        // An average of 0.4 recordings is one recording in 40 of 100 hours.
        qint64 count = average / 100 + (dice.percent(average % 100) ? 1 : 0);
        count = std::max<qint64>(0, count + dice.roll(-count / 2, count / 2));

        std::vector<qint64> begins(count);
        for (qint64& begin : begins)
            begin = sampleBegin + hour * sampleHour + dice.roll(0, 3'599) * 1'000;
        std::sort(begins.begin(), begins.end());
        for (const qint64 begin : begins) {
            const qint64 end = begin + dice.roll(camera.shortest, camera.longest) * 1'000;
            const bool described = begin >= camera.described.begin && end <= camera.described.end;
            const bool failed = begin < camera.outage.end && end > camera.outage.begin;
            const bool crowded =
                !recordings.empty() && begin < recordings.back().end + shortestPause;
            if (described && !failed && !crowded)
                recordings.push_back({begin, end});
        }
    }
    return recordings;
}

} // namespace

ReviewData SampleData::make()
{
    ReviewData data;
    Dice dice(2026);
    const QDir clips(QCoreApplication::applicationDirPath() + u"/../share/CorvelGui/sample"_s);
    for (const SampleCamera& camera : cameras) {
        TrackDescription track{.identifier = camera.identifier,
                               .name = tr(camera.name),
                               .begin = camera.described.begin,
                               .end = camera.described.end,
                               .recorded = {}};
        Footage footage(clips, int(data.tracks.size()) + 1, data.files[track.identifier]);
        for (const TimeSpan& recording : recordingsOf(camera, dice)) {
            track.recorded.append(recording);
            // An event that is over when the recording is.
            const auto note = [&](Event event) {
                event.time = dice.roll(recording.begin, recording.end - 1);
                event.duration = std::min(event.duration, recording.end - event.time);
                event.track = camera.identifier;
                data.events.append(event);
                return event.time;
            };
            const auto noteVisitor = [&](const QString& kind, const QString& text,
                                         std::optional<Severity> severity = {}) {
                return note({.kind = kind,
                             .text = text,
                             .track = {},
                             .duration = SampleClips::visit / 2,
                             .severity = severity});
            };
            const int hour = int((recording.begin - sampleBegin) / sampleHour % 24);
            const bool atNight = isNight(hour);
            const qint64 seen = dice.roll(1, 100);
            EventKind visitor = EventKind::Other;
            qint64 time = recording.begin;
            if (seen <= camera.persons) {
                visitor = EventKind::Person;
                time = atNight ? note({.kind = u"alarm"_s,
                                       .text = tr("Person outside working hours"),
                                       .track = {},
                                       .duration = recording.end - recording.begin})
                               : noteVisitor(u"person"_s, tr("Person"));
            } else if (seen <= camera.persons + camera.vehicles) {
                visitor = EventKind::Vehicle;
                time = noteVisitor(u"vehicle"_s, tr("Vehicle"),
                                   atNight ? std::optional(Severity::Warning) : std::nullopt);
            } else if (seen <= camera.persons + camera.vehicles + camera.animals) {
                visitor = EventKind::Animal;
                time = noteVisitor(u"animal"_s, tr("Animal"));
            }
            if (dice.roll(1, 300) == 1)
                note({.kind = u"bookmark"_s, .text = tr("Marked by an operator"), .track = {}});
            footage.add(recording, atNight, visitor, time);
        }
        if (!camera.outage.isEmpty())
            data.events.append({.time = camera.outage.begin,
                                .kind = tr("Fault"),
                                .text = tr("No signal"),
                                .track = camera.identifier,
                                .duration = camera.outage.end - camera.outage.begin,
                                .severity = Severity::Warning});
        data.tracks.append(track);
    }
    data.events.sort();
    return data;
}

} // namespace Review
