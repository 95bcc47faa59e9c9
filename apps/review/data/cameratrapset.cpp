// SPDX-License-Identifier: MIT
#include "cameratrapset.h"

#include "eventkind.h"
#include "instant.h"
#include "textfile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr const char* setContext = "Review::CameraTrapSet";
/// A picture is of an instant; so long it is shown.
constexpr qint64 shownTime = 1'000;

/// Identifiers are texts or numbers.
QString idOf(const QJsonValue& value)
{
    return value.toVariant().toString();
}

/// None for what is no time.
std::optional<qint64> timeOf(QString text, const QTimeZone& zone)
{
    const Instant instant = Instant::parse(text.toUtf8());
    if (instant.fault == Instant::Fault::None)
        return instant.msecs;
    if (instant.fault != Instant::Fault::NoOffset)
        return {};
    text[10] = u'T';
    const QDateTime clock = QDateTime::fromString(text, Qt::ISODateWithMs);
    const qint64 msecs = QDateTime(clock.date(), clock.time(), zone).toMSecsSinceEpoch();
    return clock.isValid() && msecs >= 0 ? std::optional(msecs) : std::nullopt;
}

/// Where a data set does not say, the cameras are the folders.
QString locationOf(const QJsonObject& image, const QDir& folder)
{
    const QString location = idOf(image.value(u"location"_s)).simplified();
    const QString name = image.value(u"file_name"_s).toString();
    const QString first = name.contains(u'/') ? name.section(u'/', 0, 0) : QString();
    return !location.isEmpty() ? location : first.isEmpty() ? folder.dirName() : first;
}

} // namespace

QString CameraTrapSet::read(const QString& path, const QTimeZone& zone, ProblemList& problems,
                            JobProgress& progress)
{
    QString error;
    const QByteArray text = readText(path, error);
    if (!error.isEmpty())
        return error;
    QJsonParseError fault;
    const QJsonObject root = QJsonDocument::fromJson(text, &fault).object();
    if (fault.error != QJsonParseError::NoError)
        return unreadable(path, tr("it is no JSON: %1, at byte %2")
                                    .arg(fault.errorString(), QString::number(fault.offset)));
    for (const QString& key : {u"images"_s, u"annotations"_s, u"categories"_s})
        if (!root.value(key).isArray())
            return unreadable(path, tr("it has no list “%1”").arg(key));

    const auto tell = [&](const char* message, const QString& id) {
        problems.add({path, 0, LineFault(setContext, message, {id})});
    };
    const QDir folder = QFileInfo(path).absoluteDir();
    for (const QJsonValue image : root.value(u"images"_s).toArray())
        if (!progress.isCancelled() && !addImage(image.toObject(), folder, zone))
            tell(QT_TRANSLATE_NOOP("Review::CameraTrapSet", "the image “%1” has no date and time"),
                 idOf(image[u"id"_s]));
    QHash<QString, QString> categories;
    for (const QJsonValue category : root.value(u"categories"_s).toArray())
        categories.insert(idOf(category[u"id"_s]), category[u"name"_s].toString().simplified());
    for (const QJsonValue annotation : root.value(u"annotations"_s).toArray()) {
        if (progress.isCancelled())
            break;
        const auto image = m_images.constFind(idOf(annotation[u"image_id"_s]));
        const QString category = categories.value(idOf(annotation[u"category_id"_s]));
        if (image == m_images.cend())
            tell(QT_TRANSLATE_NOOP("Review::CameraTrapSet",
                                   "the annotation “%1” is of no image with a time"),
                 idOf(annotation[u"id"_s]));
        else if (category.isEmpty())
            tell(
                QT_TRANSLATE_NOOP("Review::CameraTrapSet", "the annotation “%1” is of no category"),
                idOf(annotation[u"id"_s]));
        else
            addEvent(*image, category);
    }
    progress.add(QFileInfo(path).size());
    return {};
}

/// False where the image cannot be placed in time.
bool CameraTrapSet::addImage(const QJsonObject& image, const QDir& folder, const QTimeZone& zone)
{
    const QString id = idOf(image.value(u"id"_s));
    const QString key = image.contains(u"datetime"_s) ? u"datetime"_s : u"date_captured"_s;
    const auto time = timeOf(image.value(key).toString(), zone);
    if (id.isEmpty() || !time)
        return false;
    const QString sequence = idOf(image.value(u"seq_id"_s));
    const QString camera = locationOf(image, folder);
    m_images.insert(
        id, {*time, camera, sequence.isEmpty() ? u"image "_s + id : u"sequence "_s + sequence});
    const QString name = image.value(u"file_name"_s).toString();
    m_pictures.append({camera,
                       {name.isEmpty() ? QString() : folder.absoluteFilePath(name), *time,
                        *time + shownTime, 0}});
    return true;
}

void CameraTrapSet::addEvent(const Image& image, const QString& category)
{
    const QString key = image.sequence + u'\n' + category;
    if (const auto known = m_known.constFind(key); known != m_known.cend()) {
        m_events[*known].time = std::min(m_events[*known].time, image.time);
        return;
    }
    m_known.insert(key, m_events.size());
    const bool isKind = EventKinds::parse(category) != EventKind::Other;
    m_events.append({image.time, isKind ? category : u"animal"_s, category, image.camera});
}

} // namespace Review
