// SPDX-License-Identifier: MIT
#include "cameratimesdialog.h"

#include "look/roomydelegate.h"
#include "look/zonecombo.h"
#include "offsetedit.h"

#include <CorvelGui/PErrorLabel>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

enum Column { Name, Recordings, From, First, Zone, Offset };

} // namespace

CameraTimesDialog::CameraTimesDialog(const Footage& footage, const TimeCorrections& corrections,
                                     const TimeTexts& times, QWidget* parent)
    : PBaseDialog(parent)
    , m_footage(footage)
    , m_times(times)
    , m_cameras(footage.cameras())
    , m_corrections(corrections)
    , m_applied(corrections)
    , m_list(new QTreeWidget(this))
    , m_zone(new ZoneCombo(QString::fromUtf8(footage.zone().id()), this))
    , m_offset(new OffsetEdit(this))
    , m_message(new CorvelGui::PErrorLabel(this))
    , m_buttons(new QDialogButtonBox(
          QDialogButtonBox::Ok | QDialogButtonBox::Apply | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Times of recordings"));
    m_list->setHeaderLabels({tr("Camera"), tr("Recordings"), tr("Times come from"),
                             tr("First recording"), tr("Zone"), tr("Offset")});
    m_list->setAccessibleName(tr("Cameras"));
    m_list->setRootIsDecorated(false);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setItemDelegate(new RoomyDelegate(m_list));
    for (int row = 0; row < m_cameras.size(); ++row) {
        m_list->addTopLevelItem(new QTreeWidgetItem);
        showTimes(row);
    }
    for (int column = 0; column < m_list->columnCount(); ++column)
        m_list->resizeColumnToContents(column);
    createLayout();

    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &CameraTimesDialog::showSelection);
    connect(m_zone, &ZoneCombo::zoneChanged, this, &CameraTimesDialog::takeZone);
    connect(m_zone, &ZoneCombo::zoneRefused, this, [this](const QString& text) {
        m_message->setError(tr("There is no time zone “%1”.").arg(text));
    });
    connect(m_offset, &QLineEdit::textEdited, this, &CameraTimesDialog::takeOffset);
    connect(m_buttons, &QDialogButtonBox::accepted, this, [this] {
        apply();
        accept();
    });
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &CameraTimesDialog::apply);
    m_list->setCurrentItem(m_list->topLevelItem(0));
}

void CameraTimesDialog::createLayout()
{
    constexpr QSize size(760, 420);
    m_offset->setAccessibleName(tr("Offset"));
    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    form->addRow(tr("Zone of the camera's clock"), m_zone);
    form->addRow(tr("Add to its times"), m_offset);
    form->addRow(QString(), m_message);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addWidget(m_list, 1);
    layout->addLayout(form);
    layout->addWidget(m_buttons);
    resize(size);
}

QString CameraTimesDialog::sourcesText(const Footage::Sources& sources)
{
    const QString names[] = {tr("path"), tr("time of creation"), tr("EXIF"), tr("time of change")};
    QStringList parts;
    for (int source = 0; source < Footage::SourceCount; ++source)
        if (sources[source] > 0)
            parts.append(tr("%1: %2").arg(names[source], QLocale().toString(sources[source])));
    return parts.join(u", "_s);
}

void CameraTimesDialog::showTimes(int row)
{
    const Footage::CameraTimes& camera = m_cameras[row];
    const TimeCorrection correction = m_corrections.value(camera.camera);
    QTreeWidgetItem* item = m_list->topLevelItem(row);
    qsizetype count = 0;
    for (const qsizetype ofSource : camera.sources)
        count += ofSource;
    const qint64 first = m_footage.instantOf(camera.first, correction);
    const QString zone =
        correction.zone.isEmpty() ? QString::fromUtf8(m_footage.zone().id()) : correction.zone;
    item->setText(Name, camera.camera.simplified());
    item->setText(Recordings, QLocale().toString(count));
    item->setText(From, sourcesText(camera.sources));
    item->setText(First, first < 0 ? tr("before 1970") : m_times.dateTime(first));
    item->setText(Zone, camera.needsZone ? zone : tr("known"));
    item->setText(Offset, TimeCorrection::offsetText(correction.offset));
}

void CameraTimesDialog::showSelection()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    const bool hasSelection = row >= 0 && !m_list->selectedItems().isEmpty();
    m_offset->setEnabled(hasSelection);
    m_zone->setEnabled(hasSelection && m_cameras[row].needsZone);
    if (!hasSelection)
        return;
    const TimeCorrection correction = m_corrections.value(m_cameras[row].camera);
    m_zone->setZone(correction.zone.isEmpty() ? QString::fromUtf8(m_footage.zone().id())
                                              : correction.zone);
    m_offset->setText(TimeCorrection::offsetText(correction.offset));
    m_message->clearError();
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(true);
    m_buttons->button(QDialogButtonBox::Apply)->setEnabled(true);
}

void CameraTimesDialog::changeSelected(const std::function<void(TimeCorrection&)>& change)
{
    for (int row = 0; row < m_cameras.size(); ++row) {
        if (!m_list->topLevelItem(row)->isSelected())
            continue;
        change(m_corrections[m_cameras[row].camera]);
        showTimes(row);
    }
}

void CameraTimesDialog::takeZone(const QString& name)
{
    const QByteArray id = name.isEmpty() ? QTimeZone::systemTimeZoneId() : name.toUtf8();
    m_message->clearError();
    changeSelected([&](TimeCorrection& correction) {
        correction.zone = id == m_footage.zone().id() ? QString() : QString::fromUtf8(id);
    });
}

void CameraTimesDialog::takeOffset()
{
    const auto offset = TimeCorrection::parseOffset(m_offset->text());
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(offset.has_value());
    m_buttons->button(QDialogButtonBox::Apply)->setEnabled(offset.has_value());
    m_message->setError(
        offset ? QString()
               : tr("Write hours, minutes and seconds, such as %1, or seconds, such as %2.")
                     .arg(u"+1:00:00"_s, u"-2.5"_s));
    if (offset)
        changeSelected([&](TimeCorrection& correction) { correction.offset = *offset; });
}

void CameraTimesDialog::apply()
{
    m_corrections.removeIf([](const auto& entry) { return entry.value().isNone(); });
    if (std::exchange(m_applied, m_corrections) != m_corrections)
        Q_EMIT applied();
}

} // namespace Review
