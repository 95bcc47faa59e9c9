#pragma once

#include "pictureexport.h"

#include <CorvelGui/PBaseDialog>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace Review {

/// Asks which pictures of a camera to export, and where to.
class ExportDialog : public CorvelGui::PBaseDialog
{
    Q_OBJECT

public:
    /// More pictures than that are not exported at once.
    static constexpr int mostPictures = 10'000;

    /// An empty @p searchRange cannot be chosen; any other one is proposed. No range reaches beyond
    /// what the ranges say.
    ExportDialog(const Camera& camera, const CorvelGui::TimeSpan& view,
                 const CorvelGui::TimeSpan& searchRange, const QString& folder, QWidget* parent);

    ExportPlan plan() const;

private:
    void createLayout(const QString& camera);
    void chooseFolder();
    void checkPlan();

    const TrackHistory m_history;
    CorvelGui::TimeSpan m_viewRange;
    CorvelGui::TimeSpan m_searchRange;
    QRadioButton* m_view;
    QRadioButton* m_search;
    QSpinBox* m_interval;
    QCheckBox* m_recordedOnly;
    QLineEdit* m_folder;
    QLabel* m_message;
    QDialogButtonBox* m_buttons;
};

} // namespace Review
