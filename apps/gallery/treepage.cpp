// SPDX-License-Identifier: MIT
#include "treepage.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PTreeWidget>
#include <CorvelGui/PTreeWidgetItem>
#include <CorvelGui/ToolTipHelper>

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using CorvelGui::PTreeWidget;
using CorvelGui::PTreeWidgetItem;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

class CameraItem : public PTreeWidgetItem
{
public:
    CameraItem(QTreeWidgetItem* site, const QString& name, const QString& address)
        : PTreeWidgetItem(site)
    {
        setText(0, name);
        setText(1, address);
        setCheckable();
    }

protected:
    QVariant ToolTipRequested() const override
    {
        CorvelGui::ToolTipHelper toolTip;
        toolTip.AddRow(TreePage::tr("Camera"), text(0));
        toolTip.AddRow(TreePage::tr("Address"), text(1));
        toolTip.AddRow(TreePage::tr("State"), text(2));
        return toolTip.GetToolTip();
    }
};

PTreeWidgetItem* createSite(PTreeWidget* tree, const QString& name)
{
    auto* site = new PTreeWidgetItem;
    site->setBoldText(0, name);
    tree->addTopLevelItem(site);
    return site;
}

void fillTree(PTreeWidget* tree)
{
    using Mark = void (PTreeWidgetItem::*)(int, bool);
    const struct
    {
        QString name;
        QString address;
        QString state;
        Mark mark;
        bool bold;
        bool checked;
    } cameras[] = {
        {u"Entrance"_s, u"10.0.0.2"_s, u"Recording"_s, &PTreeWidgetItem::setGreen, false, true},
        {u"Car park"_s, u"10.0.0.10"_s, u"No connection"_s, &PTreeWidgetItem::setRed, true, true},
        {u"Roof"_s, u"10.0.0.11"_s, u"Updating"_s, &PTreeWidgetItem::setBlue, false, false},
        {u"Loading bay"_s, u"10.0.0.12"_s, u"Disk nearly full"_s, &PTreeWidgetItem::setOrange, true,
         false},
    };
    tree->clear();
    for (const QString& name : {u"Brussels"_s, u"Antwerp"_s, u"Ghent"_s}) {
        PTreeWidgetItem* site = createSite(tree, name);
        for (const auto& camera : cameras) {
            auto* item = new CameraItem(site, camera.name, camera.address);
            item->setChecked(0, camera.checked);
            item->setText(2, camera.state);
            (item->*camera.mark)(2, camera.bold);
        }
    }
    tree->topLevelItem(0)->setExpanded(true);
    tree->resizeAllColumnToContentsWithOffset(20);
}

PTreeWidget* createTree()
{
    auto* tree = new PTreeWidget;
    tree->setHeaderLabels({u"Device"_s, u"Address"_s, u"State"_s});
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setAlternatingRowColors(true);
    tree->InitCopyMenus(true);
    return tree;
}

} // namespace

TreePage::TreePage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    auto* deviceGroup = new QGroupBox(tr("Devices"));
    auto* deviceLayout = new QVBoxLayout(deviceGroup);
    m_devices = createTree();
    m_devices->setAccessibleName(deviceGroup->title());
    m_devices->setFontForHeaderBold();
    m_devices->setMinimumSize(430, 300);
    deviceLayout->addWidget(m_devices);

    auto* buttons = new QHBoxLayout;
    const auto addButton = [buttons](const QString& text) {
        auto* button = new QPushButton(text);
        buttons->addWidget(button);
        return button;
    };
    connect(addButton(tr("Expand all")), &QPushButton::clicked, m_devices,
            [this] { m_devices->ExpandCollapseAll(nullptr, true); });
    connect(addButton(tr("Collapse all")), &QPushButton::clicked, m_devices,
            [this] { m_devices->ExpandCollapseAll(nullptr, false); });
    connect(addButton(tr("Export…")), &QPushButton::clicked, m_devices, &PTreeWidget::CsvExport);
    deviceLayout->addLayout(buttons);
    layout->addWidget(deviceGroup);

    auto* filteredGroup = new QGroupBox(tr("Filtered, with a centred header"));
    auto* filteredLayout = new QVBoxLayout(filteredGroup);
    auto* filter = new CorvelGui::FilterLineEdit;
    filter->setAccessibleName(tr("Filter"));
    filteredLayout->addWidget(filter);
    m_filtered = createTree();
    m_filtered->setAccessibleName(filteredGroup->title());
    m_filtered->setHeaderTextAlignmentCenter();
    m_filtered->setMinimumSize(430, 300);
    filteredLayout->addWidget(m_filtered);
    layout->addWidget(filteredGroup);

    fill();
    connect(filter, &QLineEdit::textChanged, m_filtered,
            [this](const QString& text) { m_filtered->FilterTree(text.toLower()); });
    filter->setText(u"Ant"_s);
}

void TreePage::fill()
{
    fillTree(m_devices);
    m_devices->ScrollToItemAndSelect(m_devices->topLevelItem(0)->child(2), true);
    fillTree(m_filtered);
    m_filtered->topLevelItem(1)->setExpanded(true);
    m_filtered->FilterTree(u"ant"_s);
}

void TreePage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // The colours of the look are stored with the cells.
    if (event->type() == QEvent::StyleChange)
        fill();
}

} // namespace Gallery
