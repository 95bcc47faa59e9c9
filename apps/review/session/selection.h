// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

namespace Review {

/// What all panes of the window look at: a moment, and a camera. Whoever sets it does not know who
/// follows.
class Selection : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Milliseconds since the Unix epoch; 0 for none.
    qint64 moment() const { return m_moment; }
    /// A view that shows the moment goes along; one that looks elsewhere stays.
    void setMoment(qint64 msecs);
    /// Also has the moment brought into view.
    void goTo(qint64 msecs);
    /// Has the moment brought into view where it is not.
    void reveal() { Q_EMIT viewWanted(m_moment); }

    /// While the user holds the moment with the mouse, it does not move by itself.
    bool isHeld() const { return m_held; }
    void setHeld(bool held);

    /// Identifier of the camera whose picture is shown; empty without one.
    const QString& camera() const { return m_camera; }
    /// Does nothing for a camera that cannot be chosen.
    void setCamera(const QString& identifier);
    /// The cameras to choose from. A chosen one stays where it can; otherwise the first is chosen.
    void setCameras(const QStringList& identifiers);

Q_SIGNALS:
    void momentChanged();
    /// Asks for a view that shows @p msecs. The moment may be another one as yet.
    void viewWanted(qint64 msecs);
    void heldChanged(bool held);
    void cameraChanged();

private:
    qint64 m_moment = 0;
    bool m_held = false;
    QString m_camera;
    QStringList m_cameras;
};

} // namespace Review
