// SPDX-License-Identifier: MIT
#include "exportdialog.h"

#include "folderchoice.h"
#include "rangechoice.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using CorvelGui::TimeSpan;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int longestInterval = 24 * 60 * 60; // seconds

/// A round number of seconds that makes a handful of pictures, not thousands.
int proposedInterval(const TimeSpan& range, const TrackHistory& camera)
{
    constexpr qint64 manyPictures = 200;
    constexpr std::array intervals{1,   2,   5,     10,    30,    60,     120,
                                   300, 600, 1'800, 3'600, 7'200, 21'600, longestInterval};
    const auto found = std::ranges::find_if(intervals, [&](int seconds) {
        const ExportPlan plan{.range = range, .interval = seconds};
        return plan.times(camera).count() <= manyPictures;
    });
    return found != intervals.end() ? *found : longestInterval;
}

} // namespace

ExportDialog::ExportDialog(const Camera& camera, const TimeSpan& view,
                           const TimeSpan& selectedRange, const QString& folder, QWidget* parent)
    : PBaseDialog(parent)
    , m_history(camera.history)
    , m_range(new RangeChoice(camera.times, view, selectedRange, this))
    , m_interval(new QSpinBox(this))
    , m_recordedOnly(new QCheckBox(tr("&Only where something is recorded"), this))
    , m_folder(new FolderChoice(tr("Export pictures"), folder, this))
    , m_message(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Export pictures"));
    m_interval->setRange(1, longestInterval);
    m_interval->setSuffix(tr(" s"));
    m_interval->setValue(proposedInterval(m_range->range(), m_history));
    m_recordedOnly->setChecked(true);
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Export"));
    m_range->setCamera(camera);
    createLayout(camera.name);

    connect(m_range, &RangeChoice::changed, this, &ExportDialog::checkPlan);
    connect(m_interval, &QSpinBox::valueChanged, this, &ExportDialog::checkPlan);
    connect(m_recordedOnly, &QCheckBox::toggled, this, &ExportDialog::checkPlan);
    connect(m_folder, &FolderChoice::changed, this, &ExportDialog::checkPlan);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    checkPlan();
}

ExportPlan ExportDialog::plan() const
{
    return {.range = m_range->range(),
            .interval = m_interval->value(),
            .recordedOnly = m_recordedOnly->isChecked(),
            .folder = m_folder->folder()};
}

void ExportDialog::createLayout(const QString& camera)
{
    auto* name = new QLabel(camera.simplified(), this);
    name->setTextFormat(Qt::PlainText);
    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    form->addRow(tr("Camera"), name);
    form->addRow(m_range);
    form->addRow(tr("A picture every"), m_interval);
    form->addRow(QString(), m_recordedOnly);
    form->addRow(tr("Folder"), m_folder);
    form->addRow(QString(), m_message);
    m_interval->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addLayout(form);
    layout->addWidget(m_buttons);
}

void ExportDialog::checkPlan()
{
    const ExportPlan wanted = plan();
    const qint64 count = wanted.times(m_history).count();
    const bool tooMany = count > mostPictures;
    const QString number = QLocale().toString(count);
    if (count == 0)
        m_message->setText(tr("Nothing is recorded in this range."));
    else if (tooMany)
        m_message->setText(tr("%1 pictures are too many: the most at once is %2.")
                               .arg(number, QLocale().toString(mostPictures)));
    else if (const QString fault = m_folder->fault(); !fault.isEmpty())
        m_message->setText(fault);
    else
        m_message->setText(tr("Pictures: %1").arg(number));
    m_buttons->button(QDialogButtonBox::Ok)
        ->setEnabled(count > 0 && !tooMany && m_folder->fault().isEmpty());
}

} // namespace Review
