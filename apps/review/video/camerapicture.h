#pragma once

#include "data/eventkind.h"
#include "data/trackhistory.h"

#include <QImage>
#include <QList>
#include <QString>

namespace Review {

/// What a camera sees at an instant.
struct CameraScene
{
    /// Someone or something on its way through the picture.
    struct Visitor
    {
        EventKind kind = EventKind::Other;
        /// From 0, where it enters on the left, to 1, where it leaves on the right.
        double progress = 0;

        bool operator==(const Visitor&) const = default;
    };

    QString camera = {};
    QString time = {};
    /// Hours since midnight where the camera hangs.
    double hour = 12;
    TrackState state = TrackState::NothingKnown;
    QList<Visitor> visitors = {};

    bool operator==(const CameraScene&) const = default;
};

/// Draws camera pictures, since the client has recordings of times only. The same scene gives the
/// same picture; each camera has surroundings of its own, dark and without colour at night.
class CameraPicture
{
public:
    static constexpr QSize size{1280, 720};

    QImage draw(const CameraScene& scene);

private:
    const QImage& surroundings(const QString& camera, double hour);

    // Most pictures differ from the one before in their visitors only.
    QString m_camera;
    int m_tenMinutes = -1;
    QImage m_surroundings;
};

} // namespace Review
