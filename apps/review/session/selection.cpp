// SPDX-License-Identifier: MIT
#include "selection.h"

#include <utility>

namespace Review {

void Selection::setMoment(qint64 msecs)
{
    if (std::exchange(m_moment, msecs) != msecs)
        Q_EMIT momentChanged();
}

void Selection::goTo(qint64 msecs)
{
    Q_EMIT viewWanted(msecs);
    setMoment(msecs);
}

void Selection::setHeld(bool held)
{
    if (std::exchange(m_held, held) != held)
        Q_EMIT heldChanged(held);
}

void Selection::setCamera(const QString& identifier)
{
    if (identifier == m_camera || !m_cameras.contains(identifier))
        return;
    m_camera = identifier;
    Q_EMIT cameraChanged();
}

void Selection::setCameras(const QStringList& identifiers)
{
    m_cameras = identifiers;
    if (m_cameras.contains(m_camera))
        return;
    const QString first = m_cameras.value(0);
    if (std::exchange(m_camera, first) != first)
        Q_EMIT cameraChanged();
}

} // namespace Review
