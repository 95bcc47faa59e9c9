// SPDX-License-Identifier: MIT
#include "licencetext.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr qint64 largestLicence = 512 * 1024;
constexpr qsizetype longestLine = 1'000;

QString decoded(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

QString withShortLines(const QString& text)
{
    QString result;
    qsizetype length = 0;
    for (const QChar character : text) {
        length = character == u'\n' ? 0 : length + 1;
        if (length > longestLine && !character.isLowSurrogate()) {
            result += u'\n';
            length = 1;
        }
        result += character;
    }
    return result;
}

} // namespace

QString licenceText(const QString& path)
{
    QFile file(path);
    // Neither a device nor a pipe, which may never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes = file.read(largestLicence);
    const bool isCut = !file.atEnd();
    // Not within a character.
    while (isCut && !bytes.isEmpty() && (uchar(bytes.back()) & 0x80) != 0)
        bytes.chop(1);
    QString text = decoded(bytes);
    if (text.isEmpty())
        return {};
    text.remove(QChar::Null).remove(u'\r');
    return withShortLines(text) + (isCut ? u"\n…"_s : QString());
}

} // namespace CorvelGui
