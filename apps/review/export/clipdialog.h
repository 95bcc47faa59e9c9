// SPDX-License-Identifier: MIT
#pragma once

#include "clipexport.h"

#include <CorvelGui/PBaseDialog>

class QDialogButtonBox;
class QLabel;
class QListWidget;

namespace Review {

class Events;
class FolderChoice;
class RangeChoice;

/// Asks of which cameras and which range to export recordings, and where to.
class ClipDialog : public CorvelGui::PBaseDialog
{
    Q_OBJECT

public:
    /// Proposes the camera with the identifier @p chosen, and @p selectedRange unless it is empty.
    ClipDialog(const QList<Camera>& cameras, const QString& chosen, const CorvelGui::TimeSpan& view,
               const CorvelGui::TimeSpan& selectedRange, const QString& folder, QWidget* parent);

    /// Of @p events it takes those in the range, of the chosen cameras or of none.
    ClipPlan plan(const Events& events) const;

private:
    void createLayout();
    void checkPlan();
    ClipPlan planWithoutEvents() const;

    const QList<Camera> m_choices;
    QListWidget* m_cameras;
    RangeChoice* m_range;
    FolderChoice* m_folder;
    QLabel* m_message;
    QDialogButtonBox* m_buttons;
};

} // namespace Review
