#include "filenames.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace Review {

QString FileNames::cameraPart(const QString& camera)
{
    constexpr qsizetype longest = 40;
    QString part = camera.simplified().left(longest);
    for (QChar& character : part) {
        if (!character.isLetterOrNumber() && character != u'-')
            character = u'_';
    }
    return part.isEmpty() ? u"camera"_s : part;
}

QString FileNames::timePart(qint64 msecs, const QTimeZone& zone)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(msecs, zone);
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate).remove(u':');
}

} // namespace Review
