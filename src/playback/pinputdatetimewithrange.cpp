// SPDX-License-Identifier: MIT
#include "pinputdatetimewithrange.h"

#include "base/controlemissions.h"
#include "base/entrywidth.h"
#include "base/whilealive.h"
#include "localmoments.h"
#include "momententry.h"
#include "pdateedit.h"
#include "rangepresets.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QTimeEdit>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

QDateTime currentSecond(const QTimeZone& zone)
{
    const qint64 seconds = QDateTime::currentSecsSinceEpoch();
    return QDateTime::fromSecsSinceEpoch(seconds, zone);
}

} // namespace

struct PInputDateTimeWithRange::End
{
    QLabel* label = nullptr;
    PDateEdit* date = nullptr;
    QTimeEdit* time = nullptr;
    QComboBox* occurrence = nullptr;
    QLabel* note = nullptr;
    MomentEntry* entry = nullptr;
};

struct PInputDateTimeWithRange::Private
{
    QDateTime inZone(const QDateTime& moment) const { return moment.toTimeZone(zone); }

    // Those of both ends.
    const MomentLimits& limits() const { return from.entry->limits(); }

    QDateTime inLimits(const QDateTime& moment) const { return inZone(limits().nearest(moment)); }

    QGridLayout* layout = nullptr;
    QLabel* presetLabel = nullptr;
    QComboBox* presets = nullptr;
    QLabel* zoneName = nullptr;
    End from;
    End to;

    QTimeZone zone = QTimeZone::systemTimeZone();
    MomentRange range;
    QString dateFormat;

    // What has been reported.
    MomentRange reported;
    Preset preset = Today;
    bool isAcceptable = true;
    ControlEmissions emissions;
};

PInputDateTimeWithRange::PInputDateTimeWithRange(QWidget* parent)
    : PWidget(parent), d(std::make_unique<Private>())
{
    d->layout = new QGridLayout(this);
    d->layout->setContentsMargins({});
    d->layout->setColumnStretch(3, 1);
    d->presetLabel = new QLabel(this);
    d->presets = new QComboBox(this);
    keepRoomForEntries(*d->presets);
    d->presetLabel->setBuddy(d->presets);
    d->zoneName = new QLabel(this);
    d->zoneName->setTextFormat(Qt::PlainText);
    d->layout->addWidget(d->presetLabel, 0, 0);
    d->layout->addWidget(d->presets, 0, 1);
    d->layout->addWidget(d->zoneName, 0, 2, 1, 2);
    createEnd(d->from, 1);
    createEnd(d->to, 3);
    for (int i = OwnRange; i <= LastSevenDays; ++i)
        d->presets->addItem(QString());
    connect(d->presets, &QComboBox::activated, this,
            [this](int index) { takePreset(Preset(index), true); });
    d->range = presetRange(Today, currentSecond(d->zone));
    d->reported = d->range;
    d->presets->setCurrentIndex(d->preset);
    retranslate();
    showRange();
}

PInputDateTimeWithRange::~PInputDateTimeWithRange()
{
    // Qt goes on with them after their signals.
    d->emissions.release({d->presets, d->from.date, d->from.time, d->from.occurrence, d->to.date,
                          d->to.time, d->to.occurrence});
}

QDateTime PInputDateTimeWithRange::from() const
{
    return d->range.from;
}

QDateTime PInputDateTimeWithRange::to() const
{
    return d->range.to;
}

PInputDateTimeWithRange::Preset PInputDateTimeWithRange::preset() const
{
    return d->preset;
}

bool PInputDateTimeWithRange::hasAcceptableInput() const
{
    return d->from.entry->moment().isValid() && d->to.entry->moment().isValid();
}

QTimeZone PInputDateTimeWithRange::timeZone() const
{
    return d->zone;
}

void PInputDateTimeWithRange::setTimeZone(const QTimeZone& zone)
{
    d->zone = zone.isValid() ? zone : QTimeZone::systemTimeZone();
    d->range = {d->inZone(d->range.from), d->inZone(d->range.to)};
    showRange();
    commit(d->preset, false);
}

QDateTime PInputDateTimeWithRange::earliest() const
{
    return d->limits().earliest;
}

QDateTime PInputDateTimeWithRange::latest() const
{
    return d->limits().latest;
}

void PInputDateTimeWithRange::setLimits(const QDateTime& earliest, const QDateTime& latest)
{
    for (const End* end : {&d->from, &d->to})
        end->entry->setLimits(MomentLimits::between(earliest, latest));
    d->range = {d->inLimits(d->range.from), d->inLimits(d->range.to)};
    showRange();
    commit(d->preset, false);
}

QString PInputDateTimeWithRange::dateFormat() const
{
    return d->dateFormat;
}

void PInputDateTimeWithRange::setDateFormat(const QString& format)
{
    d->dateFormat = format;
    for (const End* end : {&d->from, &d->to}) {
        end->date->setDisplayFormat(format.isEmpty() ? shortDateFormat() : format);
        end->entry->explain();
    }
}

void PInputDateTimeWithRange::setRange(const QDateTime& from, const QDateTime& to)
{
    if (!from.isValid() || !to.isValid())
        return;
    d->range = {d->inLimits(std::min(from, to)), d->inLimits(std::max(from, to))};
    showRange();
    commit(OwnRange, false);
}

void PInputDateTimeWithRange::setPreset(Preset preset)
{
    takePreset(preset, false);
}

void PInputDateTimeWithRange::retranslate()
{
    d->presetLabel->setText(tr("Range"));
    const QString names[] = {tr("Own range"), tr("Last hour"), tr("Today"), tr("Yesterday"),
                             tr("Last 7 days")};
    for (int i = 0; i < d->presets->count(); ++i)
        d->presets->setItemText(i, names[i]);
    const auto name = [](const End& end, const QString& label, const QString& date,
                         const QString& time, const QString& occurrence) {
        end.label->setText(label);
        end.date->setAccessibleName(date);
        end.time->setAccessibleName(time);
        end.occurrence->setAccessibleName(occurrence);
        end.entry->explain();
    };
    name(d->from, tr("From"), tr("From, date"), tr("From, time"),
         tr("From, which of the two times"));
    name(d->to, tr("To"), tr("To, date"), tr("To, time"), tr("To, which of the two times"));
}

void PInputDateTimeWithRange::createEnd(End& end, int row)
{
    end.label = new QLabel(this);
    end.date = new PDateEdit(this);
    end.label->setBuddy(end.date);
    end.time = new QTimeEdit(this);
    end.time->setDisplayFormat(u"HH:mm:ss"_s);
    end.time->setTimeSpec(Qt::UTC);
    // What is half typed must not move the other end.
    end.date->setKeyboardTracking(false);
    end.time->setKeyboardTracking(false);
    end.occurrence = new QComboBox(this);
    end.note = new QLabel(this);
    end.note->setTextFormat(Qt::PlainText);
    end.note->setWordWrap(true);
    d->layout->addWidget(end.label, row, 0);
    d->layout->addWidget(end.date, row, 1);
    d->layout->addWidget(end.time, row, 2);
    d->layout->addWidget(end.occurrence, row, 3, Qt::AlignLeading);
    d->layout->addWidget(end.note, row + 1, 1, 1, 3);
    end.entry = new MomentEntry(
        {.date = end.date, .time = end.time, .note = end.note, .occurrence = end.occurrence}, this);
    connect(end.entry, &MomentEntry::edited, this, [this, &end] { takeEdit(end); });
}

void PInputDateTimeWithRange::takeEdit(End& edited)
{
    const QDateTime moment = edited.entry->moment();
    if (!moment.isValid())
        return commit(OwnRange, true);
    const qint64 length = d->range.from.msecsTo(d->range.to);
    if (&edited == &d->from) {
        d->range.from = moment;
        if (moment > d->range.to) {
            d->range.to = d->inLimits(moment.addMSecs(length));
            d->to.entry->setMoment(d->range.to);
        }
    } else {
        d->range.to = moment;
        if (moment < d->range.from) {
            d->range.from = d->inLimits(moment.addMSecs(-length));
            d->from.entry->setMoment(d->range.from);
        }
    }
    commit(OwnRange, true);
}

void PInputDateTimeWithRange::takePreset(Preset preset, bool byUser)
{
    if (preset < OwnRange || preset > LastSevenDays)
        return;
    const MomentRange range = presetRange(preset, currentSecond(d->zone));
    if (range.from.isValid()) {
        d->range = {d->inLimits(range.from), d->inLimits(range.to)};
        showRange();
    }
    commit(preset, byUser);
}

void PInputDateTimeWithRange::showRange()
{
    d->from.entry->setMoment(d->range.from);
    d->to.entry->setMoment(d->range.to);
    d->zoneName->setText(zoneText(d->range.to));
}

// Reports what is another one now.
void PInputDateTimeWithRange::commit(Preset preset, bool byUser)
{
    d->presets->setCurrentIndex(preset);
    const MomentRange range = d->range;
    const bool isOther = range != std::exchange(d->reported, range);
    const bool isOtherPreset = preset != std::exchange(d->preset, preset);
    const bool isAcceptable = hasAcceptableInput();
    const bool isOtherInput = isAcceptable != std::exchange(d->isAcceptable, isAcceptable);
    d->emissions.run([&] {
        whileAlive(
            this,
            [&] {
                if (isOther)
                    Q_EMIT rangeChanged(range.from, range.to);
            },
            [&] {
                if (isOtherPreset)
                    Q_EMIT presetChanged(preset);
            },
            [&] {
                if (isOtherInput)
                    Q_EMIT acceptableInputChanged(isAcceptable);
            },
            [&] {
                if (isOther && byUser)
                    Q_EMIT rangeEdited(range.from, range.to);
            });
    });
}

} // namespace CorvelGui
