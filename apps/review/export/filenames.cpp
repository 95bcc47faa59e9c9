// SPDX-License-Identifier: MIT
#include "filenames.h"

#include <CorvelGui/StringHelper>

#include <QDateTime>

using CorvelGui::StringHelper;
using namespace Qt::StringLiterals;

namespace Review {

QString FileNames::cameraPart(const QString& camera)
{
    constexpr qsizetype longest = 40;
    return StringHelper::safeFileName(camera, u"camera"_s, longest).replace(u' ', u'_');
}

QString FileNames::timePart(qint64 msecs, const QTimeZone& zone)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(msecs, zone);
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate).remove(u':');
}

} // namespace Review
