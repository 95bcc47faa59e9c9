// SPDX-License-Identifier: MIT
#include "clipdialog.h"

#include "data/csvwriter.h"
#include "folderchoice.h"
#include "look/roomydelegate.h"
#include "rangechoice.h"

#include <CorvelGui/StringHelper>

#include <QBitArray>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using CorvelGui::StringHelper;
using CorvelGui::TimeSpan;

namespace Review {

ClipDialog::ClipDialog(const QList<Camera>& cameras, const QString& chosen, const TimeSpan& view,
                       const TimeSpan& selectedRange, const QString& folder, QWidget* parent)
    : PBaseDialog(parent)
    , m_choices(cameras)
    , m_cameras(new QListWidget(this))
    , m_range(new RangeChoice(cameras.first().times, view, selectedRange, this))
    , m_folder(new FolderChoice(tr("Export recordings"), folder, this))
    , m_message(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Export recordings"));
    for (const Camera& camera : cameras) {
        auto* item = new QListWidgetItem(camera.name.simplified(), m_cameras);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(camera.identifier == chosen ? Qt::Checked : Qt::Unchecked);
        if (camera.identifier == chosen)
            m_cameras->setCurrentItem(item);
    }
    m_cameras->setItemDelegate(new RoomyDelegate(m_cameras));
    m_cameras->setAccessibleName(tr("Cameras"));
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Export"));
    createLayout();
    m_range->setCamera(cameras[std::max(0, m_cameras->currentRow())]);
    connect(m_cameras, &QListWidget::currentRowChanged, m_range,
            [this](int row) { m_range->setCamera(m_choices[row]); });
    connect(m_cameras, &QListWidget::itemChanged, this, &ClipDialog::checkPlan);
    connect(m_range, &RangeChoice::changed, this, &ClipDialog::checkPlan);
    connect(m_folder, &FolderChoice::changed, this, &ClipDialog::checkPlan);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    checkPlan();
}

void ClipDialog::createLayout()
{
    auto* note = new QLabel(tr("Clips begin at the key frame before the range. They are copied as "
                               "they were recorded, without sound."),
                            this);
    note->setWordWrap(true);
    constexpr int shownCameras = 6;
    m_cameras->setFixedHeight(m_cameras->sizeHintForRow(0) *
                                  std::min(shownCameras, m_cameras->count()) +
                              2 * m_cameras->frameWidth());
    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    form->addRow(tr("Cameras"), m_cameras);
    form->addRow(m_range);
    form->addRow(tr("Folder"), m_folder);
    form->addRow(QString(), note);
    form->addRow(QString(), m_message);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addLayout(form);
    layout->addWidget(m_buttons);
}

ClipPlan ClipDialog::planWithoutEvents() const
{
    ClipPlan plan{.range = m_range->range(), .folder = m_folder->folder()};
    for (int i = 0; i < m_cameras->count(); ++i)
        if (m_cameras->item(i)->checkState() == Qt::Checked)
            plan.cameras.append(m_choices[i]);
    return plan;
}

ClipPlan ClipDialog::plan(const Events& events) const
{
    ClipPlan plan = planWithoutEvents();
    QBitArray wanted(events.tracks().size());
    for (qsizetype track = 0; track < wanted.size(); ++track) {
        const QString& identifier = events.tracks()[track];
        wanted.setBit(track, identifier.isEmpty() || std::ranges::count(plan.cameras, identifier,
                                                                        &Camera::identifier) > 0);
    }
    plan.events = EventWriter(events, m_choices.first().times.zone(), CsvWriter::userSeparator());
    for (qsizetype i = events.firstFrom(plan.range.begin);
         i < events.size() && events.timeAt(i) < plan.range.end; ++i)
        if (wanted.testBit(events.trackAt(i)))
            plan.events.add(i);
    return plan;
}

void ClipDialog::checkPlan()
{
    const ClipPlan wanted = planWithoutEvents();
    const qint64 length = wanted.length();
    if (wanted.cameras.isEmpty())
        m_message->setText(tr("No camera is chosen."));
    else if (length == 0)
        m_message->setText(tr("No files show this range."));
    else if (const QString fault = m_folder->fault(); !fault.isEmpty())
        m_message->setText(fault);
    else
        m_message->setText(tr("Recorded time: %1").arg(StringHelper::duration(length)));
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(length > 0 && m_folder->fault().isEmpty());
}

} // namespace Review
