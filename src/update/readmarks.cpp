// SPDX-License-Identifier: MIT
#include "readmarks.h"

#include <QCryptographicHash>
#include <QUrl>

namespace CorvelGui {

namespace {

constexpr qsizetype markLength = 32;

} // namespace

ReadMarks::ReadMarks(const QStringList& marks)
{
    for (const QString& mark : marks)
        if (mark.size() == markLength)
            add(mark);
}

QString ReadMarks::markOf(const QUrl& feed, const QString& id)
{
    const QByteArray named = feed.toEncoded() + '\n' + id.toUtf8();
    const QByteArray hash = QCryptographicHash::hash(named, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().first(markLength));
}

void ReadMarks::add(const QString& mark)
{
    if (m_known.contains(mark))
        return;
    m_known.insert(mark);
    m_marks.append(mark);
    if (m_marks.size() > most)
        m_known.remove(m_marks.takeFirst());
}

} // namespace CorvelGui
