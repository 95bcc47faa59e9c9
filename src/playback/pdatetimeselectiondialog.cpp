// SPDX-License-Identifier: MIT
#include "pdatetimeselectiondialog.h"

#include "base/controlemissions.h"
#include "localmoments.h"
#include "momententry.h"
#include "pdateedit.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace CorvelGui {

struct PDateTimeSelectionDialog::Private
{
    std::array<QDateTimeEdit*, 2> edits() const { return {date, time}; }

    QString dateFormat;

    QLabel* dateLabel = nullptr;
    PDateEdit* date = nullptr;
    QLabel* timeLabel = nullptr;
    QTimeEdit* time = nullptr;
    QLabel* zoneLabel = nullptr;
    QLabel* zoneName = nullptr;
    QLabel* note = nullptr;
    QComboBox* occurrence = nullptr;
    QPushButton* now = nullptr;
    QDialogButtonBox* buttons = nullptr;
    MomentEntry* entry = nullptr;
    QDateTime shown; ///< the last moment that there was
    QDateTime reported;
    bool milliseconds = false;
    ControlEmissions emissions;
};

PDateTimeSelectionDialog::PDateTimeSelectionDialog(QWidget* parent)
    : PBaseDialog(parent), d(std::make_unique<Private>())
{
    createLayout();
    d->entry = new MomentEntry(
        {.date = d->date, .time = d->time, .note = d->note, .occurrence = d->occurrence}, this);
    connect(d->entry, &MomentEntry::edited, this, &PDateTimeSelectionDialog::report);
    connect(d->now, &QPushButton::clicked, this, [this] {
        setDateTime(QDateTime::currentDateTimeUtc().toTimeZone(d->shown.timeZone()));
    });
    connect(d->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(d->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QDateTime now = QDateTime::currentDateTime();
    now.setMSecsSinceEpoch(now.toMSecsSinceEpoch() / 1000 * 1000);
    setDateTime(now);
    retranslate();
}

PDateTimeSelectionDialog::~PDateTimeSelectionDialog()
{
    // Qt goes on with them after their signals.
    d->emissions.release({d->date, d->time, d->occurrence, d->now});
}

QDateTime PDateTimeSelectionDialog::dateTime() const
{
    return d->entry->moment();
}

void PDateTimeSelectionDialog::setDateTime(const QDateTime& dateTime)
{
    if (!dateTime.isValid())
        return;
    d->shown = dateTime;
    d->entry->setMoment(dateTime);
    report();
}

QTimeZone PDateTimeSelectionDialog::timeZone() const
{
    return d->shown.timeZone();
}

void PDateTimeSelectionDialog::setTimeZone(const QTimeZone& zone)
{
    setDateTime(d->shown.toTimeZone(zone.isValid() ? zone : QTimeZone::systemTimeZone()));
}

QDateTime PDateTimeSelectionDialog::earliest() const
{
    return d->entry->limits().earliest;
}

QDateTime PDateTimeSelectionDialog::latest() const
{
    return d->entry->limits().latest;
}

void PDateTimeSelectionDialog::setLimits(const QDateTime& earliest, const QDateTime& latest)
{
    d->entry->setLimits(MomentLimits::between(earliest, latest));
    report();
}

QString PDateTimeSelectionDialog::dateFormat() const
{
    return d->dateFormat;
}

void PDateTimeSelectionDialog::setDateFormat(const QString& format)
{
    d->dateFormat = format;
    d->date->setDisplayFormat(format.isEmpty() ? shortDateFormat() : format);
    d->entry->explain();
}

bool PDateTimeSelectionDialog::areMillisecondsVisible() const
{
    return d->milliseconds;
}

void PDateTimeSelectionDialog::setMillisecondsVisible(bool visible)
{
    if (visible == d->milliseconds)
        return;
    d->milliseconds = visible;
    d->time->setDisplayFormat(visible ? u"HH:mm:ss.zzz"_s : u"HH:mm:ss"_s);
    d->entry->explain();
    Q_EMIT millisecondsVisibleChanged(visible);
}

void PDateTimeSelectionDialog::accept()
{
    // What is half typed counts.
    const QPointer<PDateTimeSelectionDialog> alive(this);
    for (QDateTimeEdit* edit : d->edits())
        if (alive)
            edit->interpretText();
    if (alive && dateTime().isValid())
        PBaseDialog::accept();
}

void PDateTimeSelectionDialog::changeEvent(QEvent* event)
{
    PBaseDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void PDateTimeSelectionDialog::createLayout()
{
    d->dateLabel = new QLabel(this);
    d->date = new PDateEdit(this);
    d->dateLabel->setBuddy(d->date);
    d->timeLabel = new QLabel(this);
    d->time = new QTimeEdit(this);
    d->time->setDisplayFormat(u"HH:mm:ss"_s);
    d->timeLabel->setBuddy(d->time);
    d->time->setTimeSpec(Qt::UTC);
    d->zoneLabel = new QLabel(this);
    d->zoneName = new QLabel(this);
    d->zoneName->setTextFormat(Qt::PlainText);
    d->note = new QLabel(this);
    d->note->setTextFormat(Qt::PlainText);
    d->note->setWordWrap(true);
    d->occurrence = new QComboBox(this);
    d->buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    d->now = d->buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    d->now->setAutoDefault(false);

    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    form->addRow(d->dateLabel, d->date);
    form->addRow(d->timeLabel, d->time);
    form->addRow(d->zoneLabel, d->zoneName);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->addLayout(form);
    layout->addWidget(d->note);
    layout->addWidget(d->occurrence);
    layout->addStretch();
    layout->addWidget(d->buttons);
    // Of the dialog itself it would count more than what larger fonts need.
    d->date->setMinimumWidth(220);
}

void PDateTimeSelectionDialog::report()
{
    const QDateTime moment = dateTime();
    if (moment.isValid())
        d->shown = moment;
    d->zoneName->setText(zoneText(d->shown));
    d->buttons->button(QDialogButtonBox::Ok)->setEnabled(moment.isValid());
    // Equal moments can be on the clocks of two zones.
    const bool isSame = moment == d->reported && moment.isValid() == d->reported.isValid() &&
                        moment.timeZone() == d->reported.timeZone();
    d->reported = moment;
    if (!isSame)
        d->emissions.run([&] { Q_EMIT dateTimeChanged(moment); });
}

void PDateTimeSelectionDialog::retranslate()
{
    setWindowTitle(tr("Date and time"));
    d->dateLabel->setText(tr("&Date"));
    d->timeLabel->setText(tr("&Time"));
    d->zoneLabel->setText(tr("Time zone"));
    d->occurrence->setAccessibleName(tr("Which of the two times"));
    d->now->setText(tr("&Now"));
    d->entry->explain();
}

} // namespace CorvelGui
