// SPDX-License-Identifier: MIT
#pragma once

#include "footage/footage.h"
#include "look/timetexts.h"

#include <CorvelGui/PBaseDialog>

#include <functional>

class QDialogButtonBox;
class QTreeWidget;

namespace CorvelGui {
class PErrorLabel;
} // namespace CorvelGui

namespace Review {

class OffsetEdit;
class ZoneCombo;

/// Shows where the times of each camera's recordings come from, and lets the user correct them.
class CameraTimesDialog : public CorvelGui::PBaseDialog
{
    Q_OBJECT

public:
    CameraTimesDialog(const Footage& footage, const TimeCorrections& corrections,
                      const TimeTexts& times, QWidget* parent);

    const TimeCorrections& corrections() const { return m_corrections; }
    /// Which sources said how many times.
    static QString sourcesText(const Footage::Sources& sources);

Q_SIGNALS:
    /// Emitted when the user wants the corrections to be in effect.
    void applied();

private:
    void createLayout();
    void showTimes(int row);
    void showSelection();
    void takeZone(const QString& name);
    void takeOffset();
    void changeSelected(const std::function<void(TimeCorrection&)>& change);
    void apply();

    const Footage m_footage;
    const TimeTexts m_times;
    const QList<Footage::CameraTimes> m_cameras;
    TimeCorrections m_corrections;
    TimeCorrections m_applied;
    QTreeWidget* m_list;
    ZoneCombo* m_zone;
    OffsetEdit* m_offset;
    CorvelGui::PErrorLabel* m_message;
    QDialogButtonBox* m_buttons;
};

} // namespace Review
