// SPDX-License-Identifier: MIT
#include "exifwriter.h"

#include <QDateTime>
#include <QList>
#include <QtEndian>

#include <cstdlib>

namespace Review {

namespace {

enum Type : quint16 { Ascii = 2, Long = 4, Undefined = 7 };

QByteArray bigEndian16(quint16 value)
{
    QByteArray bytes(2, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray bigEndian32(quint32 value)
{
    QByteArray bytes(4, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// A directory of TIFF, with its long values behind it.
class Directory
{
public:
    /// @p begin is where it stands in the data.
    explicit Directory(quint32 begin) : m_begin(begin) {}

    /// Entries come in the order of their tags.
    void add(quint16 tag, Type type, const QByteArray& value)
    {
        m_entries.append({tag, type, value});
    }
    void addText(quint16 tag, const QByteArray& text) { add(tag, Ascii, text + '\0'); }

    QByteArray bytes() const
    {
        constexpr qsizetype inPlace = 4;
        constexpr qsizetype entrySize = 12;
        const qsizetype valuesBegin = m_begin + 2 + m_entries.size() * entrySize + 4;
        QByteArray entries = bigEndian16(quint16(m_entries.size()));
        QByteArray values;
        for (const Entry& entry : m_entries) {
            const qsizetype count = entry.type == Long ? 1 : entry.value.size();
            entries +=
                bigEndian16(entry.tag) + bigEndian16(entry.type) + bigEndian32(quint32(count));
            if (entry.value.size() <= inPlace) {
                entries += entry.value.leftJustified(inPlace, '\0');
                continue;
            }
            entries += bigEndian32(quint32(valuesBegin + values.size()));
            values += entry.value;
            if (values.size() % 2 != 0)
                values += '\0';
        }
        return entries + bigEndian32(0) + values;
    }

private:
    struct Entry
    {
        quint16 tag;
        Type type;
        QByteArray value;
    };

    const quint32 m_begin;
    QList<Entry> m_entries;
};

QByteArray offsetText(int offset)
{
    const int minutes = std::abs(offset) / 60;
    return QByteArray(offset < 0 ? "-" : "+") +
           QByteArray::number(minutes / 60).rightJustified(2, '0') + ':' +
           QByteArray::number(minutes % 60).rightJustified(2, '0');
}

} // namespace

QByteArray withExif(const QByteArray& jpeg, const QString& description, qint64 msecs, int offset)
{
    constexpr qsizetype longestText = 1'000; // far less than what a segment holds
    constexpr QByteArrayView startOfImage("\xFF\xD8");
    if (!jpeg.startsWith(startOfImage))
        return {};
    // What is written of an offset ends with the minutes.
    if (offset % 60 != 0)
        offset = 0;
    const QDateTime clock = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC).addSecs(offset);

    constexpr quint32 firstBegin = 8;
    const auto first = [&](quint32 second) {
        Directory directory(firstBegin);
        directory.addText(0x010E, description.left(longestText).toUtf8()); // ImageDescription
        directory.add(0x8769, Long, bigEndian32(second));
        return directory.bytes();
    };
    const auto secondBegin = quint32(firstBegin + first(0).size());
    Directory second(secondBegin);
    second.add(0x9000, Undefined, "0232"); // version of EXIF
    second.addText(0x9003, clock.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toLatin1());
    second.addText(0x9011, offsetText(offset));
    second.addText(0x9291, clock.toString(QStringLiteral("zzz")).toLatin1());
    const QByteArray exif = QByteArray("Exif\0\0", 6) + "MM" + bigEndian16(42) +
                            bigEndian32(firstBegin) + first(secondBegin) + second.bytes();
    return jpeg.first(startOfImage.size()) + "\xFF\xE1" + bigEndian16(quint16(exif.size() + 2)) +
           exif + jpeg.sliced(startOfImage.size());
}

} // namespace Review
