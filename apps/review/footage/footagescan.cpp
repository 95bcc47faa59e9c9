// SPDX-License-Identifier: MIT
#include "footagescan.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

/// A picture is of an instant; so long it is shown.
constexpr qint64 pictureTime = 1'000;
constexpr qint64 longestRecording = qint64(24) * 60 * 60 * 1'000;

/// Of the path of a file, from the name of the folder that was opened on.
QString cameraOf(const QString& path)
{
    const QStringList parts = path.split(u'/');
    const auto mayBeOfDate = [](QChar character) {
        return u"0123456789._-"_s.contains(character);
    };
    const bool isBelow = parts.size() > 2 && !std::ranges::all_of(parts[1], mayBeOfDate);
    return parts[isBelow ? 1 : 0];
}

qint64 changeTimeOf(const QFileInfo& file)
{
    return file.lastModified().toMSecsSinceEpoch();
}

/// Whether something may have been recorded from one time up to another.
bool isPlausible(qint64 begin, qint64 end)
{
    return begin < end && end - begin < longestRecording;
}

/// How long a file lasts that says nothing of it, or does not say the truth.
qint64 guessedDuration(qint64 begin, qint64 changed)
{
    // A recorder writes to the end of the recording.
    return isPlausible(begin, changed) ? changed - begin : pictureTime;
}

/// Whether a file cannot be read because it is still being written.
bool isGrowing(const FileFacts& facts, qint64 begin, qint64 changed)
{
    constexpr qint64 pause = 30'000; // between two writes at most
    return !facts.fault.isEmpty() && isPlausible(begin, changed) &&
           QDateTime::currentMSecsSinceEpoch() - changed < pause;
}

} // namespace

FootageScan::FootageScan(PathPattern pattern, FootageIndex& index, JobProgress& progress,
                         ProblemList& problems, const ReadingOrder& order)
    : m_pattern(std::move(pattern))
    , m_index(index)
    , m_progress(progress)
    , m_problems(problems)
    , m_order(order)
{}

void FootageScan::scan(const QStringList& paths, Footage& footage)
{
    QList<Found> all = list(paths);
    footage.setUnread(read(all, footage));
    for (const Found& found : std::as_const(all))
        add(found, footage);
}

QList<FootageScan::Found> FootageScan::list(const QStringList& paths)
{
    QList<Found> all;
    for (const QString& path : paths) {
        const QFileInfo root(path);
        if (root.isFile()) {
            const QDir folder = root.absoluteDir();
            if (FileFacts::isFootage(path))
                all.append({root, folder.dirName() + u'/' + root.fileName()});
            continue;
        }
        const QDir folder(root.absoluteFilePath());
        checkFolder(root);
        QDirIterator files(folder.path(), QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext() && !m_progress.isCancelled()) {
            files.next();
            if (files.fileInfo().isDir())
                checkFolder(files.fileInfo());
            else if (FileFacts::isFootage(files.fileName()))
                all.append({files.fileInfo(),
                            folder.dirName() + u'/' + folder.relativeFilePath(files.filePath())});
        }
    }
    return all;
}

void FootageScan::checkFolder(const QFileInfo& folder)
{
    if (!folder.isReadable() || !folder.isExecutable())
        m_problems.add(
            {folder.filePath(),
             0,
             {"Review::FootageScan",
              QT_TRANSLATE_NOOP("Review::FootageScan", "the folder may not be looked into")}});
}

qsizetype FootageScan::read(QList<Found>& all, const Footage& footage)
{
    const QDeadlineTimer deadline(m_order.patience);
    m_progress.setTotal(all.size());
    QList<std::pair<int, Found*>> unread;
    for (Found& found : all) {
        found.match = m_pattern.match(found.path);
        if (const FileFacts* known = m_index.find(found.file)) {
            found.facts = *known;
            m_progress.add(1);
        } else {
            unread.append({urgencyOf(found, footage), &found});
        }
    }
    std::ranges::stable_sort(unread, {}, &std::pair<int, Found*>::first);
    for (qsizetype i = 0; i < unread.size(); ++i) {
        if (m_progress.isCancelled() || (i > 0 && deadline.hasExpired()))
            return unread.size() - i;
        Found& found = *unread[i].second;
        FileFacts facts = FileFacts::of(found.file.filePath(), m_progress.cancelled());
        if (m_progress.isCancelled())
            return unread.size() - i;
        m_index.add(found.file, facts);
        found.facts = std::move(facts);
        m_progress.add(1);
    }
    return 0;
}

int FootageScan::urgencyOf(const Found& found, const Footage& footage) const
{
    if (!found.match)
        return 0; // nothing is known of it
    const qint64 begin = footage.instantOf(found.match->begin);
    const qint64 end = begin + guessedDuration(begin, changeTimeOf(found.file));
    return begin < m_order.first.end && m_order.first.begin < end ? 1 : 2;
}

void FootageScan::add(const Found& found, Footage& footage) const
{
    if (!found.facts && !found.match)
        return;
    const FileFacts facts = found.facts.value_or(FileFacts());
    const bool isPicture = isPictureFile(found.path);
    qint64 changed = changeTimeOf(found.file);
    const bool hasCamera = found.match && !found.match->camera.isEmpty();
    Footage::Recording recording{.camera = hasCamera ? found.match->camera : cameraOf(found.path),
                                 .path = found.file.absoluteFilePath(),
                                 .begin = {},
                                 .length = isPicture ? pictureTime : facts.duration,
                                 .source = Footage::ChangeTime,
                                 .isRead = found.facts.has_value()};
    if (found.match) {
        recording.source = Footage::Path;
        recording.begin = found.match->begin;
    } else if (facts.created) {
        recording.source = Footage::CreationTime;
        recording.begin = WallTime::utc(*facts.created);
    } else if (facts.taken) {
        recording.source = Footage::Exif;
        recording.begin = *facts.taken;
    } else {
        recording.begin = WallTime::utc(isPicture ? changed : changed - recording.length);
    }
    if (recording.length <= 0) {
        const qint64 begin = footage.instantOf(recording.begin);
        if (isGrowing(facts, begin, changed)) {
            recording.isRead = false;
            changed = std::max(changed, QDateTime::currentMSecsSinceEpoch());
        }
        const bool isDamaged = recording.isRead && !facts.fault.isEmpty();
        recording.length = isDamaged ? pictureTime : guessedDuration(begin, changed);
    }
    footage.add(recording);
}

} // namespace Review
