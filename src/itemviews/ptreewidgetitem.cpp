// SPDX-License-Identifier: MIT
#include "ptreewidgetitem.h"

#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QTreeWidget>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr Qt::ItemFlags plainFlags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;

} // namespace

PTreeWidgetItem::PTreeWidgetItem(int type) : QTreeWidgetItem(type)
{
    setFlags(plainFlags);
}

PTreeWidgetItem::PTreeWidgetItem(QTreeWidgetItem* parent, int type) : QTreeWidgetItem(parent, type)
{
    setFlags(plainFlags);
}

PTreeWidgetItem::PTreeWidgetItem(const PTreeWidgetItem& other) = default;
PTreeWidgetItem& PTreeWidgetItem::operator=(const PTreeWidgetItem& other) = default;

void PTreeWidgetItem::setOneTooltipForAllColumns(bool one)
{
    m_oneTooltip = one;
}

QVariant PTreeWidgetItem::data(int column, int role) const
{
    if (m_oneTooltip && role == Qt::ToolTipRole)
        return ToolTipRequested();
    return QTreeWidgetItem::data(column, role);
}

void PTreeWidgetItem::setCheckable()
{
    setFlag(Qt::ItemIsUserCheckable, true);
}

void PTreeWidgetItem::setNotCheckable()
{
    setFlag(Qt::ItemIsUserCheckable, false);
}

void PTreeWidgetItem::setDragable()
{
    setFlag(Qt::ItemIsDragEnabled, true);
}

void PTreeWidgetItem::setNotDragable()
{
    setFlag(Qt::ItemIsDragEnabled, false);
}

void PTreeWidgetItem::setDropable()
{
    setFlag(Qt::ItemIsDropEnabled, true);
}

void PTreeWidgetItem::setNotDropable()
{
    setFlag(Qt::ItemIsDropEnabled, false);
}

void PTreeWidgetItem::setEditable()
{
    setFlag(Qt::ItemIsEditable, true);
}

void PTreeWidgetItem::setNotEditable()
{
    setFlag(Qt::ItemIsEditable, false);
}

void PTreeWidgetItem::setFlag(Qt::ItemFlag flag, bool on)
{
    setFlags(flags().setFlag(flag, on));
}

void PTreeWidgetItem::setChecked(int column, bool checked)
{
    setCheckState(column, checked ? Qt::Checked : Qt::Unchecked);
}

bool PTreeWidgetItem::isChecked(int column) const
{
    return checkState(column) == Qt::Checked;
}

bool PTreeWidgetItem::isUserCheckable() const
{
    return flags().testFlag(Qt::ItemIsUserCheckable);
}

void PTreeWidgetItem::setBold(int column, bool bold)
{
    QFont cellFont = font(column);
    cellFont.setBold(bold);
    setFont(column, cellFont);
}

void PTreeWidgetItem::setBoldText(int column, const QString& text)
{
    setBold(column, true);
    setText(column, text);
}

void PTreeWidgetItem::setRed(int column, bool bold)
{
    mark(column, POrvGuiTheme::statusRed(), bold);
}

void PTreeWidgetItem::setGreen(int column, bool bold)
{
    mark(column, POrvGuiTheme::colorGreen, bold);
}

void PTreeWidgetItem::setBlue(int column, bool bold)
{
    mark(column, POrvGuiTheme::colorBlue, bold);
}

void PTreeWidgetItem::setOrange(int column, bool bold)
{
    mark(column, POrvGuiTheme::colorOrange, bold);
}

void PTreeWidgetItem::mark(int column, const QColor& color, bool bold)
{
    setBold(column, bold);
    setForeground(column, color);
}

void PTreeWidgetItem::setStandardColor(int column)
{
    setForeground(column, QApplication::palette().color(QPalette::Text));
}

void PTreeWidgetItem::DeleteAllChildren()
{
    // Out of the tree together, because each removal costs as much as there are expanded children.
    qDeleteAll(takeChildren());
}

bool PTreeWidgetItem::isTextFound(const QString& text) const
{
    const int columns = treeWidget() ? treeWidget()->columnCount() : 0;
    for (int column = 0; column < columns; ++column) {
        if (this->text(column).toLower().contains(text))
            return true;
    }
    return false;
}

QVariant PTreeWidgetItem::ToolTipRequested() const
{
    return {};
}

} // namespace CorvelGui
