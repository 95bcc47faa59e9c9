#include "exportdialog.h"

#include <CorvelGui/CheckDirLineEdit>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
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

QString rangeText(const TimeTexts& times, const TimeSpan& range)
{
    return times.dateTime(range.begin) + u" – "_s + times.dateTime(range.end);
}

} // namespace

ExportDialog::ExportDialog(const Camera& camera, const TimeSpan& view, const TimeSpan& searchRange,
                           const QString& folder, QWidget* parent)
    : PBaseDialog(parent)
    , m_history(camera.history)
    , m_viewRange(view)
    , m_searchRange(searchRange)
    , m_view(new QRadioButton(this))
    , m_search(new QRadioButton(this))
    , m_interval(new QSpinBox(this))
    , m_recordedOnly(new QCheckBox(tr("&Only where something is recorded"), this))
    , m_folder(new CorvelGui::CheckDirLineEdit(this))
    , m_message(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Export pictures"));
    const bool hasSearch = !searchRange.isEmpty();
    m_view->setText(tr("Current view: %1").arg(rangeText(camera.times, view)));
    m_search->setText(hasSearch ? tr("Search range: %1").arg(rangeText(camera.times, searchRange))
                                : tr("Search range: none is set"));
    m_search->setEnabled(hasSearch);
    (hasSearch ? m_search : m_view)->setChecked(true);
    m_interval->setRange(1, longestInterval);
    m_interval->setSuffix(tr(" s"));
    m_interval->setValue(proposedInterval(hasSearch ? searchRange : view, m_history));
    m_recordedOnly->setChecked(true);
    m_folder->setText(QDir::toNativeSeparators(folder));
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Export"));
    createLayout(camera.name);

    connect(m_view, &QRadioButton::toggled, this, &ExportDialog::checkPlan);
    connect(m_interval, &QSpinBox::valueChanged, this, &ExportDialog::checkPlan);
    connect(m_recordedOnly, &QCheckBox::toggled, this, &ExportDialog::checkPlan);
    connect(m_folder, &QLineEdit::textChanged, this, &ExportDialog::checkPlan);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    checkPlan();
}

ExportPlan ExportDialog::plan() const
{
    return {.range = m_search->isChecked() ? m_searchRange : m_viewRange,
            .interval = m_interval->value(),
            .recordedOnly = m_recordedOnly->isChecked(),
            .folder = QDir::fromNativeSeparators(m_folder->text())};
}

void ExportDialog::createLayout(const QString& camera)
{
    auto* name = new QLabel(camera.simplified(), this);
    name->setTextFormat(Qt::PlainText);
    auto* choose = new QPushButton(tr("Choose…"), this);
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &ExportDialog::chooseFolder);
    constexpr int widthOfPaths = 320;
    m_folder->setMinimumWidth(widthOfPaths);
    auto* folder = new QHBoxLayout;
    folder->addWidget(m_folder, 1);
    folder->addWidget(choose);
    auto* ranges = new QVBoxLayout;
    ranges->setSpacing(6);
    ranges->addWidget(m_view);
    ranges->addWidget(m_search);

    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    form->addRow(tr("Camera"), name);
    form->addRow(tr("Range"), ranges);
    form->addRow(tr("A picture every"), m_interval);
    form->addRow(QString(), m_recordedOnly);
    form->addRow(tr("Folder"), folder);
    form->addRow(QString(), m_message);
    m_interval->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_folder->setAccessibleName(tr("Folder"));

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addLayout(form);
    layout->addWidget(m_buttons);
}

void ExportDialog::chooseFolder()
{
    const QPointer<ExportDialog> alive(this);
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Export pictures"), QDir::fromNativeSeparators(m_folder->text()));
    if (alive && !folder.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(folder));
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
    else
        m_message->setText(tr("Pictures: %1").arg(number));
    m_buttons->button(QDialogButtonBox::Ok)
        ->setEnabled(count > 0 && !tooMany && QFileInfo(wanted.folder).isDir());
}

} // namespace Review
