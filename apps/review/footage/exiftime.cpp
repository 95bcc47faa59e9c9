// SPDX-License-Identifier: MIT
#include "exiftime.h"

#include <QByteArrayView>
#include <QtEndian>

namespace Review {

namespace {

/// The TIFF structure in which EXIF data is kept. Whatever lies outside reads as 0 or as empty.
class Tiff
{
public:
    explicit Tiff(QByteArrayView data) : m_data(data), m_isBig(data.startsWith("MM")) {}

    quint32 firstDirectory() const { return number<quint32>(4); }

    /// The value of an entry of a directory: a number, or where its text stands.
    quint32 value(quint32 directory, quint16 tag) const
    {
        const qint64 entry = find(directory, tag);
        return entry < 0 ? 0 : number<quint32>(entry + 8);
    }

    QByteArrayView text(quint32 directory, quint16 tag) const
    {
        const qint64 entry = find(directory, tag);
        if (entry < 0)
            return {};
        constexpr quint32 inPlace = 4; // so short a text stands where others have their place
        const quint32 size = number<quint32>(entry + 4);
        const qint64 begin = size <= inPlace ? entry + 8 : number<quint32>(entry + 8);
        if (begin + size > m_data.size())
            return {};
        const QByteArrayView whole = m_data.sliced(begin, size);
        return whole.first(qstrnlen(whole.data(), size_t(size)));
    }

private:
    template <typename Number>
    Number number(qint64 at) const
    {
        if (at < 0 || at + qint64(sizeof(Number)) > m_data.size())
            return 0;
        const void* bytes = m_data.data() + at;
        return m_isBig ? qFromBigEndian<Number>(bytes) : qFromLittleEndian<Number>(bytes);
    }

    /// Where the entry begins; negative for none.
    qint64 find(quint32 directory, quint16 tag) const
    {
        constexpr qint64 entrySize = 12;
        const int count = number<quint16>(directory);
        for (int i = 0; directory != 0 && i < count; ++i)
            if (const qint64 entry = directory + 2 + i * entrySize; number<quint16>(entry) == tag)
                return entry;
        return -1;
    }

    const QByteArrayView m_data;
    const bool m_isBig;
};

/// The part of the file that holds the EXIF data; empty for none.
QByteArrayView exifOf(QByteArrayView jpeg)
{
    constexpr char application1 = char(0xE1);
    constexpr char startOfScan = char(0xDA);
    const QByteArrayView mark("Exif\0\0", 6);
    if (!jpeg.startsWith("\xFF\xD8"))
        return {};
    qint64 at = 2;
    while (at + 4 <= jpeg.size() && jpeg[at] == char(0xFF) && jpeg[at + 1] != startOfScan) {
        const int size = qFromBigEndian<quint16>(jpeg.data() + at + 2);
        const QByteArrayView segment =
            jpeg.sliced(at + 4, std::clamp<qint64>(size - 2, 0, jpeg.size() - at - 4));
        if (jpeg[at + 1] == application1 && segment.startsWith(mark))
            return segment.sliced(mark.size());
        at += 2 + std::max(size, 2);
    }
    return {};
}

std::optional<int> offsetOf(QByteArrayView text)
{
    const QDateTime time = QDateTime::fromString(
        QStringLiteral("2000-01-01T00:00:00") + QString::fromLatin1(text), Qt::ISODate);
    return text.isEmpty() || !time.isValid() ? std::nullopt : std::optional(time.offsetFromUtc());
}

/// The digits behind the decimal point of the seconds; 0 for anything else.
int msecsOf(QByteArrayView digits)
{
    int msecs = 0;
    int weight = 100;
    for (const char digit : digits.trimmed()) {
        if (digit < '0' || digit > '9')
            return 0;
        msecs += (digit - '0') * weight;
        weight /= 10;
    }
    return msecs;
}

} // namespace

std::optional<WallTime> exifTime(const QByteArray& jpeg)
{
    constexpr quint16 pictureDirectory = 0x8769;
    constexpr quint16 taken = 0x9003;
    constexpr quint16 takenOffset = 0x9011;
    constexpr quint16 takenFraction = 0x9291;
    constexpr quint16 written = 0x0132;
    const Tiff tiff(exifOf(jpeg));
    const quint32 first = tiff.firstDirectory();
    const quint32 picture = tiff.value(first, pictureDirectory);
    QByteArrayView text = tiff.text(picture, taken);
    const int fraction = text.isEmpty() ? 0 : msecsOf(tiff.text(picture, takenFraction));
    if (text.isEmpty())
        text = tiff.text(first, written);
    QDateTime clock =
        QDateTime::fromString(QString::fromLatin1(text), QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    if (!clock.isValid())
        return {};
    return WallTime{QDateTime(clock.date(), clock.time().addMSecs(fraction), Qt::UTC),
                    offsetOf(tiff.text(picture, takenOffset))};
}

} // namespace Review
