// SPDX-License-Identifier: MIT
#include "clipfolder.h"

#include "data/filewriter.h"
#include "data/jobprogress.h"
#include "filenames.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

/// In hexadecimal digits; empty where the file cannot be read, with the reason in @p error.
QByteArray sumOf(const QString& path, const JobProgress& progress, QString& error)
{
    constexpr qint64 block = 1 << 20;
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    bool isRead = file.open(QIODevice::ReadOnly);
    while (isRead && !file.atEnd() && !progress.isCancelled()) {
        hash.addData(file.read(block));
        isRead = file.error() == QFileDevice::NoError;
    }
    if (!isRead)
        error = file.errorString();
    return isRead ? hash.result().toHex() : QByteArray();
}

constexpr QLatin1StringView hiddenPrefix(".export-");
constexpr QLatin1StringView lockEnding(".lock");

/// Nothing goes but what an export of this machine made whose process is gone.
void removeLeftovers(const QDir& parent)
{
    for (const QString& name : parent.entryList(QDir::Files | QDir::Hidden)) {
        if (!name.startsWith(hiddenPrefix) || !name.endsWith(lockEnding))
            continue;
        const QString path = parent.filePath(name.chopped(lockEnding.size()));
        const QString unique = QFileInfo(path).fileName().sliced(hiddenPrefix.size());
        if (QUuid::fromString(unique).toString(QUuid::WithoutBraces) != unique)
            continue;
        QLockFile lock(path + lockEnding);
        lock.setStaleLockTime(0); // a lock does not grow stale by its age
        const QFileInfo folder(path);
        if (lock.tryLock(0) && folder.isDir() && !folder.isSymLink())
            QDir(path).removeRecursively();
    }
}

} // namespace

ClipFolder::ClipFolder(const QString& parent, qint64 begin, const QTimeZone& zone)
    : m_parent(parent)
    , m_name(u"recordings_"_s + FileNames::timePart(begin, zone))
    , m_zone(zone)
    , m_recordings({"camera", "begin", "end", "file", "offset"}, CsvWriter::userSeparator())
{}

ClipFolder::~ClipFolder()
{
    if (!m_isWhole && !m_path.isEmpty())
        QDir(m_path).removeRecursively();
}

QString ClipFolder::create()
{
    const QDir parent(m_parent);
    removeLeftovers(parent);
    const QString path =
        parent.filePath(hiddenPrefix + QUuid::createUuid().toString(QUuid::WithoutBraces));
    if (!QDir().mkdir(path))
        return QCoreApplication::translate("Review::ClipFolder", "No folder can be made in %1.")
            .arg(QDir::toNativeSeparators(m_parent));
    // On a share that takes no locks, what a crash leaves stays there.
    m_lock = std::make_unique<QLockFile>(path + lockEnding);
    m_lock->tryLock(0);
    m_path = path;
    return {};
}

QString ClipFolder::newFile(const QString& camera, qint64 begin, const QString& ending)
{
    const QString first = FileNames::cameraPart(camera) + u'_' + FileNames::timePart(begin, m_zone);
    QString name = first + u'.' + ending;
    for (int number = 2; m_taken.contains(name.toLower()); ++number)
        name = u"%1_%2.%3"_s.arg(first, QString::number(number), ending);
    m_taken.insert(name.toLower());
    return QDir(m_path).filePath(name);
}

void ClipFolder::list(const QString& camera, const VideoFile& file)
{
    const QString name = QFileInfo(file.path).fileName();
    if (m_listed.isEmpty() || m_listed.last() != name)
        m_listed.append(name);
    m_recordings.add({camera.toUtf8(), CsvWriter::timeText(file.begin, m_zone),
                      CsvWriter::timeText(file.end, m_zone), name.toUtf8(),
                      QByteArray::number(double(file.offset) / 1'000, 'f', 3)});
}

QString ClipFolder::finish(const QByteArray& events, const JobProgress& progress)
{
    const QDir folder(m_path);
    const QStringList lists{u"recordings.csv"_s, u"events.csv"_s};
    QString error = writeFile(m_recordings.text(), folder.filePath(lists[0]));
    if (error.isEmpty())
        error = writeFile(events, folder.filePath(lists[1]));
    m_listed += lists;
    if (error.isEmpty())
        error = addSums(progress);
    return error.isEmpty() && !progress.isCancelled() ? publish() : error;
}

QString ClipFolder::addSums(const JobProgress& progress)
{
    const QDir folder(m_path);
    QByteArray sums;
    for (const QString& name : std::as_const(m_listed)) {
        QString error;
        const QByteArray sum = sumOf(folder.filePath(name), progress, error);
        if (!error.isEmpty() || progress.isCancelled())
            return error;
        sums += sum + "  " + name.toUtf8() + '\n';
    }
    return writeFile(sums, folder.filePath(u"SHA256SUMS"_s));
}

QString ClipFolder::publish()
{
    const QDir parent(m_parent);
    QString name = m_name;
    for (int number = 2; parent.exists(name); ++number)
        name = m_name + u'_' + QString::number(number);
    const QString path = parent.filePath(name);
    if (!QDir().rename(m_path, path))
        return QCoreApplication::translate("Review::ClipFolder", "%1 cannot be made.")
            .arg(QDir::toNativeSeparators(path));
    m_path = path;
    m_isWhole = true;
    m_lock.reset();
    return {};
}

} // namespace Review
