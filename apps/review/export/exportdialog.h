// SPDX-License-Identifier: MIT
#pragma once

#include "pictureexport.h"

#include <CorvelGui/PBaseDialog>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QSpinBox;

namespace Review {

class FolderChoice;
class RangeChoice;

/// Asks which pictures of a camera to export, and where to.
class ExportDialog : public CorvelGui::PBaseDialog
{
    Q_OBJECT

public:
    /// More pictures than that are not exported at once.
    static constexpr int mostPictures = 10'000;

    /// An empty @p selectedRange cannot be chosen; any other one is proposed. No range reaches
    /// beyond what the ranges say.
    ExportDialog(const Camera& camera, const CorvelGui::TimeSpan& view,
                 const CorvelGui::TimeSpan& selectedRange, const QString& folder, QWidget* parent);

    ExportPlan plan() const;

private:
    void createLayout(const QString& camera);
    void checkPlan();

    const TrackHistory m_history;
    RangeChoice* m_range;
    QSpinBox* m_interval;
    QCheckBox* m_recordedOnly;
    FolderChoice* m_folder;
    QLabel* m_message;
    QDialogButtonBox* m_buttons;
};

} // namespace Review
