// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QVBoxLayout;

namespace CorvelGui {
class ZoomTimeline;
}

namespace Gallery {

/// The whole timeline in the states that a user meets.
class ZoomTimelinePage : public QWidget
{
    Q_OBJECT

public:
    explicit ZoomTimelinePage(QWidget* parent);

private:
    CorvelGui::ZoomTimeline* add(const QString& caption);
    void addMarkers();
    void addActivityAndLanes();
    void addRanges();
    void addFreeZoom();
    void addStates();

    QVBoxLayout* const m_layout;
};

} // namespace Gallery
