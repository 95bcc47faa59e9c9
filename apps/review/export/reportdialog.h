// SPDX-License-Identifier: MIT
#pragma once

#include "eventreport.h"
#include "look/translated.h"

#include <CorvelGui/PBaseDialog>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace Review {

/// Makes a report of events, to be looked at and printed or to be saved as PDF.
class ReportDialog : public Translated<CorvelGui::PBaseDialog>
{
    Q_OBJECT

public:
    /// A file is proposed in @p folder.
    ReportDialog(const ReportPlan& plan, const QString& folder, QWidget* parent);

    /// The file that was saved; empty without one.
    const QString& savedFile() const { return m_saved; }

    /// Asks for a file and writes the report into it.
    void saveAsPdf();
    /// Shows the pages, from where they can be printed.
    void preview();

public Q_SLOTS:
    /// Ends what is under way; without such, closes the dialog.
    void reject() override;

protected:
    void retranslate() final;

private:
    enum class Wish { None, Save, Preview };

    void begin(Wish wish);
    void finish();
    void showState();
    void end(const QString& message);

    EventReport m_report;
    const QString m_folder;
    QString m_path;
    QString m_saved;
    Wish m_wish = Wish::None;
    bool m_isCancelled = false;

    QLabel* m_summary;
    QCheckBox* m_withPictures;
    QLabel* m_state;
    QProgressBar* m_progress;
    QDialogButtonBox* m_buttons;
    QPushButton* m_save;
    QPushButton* m_preview;
};

} // namespace Review
