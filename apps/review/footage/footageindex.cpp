// SPDX-License-Identifier: MIT
#include "footageindex.h"

#include "data/filewriter.h"

#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr quint32 indexVersion = 0xC0F0'0001;
// Some hundred bytes each. Who has more begins anew the next time.
constexpr qsizetype mostEntries = 500'000;

} // namespace

FootageIndex::FootageIndex(QString path) : m_path(std::move(path))
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_6_4);
    quint32 version = 0;
    qint64 count = 0;
    stream >> version >> count;
    for (; version == indexVersion && count > 0 && stream.status() == QDataStream::Ok; --count) {
        QString name;
        Entry entry;
        stream >> name >> entry.size >> entry.changed >> entry.facts;
        m_entries.insert(name, entry);
    }
    if (stream.status() != QDataStream::Ok || m_entries.size() > mostEntries)
        m_entries.clear();
}

QString FootageIndex::userFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/footage.index"_s;
}

const FileFacts* FootageIndex::find(const QFileInfo& file) const
{
    const auto entry = m_entries.constFind(file.absoluteFilePath());
    const bool isKnown = entry != m_entries.constEnd() && entry->size == file.size() &&
                         entry->changed == file.lastModified().toMSecsSinceEpoch();
    return isKnown ? &entry->facts : nullptr;
}

void FootageIndex::add(const QFileInfo& file, const FileFacts& facts)
{
    m_entries.insert(file.absoluteFilePath(),
                     {file.size(), file.lastModified().toMSecsSinceEpoch(), facts});
    m_isNew = true;
}

void FootageIndex::save()
{
    if (!std::exchange(m_isNew, false) || !QDir().mkpath(QFileInfo(m_path).path()))
        return;
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << indexVersion << qint64(m_entries.size());
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry)
        stream << entry.key() << entry->size << entry->changed << entry->facts;
    writeFile(content, m_path);
}

} // namespace Review
