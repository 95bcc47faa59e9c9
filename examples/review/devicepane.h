#pragma once

#include "trackmodel.h"

#include <QWidget>

class QTreeView;

namespace Review {

/// The cameras, each with a check box that says whether its track is shown.
class DevicePane : public QWidget
{
    Q_OBJECT

public:
    explicit DevicePane(const TimeTexts& times, QWidget* parent = nullptr);

    /// Replaces all tracks.
    void setTracks(const QList<CorvelGui::TrackDescription>& tracks);

    /// In the order of the rows. All tracks are checked at first.
    QList<CorvelGui::TrackDescription> checkedTracks() const { return m_model->checkedTracks(); }
    /// Identifiers of the others.
    QSet<QString> uncheckedTracks() const { return m_model->uncheckedTracks(); }
    /// What is known of the checked tracks at a time, in the order of the rows.
    QList<TrackModel::NamedState> statesAt(qint64 msecs) const { return m_model->statesAt(msecs); }

    void setTimes(const TimeTexts& times);
    /// Applies all translated texts again.
    void retranslate();

Q_SIGNALS:
    /// Emitted when a check box was changed.
    void checkedTracksChanged();

private:
    TrackModel* m_model;
    QTreeView* m_view;
};

} // namespace Review
