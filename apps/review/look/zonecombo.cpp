// SPDX-License-Identifier: MIT
#include "zonecombo.h"

#include <Corvel/TimeZoneHelper>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int machineRow = 0;

/// The IANA names, without the plain offsets that Qt adds to them.
QStringList zoneNames()
{
    QStringList names;
    for (const QByteArray& id : QTimeZone::availableTimeZoneIds()) {
        if (!id.startsWith("UTC+") && !id.startsWith("UTC-"))
            names.append(QString::fromUtf8(id));
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

QString known(const QString& zoneName)
{
    return zoneName.isEmpty() ? QString() : Corvel::TimeZoneHelper::getTimeZone(zoneName);
}

} // namespace

ZoneCombo::ZoneCombo(const QString& zoneName, QWidget* parent)
    : Translated(parent), m_zone(known(zoneName))
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    addItem(QString());
    addItems(zoneNames());
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    completer()->setFilterMode(Qt::MatchContains);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(22);
    setMaxVisibleItems(16);

    connect(this, &QComboBox::activated, this, &ZoneCombo::takeEntry);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ZoneCombo::takeEntry);
    retranslate();
}

void ZoneCombo::setZone(const QString& zoneName)
{
    m_zone = known(zoneName);
    showZone();
}

void ZoneCombo::retranslate()
{
    setItemText(machineRow, tr("This computer"));
    setAccessibleName(tr("Time zone"));
    setToolTip(tr("Time zone"));
    showZone();
}

void ZoneCombo::takeEntry()
{
    const QString entry = currentText().trimmed();
    const int row = findText(entry, Qt::MatchFixedString);
    QString zone;
    if (row != machineRow) {
        zone = row < 0 ? Corvel::TimeZoneHelper::getTimeZone(entry) : itemText(row);
        if (zone.isEmpty()) {
            showZone();
            Q_EMIT zoneRefused(entry);
            return;
        }
    }
    const bool changed = zone != m_zone;
    m_zone = zone;
    showZone();
    if (changed)
        Q_EMIT zoneChanged(zone);
}

void ZoneCombo::showZone()
{
    setCurrentIndex(m_zone.isEmpty() ? machineRow : findText(m_zone, Qt::MatchExactly));
    setEditText(m_zone.isEmpty() ? itemText(machineRow) : m_zone);
}

} // namespace Review
