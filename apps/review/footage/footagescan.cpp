#include "footagescan.h"

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

/// How long a file lasts that says nothing of it, or does not say the truth.
qint64 guessedDuration(const FileFacts& facts, qint64 begin, qint64 changed)
{
    // A recorder writes to the end of the recording.
    const bool isPlausible = changed > begin && changed - begin < longestRecording;
    return facts.fault.isEmpty() && isPlausible ? changed - begin : pictureTime;
}

} // namespace

FootageScan::FootageScan(PathPattern pattern, FootageIndex& index, JobProgress& progress)
    : m_pattern(std::move(pattern)), m_index(index), m_progress(progress)
{}

void FootageScan::scan(const QStringList& paths, Footage& footage)
{
    const QList<Found> all = list(paths);
    m_progress.setTotal(all.size());
    for (const Found& found : all) {
        const std::optional<FileFacts> facts = factsOf(found);
        if (!facts)
            return;
        add(found, *facts, footage);
        m_progress.add(1);
    }
}

QList<FootageScan::Found> FootageScan::list(const QStringList& paths) const
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
        QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext() && !m_progress.isCancelled()) {
            files.next();
            if (FileFacts::isFootage(files.fileName()))
                all.append({files.fileInfo(),
                            folder.dirName() + u'/' + folder.relativeFilePath(files.filePath())});
        }
    }
    return all;
}

std::optional<FileFacts> FootageScan::factsOf(const Found& found)
{
    if (m_progress.isCancelled())
        return {};
    if (const FileFacts* known = m_index.find(found.file))
        return *known;
    const FileFacts facts = FileFacts::of(found.file.filePath(), m_progress.cancelled());
    if (m_progress.isCancelled())
        return {};
    m_index.add(found.file, facts);
    return facts;
}

void FootageScan::add(const Found& found, const FileFacts& facts, Footage& footage) const
{
    const bool isPicture = isPictureFile(found.path);
    const qint64 changed = found.file.lastModified().toMSecsSinceEpoch();
    const auto match = m_pattern.match(found.path);
    const bool hasCamera = match && !match->camera.isEmpty();
    Footage::Recording recording{.camera = hasCamera ? match->camera : cameraOf(found.path),
                                 .path = found.file.absoluteFilePath(),
                                 .begin = {},
                                 .length = isPicture ? pictureTime : facts.duration,
                                 .source = Footage::ChangeTime};
    if (match) {
        recording.source = Footage::Path;
        recording.begin = match->begin;
    } else if (facts.created) {
        recording.source = Footage::CreationTime;
        recording.begin = WallTime::utc(*facts.created);
    } else if (facts.taken) {
        recording.source = Footage::Exif;
        recording.begin = *facts.taken;
    } else {
        recording.begin = WallTime::utc(isPicture ? changed : changed - recording.length);
    }
    if (recording.length <= 0)
        recording.length = guessedDuration(facts, footage.instantOf(recording.begin), changed);
    footage.add(recording);
}

} // namespace Review
