// SPDX-License-Identifier: MIT
#include "reviewloader.h"

#include "cameratrapset.h"
#include "jsonlines.h"
#include "lineparser.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>

using CorvelGui::TimeSpan;
using CorvelGui::TrackDescription;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

QString endingOf(const QString& path)
{
    return QFileInfo(path).suffix().toLower();
}

bool isJsonLines(const QString& path)
{
    return endingOf(path) == u"jsonl"_s || endingOf(path) == u"ndjson"_s;
}

bool isCameraTrapSet(const QString& path)
{
    return endingOf(path) == u"json"_s;
}

/// By their names and endings.
ReviewFiles sorted(const QStringList& paths)
{
    ReviewFiles files;
    for (const QString& path : paths) {
        const bool isCsv = endingOf(path) == u"csv"_s;
        const QString name = QFileInfo(path).completeBaseName().toLower();
        if (isCameraTrapSet(path) || isJsonLines(path) || (isCsv && name == u"events"_s))
            files.events = path;
        else if (isCsv)
            (name == u"deployments"_s ? files.deployments : files.recordings) = path;
        else
            files.footage.append(path);
    }
    return files;
}

// An empty period that every other one extends.
constexpr TimeSpan notDescribed{.begin = std::numeric_limits<qint64>::max(), .end = 0};

void extend(TrackDescription& track, const TimeSpan& span)
{
    track.begin = std::min(track.begin, span.begin);
    track.end = std::max(track.end, span.end);
}

} // namespace

ReviewFiles ReviewFiles::inFolder(const QString& folder)
{
    const auto existing = [dir = QDir(folder)](const QStringList& names) {
        const auto found =
            std::ranges::find_if(names, [&](const auto& name) { return dir.exists(name); });
        return found == names.end() ? QString() : dir.filePath(*found);
    };
    ReviewFiles files{.recordings = existing({u"recordings.csv"_s}),
                      .events = existing({u"events.csv"_s, u"events.jsonl"_s, u"events.json"_s}),
                      .deployments = existing({u"deployments.csv"_s})};
    if (files.recordings.isEmpty() && !isCameraTrapSet(files.events))
        files.footage = {folder};
    return files;
}

ReviewFiles ReviewFiles::named(const QStringList& paths)
{
    if (paths.size() != 1)
        return sorted(paths);
    ReviewFiles files;
    files.unseen = paths.first();
    return files;
}

ReviewFiles ReviewFiles::located() const
{
    ReviewFiles files = *this;
    if (!unseen.isEmpty()) {
        files = QFileInfo(unseen).isDir() ? inFolder(unseen) : sorted({unseen});
        files.pattern = pattern;
        // Lists that were named for what they are count for more.
        for (const auto list :
             {&ReviewFiles::recordings, &ReviewFiles::events, &ReviewFiles::deployments}) {
            if (!(this->*list).isEmpty())
                files.*list = this->*list;
        }
    }
    if (!files.footage.isEmpty()) {
        const QFileInfo first(files.footage.first());
        files.footageFolder = first.isDir() ? first.absoluteFilePath() : first.absolutePath();
    }
    return files;
}

QString ReviewFiles::name() const
{
    const QString first = !recordings.isEmpty() ? recordings
                          : !events.isEmpty()   ? events
                                                : deployments;
    if (!footage.isEmpty())
        return QFileInfo(footage.first()).fileName();
    return first.isEmpty() ? QString() : QFileInfo(first).absoluteDir().dirName();
}

qint64 ReviewFiles::size() const
{
    return QFileInfo(recordings).size() + QFileInfo(deployments).size() + QFileInfo(events).size();
}

QString ReviewLoader::load(const ReviewFiles& files, const QTimeZone& zone)
{
    m_zone = zone;
    m_progress.setTotal(files.size());
    using Step = QString (ReviewLoader::*)(const QString&);
    const std::pair<QString, Step> steps[] = {
        {files.recordings, &ReviewLoader::loadRecordings},
        {files.deployments, &ReviewLoader::loadDeployments},
        {files.events, &ReviewLoader::loadEvents},
    };
    for (const auto& [path, step] : steps) {
        if (path.isEmpty() || m_progress.isCancelled())
            continue;
        if (const QString error = (this->*step)(path); !error.isEmpty())
            return error;
    }

    for (TrackDescription& track : m_data.tracks) {
        if (track.begin != notDescribed.begin)
            continue;
        for (const TimeSpan& span : std::as_const(track.recorded))
            extend(track, span);
    }
    return {};
}

void ReviewLoader::add(const QString& camera, const VideoFile& file)
{
    track(camera).recorded.append({file.begin, file.end});
    if (!file.path.isEmpty())
        m_data.files[camera].append(file);
}

QString ReviewLoader::loadRecordings(const QString& path)
{
    const QDir folder = QFileInfo(path).absoluteDir();
    const auto addLine = [&](const CsvTable::Values& values) {
        QString identifier;
        TimeSpan span;
        VideoFile file;
        LineFault fault = LineParser::parseTrackSpan(values, identifier, span);
        if (fault.isEmpty())
            fault = LineParser::parseSeconds(values[4], file.offset);
        if (!fault.isEmpty())
            return fault;
        file.begin = span.begin;
        file.end = span.end;
        if (!values[3].isEmpty())
            file.path = folder.absoluteFilePath(QString::fromUtf8(values[3]));
        add(identifier, file);
        return fault;
    };
    return CsvTable::read(path, {u"camera"_s, u"begin"_s, u"end"_s}, {u"file"_s, u"offset"_s},
                          addLine, m_problems, m_progress);
}

QString ReviewLoader::loadDeployments(const QString& path)
{
    const auto add = [this](const CsvTable::Values& values) {
        QString identifier;
        TimeSpan span;
        const LineFault fault = LineParser::parseTrackSpan(values, identifier, span);
        if (fault.isEmpty())
            extend(track(identifier), span);
        return fault;
    };
    return CsvTable::read(path, {u"camera"_s, u"begin"_s, u"end"_s}, {}, add, m_problems,
                          m_progress);
}

QString ReviewLoader::loadEvents(const QString& path)
{
    if (isCameraTrapSet(path))
        return loadCameraTraps(path);
    const auto addEvent = [this](const CsvTable::Values& values) {
        Event event;
        event.kind = QString::fromUtf8(values[1]);
        event.track = QString::fromUtf8(values[3]);
        LineFault fault = LineParser::parseTime(values[0], event.time);
        if (fault.isEmpty() && event.kind.isEmpty())
            fault = {"Review::ReviewLoader", QT_TR_NOOP("the event has no kind")};
        if (fault.isEmpty())
            fault = LineParser::parseSeconds(values[4], event.duration);
        if (fault.isEmpty())
            fault = LineParser::parseSeverity(values[5], event.severity);
        if (fault.isEmpty())
            m_data.events.append(event, values[2]);
        return fault;
    };
    const QStringList needed{u"time"_s, u"kind"_s};
    const QStringList text{u"text"_s};
    const QStringList optional{u"camera"_s, u"duration"_s, u"severity"_s};
    const QString error =
        isJsonLines(path)
            ? JsonLines::read(path, needed, text + optional, addEvent, m_problems, m_progress)
            : CsvTable::read(path, needed + text, optional, addEvent, m_problems, m_progress);
    m_data.events.sort();
    return error;
}

QString ReviewLoader::loadCameraTraps(const QString& path)
{
    CameraTrapSet set;
    const QString error = set.read(path, m_zone, m_problems, m_progress);
    for (const CameraTrapSet::Picture& picture : set.pictures())
        add(picture.camera, picture.file);
    for (const Event& event : set.events())
        m_data.events.append(event);
    m_data.events.sort();
    return error;
}

TrackDescription& ReviewLoader::track(const QString& identifier)
{
    auto index = m_trackIndexes.constFind(identifier);
    if (index == m_trackIndexes.constEnd()) {
        index = m_trackIndexes.insert(identifier, m_data.tracks.size());
        m_data.tracks.append({.identifier = identifier,
                              .name = identifier,
                              .begin = notDescribed.begin,
                              .end = notDescribed.end,
                              .recorded = {}});
    }
    return m_data.tracks[*index];
}

} // namespace Review
