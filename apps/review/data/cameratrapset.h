// SPDX-License-Identifier: MIT
#pragma once

#include "events.h"
#include "jobprogress.h"
#include "problemlist.h"
#include "videofile.h"

#include <QCoreApplication>
#include <QHash>
#include <QTimeZone>

class QDir;
class QJsonObject;

namespace Review {

/// A data set of camera traps as JSON, in the way of COCO: images with the time and the location,
/// and annotations that say which category of things is to be seen in an image.
class CameraTrapSet
{
    Q_DECLARE_TR_FUNCTIONS(Review::CameraTrapSet)

public:
    struct Picture
    {
        QString camera;
        VideoFile file;
    };

    /// What is wrong with single images and annotations goes to @p problems. Times without an
    /// offset are those of @p zone. Returns why the file cannot be read at all, or an empty string.
    QString read(const QString& path, const QTimeZone& zone, ProblemList& problems,
                 JobProgress& progress);

    const QList<Picture>& pictures() const { return m_pictures; }
    /// One for each category in each image, or in each sequence of images, in any order.
    const QList<Event>& events() const { return m_events; }

private:
    /// What annotations need to know of an image.
    struct Image
    {
        qint64 time = 0;
        QString camera = {};
        QString sequence = {}; ///< that it belongs to, or the image itself
    };

    bool addImage(const QJsonObject& image, const QDir& folder, const QTimeZone& zone);
    void addEvent(const Image& image, const QString& category);

    QList<Picture> m_pictures;
    QList<Event> m_events;
    QHash<QString, Image> m_images;
    QHash<QString, qsizetype> m_known; ///< events, by sequence and category
};

} // namespace Review
