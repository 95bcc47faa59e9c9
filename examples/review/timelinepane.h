#pragma once

#include <CorvelGui/TrackDescription>

#include <QWidget>

namespace CorvelGui {
class Ruler;
}

namespace Review {

/// The timeline of the client. All that the client asks of the timeline goes through this class.
class TimelinePane : public QWidget
{
    Q_OBJECT

public:
    /// @p zoneName is the zone of its labels; an empty one means the zone of this machine.
    explicit TimelinePane(const QString& zoneName, QWidget* parent = nullptr);

    /// Sets the limits and shows the whole period. Without one, the timeline stays empty.
    void setPeriod(const CorvelGui::TimeSpan& period);
    void setTracks(const QList<CorvelGui::TrackDescription>& tracks);

    /// What is in view; empty without a period.
    CorvelGui::TimeSpan view() const;
    bool showsWholePeriod() const;
    bool canZoomIn() const;
    bool canZoomOut() const;
    bool canStepEarlier() const;
    bool canStepLater() const;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void showWholePeriod();
    /// Half a view towards the begin or the end of the period.
    void stepEarlier();
    void stepLater();

Q_SIGNALS:
    /// Emitted whenever view() may have changed, and with it what can be done to it.
    void viewChanged();

private:
    void stepBy(qint64 msecs);
    qint64 msecsPerPixel() const;

    CorvelGui::Ruler* m_ruler;
    CorvelGui::TimeSpan m_period;
};

} // namespace Review
