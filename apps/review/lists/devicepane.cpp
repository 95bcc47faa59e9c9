// SPDX-License-Identifier: MIT
#include "devicepane.h"

#include "deviceaddress.h"
#include "devicetree.h"
#include "look/listlook.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PHeaderCheckMenu>
#include <CorvelGui/PIpRangeDialog>
#include <Hueloft/PMessageBox>

#include <QAction>
#include <QHeaderView>
#include <QLocale>
#include <QPointer>
#include <QVBoxLayout>

using CorvelGui::FilterLineEdit;
using CorvelGui::PIpRangeDialog;
using CorvelGui::TrackDescription;

namespace Review {

namespace {

constexpr qint64 mostCameras = 256;

} // namespace

DevicePane::DevicePane(const Clock& clock, Selection& selection, QWidget* parent)
    : Translated(parent)
    , m_filter(new FilterLineEdit)
    , m_tree(new DeviceTree(clock, selection))
    , m_addRange(new QAction(m_tree))
    , m_remove(new QAction(m_tree))
    , m_separator(new QAction(m_tree))
    , m_expand(new QAction(m_tree))
    , m_collapse(new QAction(m_tree))
{
    new CorvelGui::PHeaderCheckMenu(m_tree->header());
    m_remove->setShortcut(QKeySequence::Delete);
    m_remove->setShortcutContext(Qt::WidgetShortcut);
    m_remove->setEnabled(false);
    m_separator->setSeparator(true);
    m_tree->addActions(treeActions());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(ListLook::place(m_filter));
    layout->addWidget(m_tree);

    connect(m_filter, &FilterLineEdit::filterChanged, m_tree, &DeviceTree::showRows);
    connect(m_tree, &DeviceTree::checkedTracksChanged, this, &DevicePane::checkedTracksChanged);
    connect(m_tree, &DeviceTree::told, this, &DevicePane::told);
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this,
            [this] { m_remove->setEnabled(m_tree->canRemoveSelected()); });
    connect(m_addRange, &QAction::triggered, this, &DevicePane::askForRange);
    connect(m_remove, &QAction::triggered, m_tree, &DeviceTree::removeSelected);
    connect(m_expand, &QAction::triggered, m_tree,
            [this] { m_tree->ExpandCollapseAll(nullptr, true); });
    connect(m_collapse, &QAction::triggered, m_tree,
            [this] { m_tree->ExpandCollapseAll(nullptr, false); });
    // Keys of the window work from the start; a filter field would take them for text.
    m_tree->setFocus();
    retranslate();
}

void DevicePane::removeAll()
{
    m_tree->removeAll();
}

void DevicePane::setReview(const ReviewData& review)
{
    m_tree->setReview(review);
}

QList<TrackDescription> DevicePane::checkedTracks() const
{
    return m_tree->checkedTracks();
}

QSet<QString> DevicePane::uncheckedTracks() const
{
    return m_tree->uncheckedTracks();
}

QList<NamedState> DevicePane::statesAt(qint64 msecs) const
{
    return m_tree->statesAt(msecs);
}

QList<QAction*> DevicePane::treeActions() const
{
    return {m_addRange, m_remove, m_separator, m_expand, m_collapse};
}

void DevicePane::askForRange()
{
    // The dialog keeps what was typed until it can be used. It goes with the pane.
    const QPointer<PIpRangeDialog> dialog = new PIpRangeDialog(this);
    constexpr int usualMask = 24;
    dialog->setMask(usualMask);
    while (dialog && dialog->exec() == QDialog::Accepted && dialog) {
        const auto address = DeviceAddress::parse(dialog->getIp());
        const int prefix = dialog->getMask();
        const qint64 room = DeviceAddress::roomIn(prefix);
        if (address && room <= mostCameras) {
            addRange(*address, prefix);
            break;
        }
        Hueloft::PMessageBox::Information(
            dialog, tr("Add camera range"),
            tr("The range %1/%2 has %3 addresses, but at most %4 cameras can be added at a time. "
               "A longer mask makes the range smaller.")
                .arg(dialog->getIp())
                .arg(prefix)
                .arg(QLocale().toString(room))
                .arg(mostCameras));
    }
    delete dialog;
}

void DevicePane::addRange(quint32 address, int prefix)
{
    const QList<quint32> addresses = DeviceAddress::network(address, prefix);
    const int added = m_tree->addCameras(addresses);
    const int known = int(addresses.size()) - added;
    QString text = tr("%n camera(s) added.", nullptr, added);
    if (known > 0)
        text += u' ' + tr("%n address(es) had a camera already.", nullptr, known);
    Q_EMIT told(text);
}

void DevicePane::retranslate()
{
    m_filter->setAccessibleName(tr("Filter cameras"));
    m_tree->setAccessibleName(tr("Cameras"));
    m_addRange->setText(tr("&Add camera range…"));
    m_remove->setText(tr("&Remove added cameras"));
    m_expand->setText(tr("&Expand all"));
    m_collapse->setText(tr("&Collapse all"));
}

} // namespace Review
