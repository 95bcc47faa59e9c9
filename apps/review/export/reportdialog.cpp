// SPDX-License-Identifier: MIT
#include "reportdialog.h"

#include <CorvelGui/TextCursor>

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using CorvelGui::TextCursor;
using namespace Qt::StringLiterals;

namespace Review {

ReportDialog::ReportDialog(const ReportPlan& plan, const QString& folder, QWidget* parent)
    : Translated(parent)
    , m_report(plan)
    , m_folder(folder)
    , m_summary(new QLabel)
    , m_withPictures(new QCheckBox)
    , m_state(new QLabel)
    , m_progress(new QProgressBar)
    , m_buttons(new QDialogButtonBox)
    , m_save(m_buttons->addButton(QString(), QDialogButtonBox::ActionRole))
    , m_preview(m_buttons->addButton(QString(), QDialogButtonBox::ActionRole))
{
    m_buttons->addButton(QDialogButtonBox::Close); // where Tab comes last
    const bool hasCameras = std::ranges::any_of(
        plan.cameras, [](const Camera& camera) { return !camera.files.isEmpty(); });
    const bool canHavePictures = hasCameras && plan.events.size() <= EventReport::mostPictures;
    m_withPictures->setEnabled(canHavePictures);
    m_withPictures->setChecked(canHavePictures);
    m_summary->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    m_progress->hide();
    m_save->setDefault(true);
    connect(m_save, &QPushButton::clicked, this, &ReportDialog::saveAsPdf);
    connect(m_preview, &QPushButton::clicked, this, &ReportDialog::preview);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &ReportDialog::reject);
    connect(&m_report, &EventReport::collected, m_progress, &QProgressBar::setValue);
    connect(&m_report, &EventReport::complete, this, &ReportDialog::finish);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_withPictures);
    layout->addWidget(m_progress);
    layout->addWidget(m_state);
    layout->addStretch();
    layout->addWidget(m_buttons);
    setMinimumWidth(460);
    retranslate();
    showState();
}

void ReportDialog::saveAsPdf()
{
    const QPointer<ReportDialog> alive(this);
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save report"), QDir(m_folder).filePath(u"events.pdf"_s), tr("PDF (*.pdf)"));
    if (!alive || path.isEmpty())
        return;
    m_path = path;
    begin(Wish::Save);
}

void ReportDialog::preview()
{
    begin(Wish::Preview);
}

void ReportDialog::begin(Wish wish)
{
    m_wish = wish;
    m_isCancelled = false;
    m_state->setText(m_withPictures->isChecked() ? tr("Collecting pictures…") : QString());
    m_progress->setRange(0, int(m_report.plan().events.size()));
    m_progress->setValue(0);
    showState();
    if (m_withPictures->isChecked())
        m_report.collectPictures();
    else
        finish();
}

void ReportDialog::finish()
{
    m_state->setText(tr("Writing the report…"));
    TextCursor report;
    const QPointer<ReportDialog> alive(this);
    // As a modal QProgressDialog does: this dialog alone takes what the user does meanwhile.
    const auto showing =
        connect(&report, &TextCursor::progressed, this, [this, &report](int done, int total) {
            m_progress->setRange(0, total);
            m_progress->setValue(done);
            const QPointer<ReportDialog> still(this);
            QCoreApplication::processEvents();
            if (!still || m_isCancelled)
                report.cancel();
        });
    bool isDone = m_report.write(report, m_withPictures->isChecked());
    if (!alive)
        return;
    if (isDone && m_wish == Wish::Save) {
        const TextCursor::Outcome outcome = report.savePdf(m_path);
        if (!alive)
            return;
        isDone = outcome == TextCursor::Outcome::Complete;
        if (isDone) {
            m_saved = m_path;
            m_wish = Wish::None;
            return accept();
        }
    } else if (isDone) {
        disconnect(showing);
        report.preview(this);
        if (!alive)
            return;
    }
    end(report.errorText().isEmpty()
            ? QString()
            : tr("%1 cannot be written: %2")
                  .arg(QDir::toNativeSeparators(m_path), report.errorText()));
}

void ReportDialog::end(const QString& message)
{
    m_wish = Wish::None;
    m_state->setText(message);
    showState();
}

void ReportDialog::reject()
{
    if (m_wish == Wish::None)
        return Translated::reject();
    m_isCancelled = true;
    m_report.cancel();
    end(QString());
}

void ReportDialog::showState()
{
    const bool isWorking = m_wish != Wish::None;
    const bool isTooLong = m_report.plan().events.size() > mostReportedEvents;
    m_progress->setVisible(isWorking);
    m_save->setEnabled(!isWorking && !isTooLong && !m_report.plan().events.isEmpty());
    m_preview->setEnabled(m_save->isEnabled());
    m_buttons->button(QDialogButtonBox::Close)->setText(isWorking ? tr("Cancel") : tr("Close"));
}

void ReportDialog::retranslate()
{
    const QLocale locale;
    const qsizetype count = m_report.plan().events.size();
    setWindowTitle(tr("Report of events"));
    QString summary = tr("Events: %1").arg(locale.toString(count));
    if (count > mostReportedEvents)
        summary = tr("A report has %1 events at most. Filter the list of events, or select some of "
                     "them.")
                      .arg(locale.toString(mostReportedEvents));
    else if (count > EventReport::mostPictures)
        summary += u'\n' + tr("Pictures are for %1 events at most.")
                               .arg(locale.toString(EventReport::mostPictures));
    m_summary->setText(summary);
    m_withPictures->setText(tr("With a &picture of the camera for each event"));
    m_progress->setAccessibleName(tr("Progress of the report"));
    m_save->setText(tr("&Save as PDF…"));
    m_preview->setText(tr("Pre&view and print…"));
}

} // namespace Review
