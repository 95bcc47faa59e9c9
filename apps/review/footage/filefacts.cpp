// SPDX-License-Identifier: MIT
#include "filefacts.h"

#include "data/videofile.h"
#include "exiftime.h"
#include "video/clip.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace Review {

FileFacts FileFacts::of(const QString& path, const std::atomic<bool>& aborted)
{
    FileFacts facts;
    if (!isPictureFile(path)) {
        const Clip::Facts clip = Clip::factsOf(path, aborted);
        facts.duration = clip.duration;
        facts.created = clip.created;
        facts.fault = clip.fault;
        return facts;
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        facts.taken = exifTime(file.read(exifReach));
    else
        facts.fault = file.errorString();
    return facts;
}

bool FileFacts::isFootage(const QString& path)
{
    static const QSet<QString> endings{u"mp4"_s, u"m4v"_s,  u"mov"_s,  u"mkv"_s,   u"webm"_s,
                                       u"avi"_s, u"ts"_s,   u"mts"_s,  u"m2ts"_s,  u"h264"_s,
                                       u"264"_s, u"hevc"_s, u"h265"_s, u"mjpeg"_s, u"mjpg"_s};
    return endings.contains(QFileInfo(path).suffix().toLower()) || isPictureFile(path);
}

QDataStream& operator<<(QDataStream& stream, const FileFacts& facts)
{
    const WallTime taken = facts.taken.value_or(WallTime());
    return stream << facts.duration << facts.created.has_value() << facts.created.value_or(0)
                  << facts.taken.has_value() << taken.clock << taken.offset.has_value()
                  << taken.offset.value_or(0) << facts.fault;
}

QDataStream& operator>>(QDataStream& stream, FileFacts& facts)
{
    bool isCreated = false;
    bool isTaken = false;
    bool hasOffset = false;
    qint64 created = 0;
    int offset = 0;
    WallTime taken;
    stream >> facts.duration >> isCreated >> created >> isTaken >> taken.clock >> hasOffset >>
        offset >> facts.fault;
    if (hasOffset)
        taken.offset = offset;
    facts.created = isCreated ? std::optional(created) : std::nullopt;
    facts.taken = isTaken ? std::optional(taken) : std::nullopt;
    return stream;
}

} // namespace Review
