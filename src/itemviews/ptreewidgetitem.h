// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QTreeWidgetItem>

namespace CorvelGui {

/// A row of a PTreeWidget: one tooltip for the whole row, flags named after what the user may do,
/// and marks in the colours of the theme.
///
/// A new row can be selected and is enabled, and nothing else. Like every tree item it is owned by
/// its tree or its parent item. The colours are stored with the cell: they do not follow a later
/// change of the look.
class CORVELGUI_EXPORT PTreeWidgetItem : public QTreeWidgetItem
{
public:
    explicit PTreeWidgetItem(int type = Type);
    /// The item becomes the last child of @p parent.
    explicit PTreeWidgetItem(QTreeWidgetItem* parent, int type = Type);
    /// Copies what the columns hold and the flags; neither place in a tree nor children.
    PTreeWidgetItem(const PTreeWidgetItem& other);
    PTreeWidgetItem& operator=(const PTreeWidgetItem& other);

    /// Whether every column shows ToolTipRequested(), as in a new row, or the tooltip set for it.
    void setOneTooltipForAllColumns(bool one);
    QVariant data(int column, int role) const override;

    void setCheckable();
    void setNotCheckable();
    void setDragable();
    void setNotDragable();
    void setDropable();
    void setNotDropable();
    void setEditable();
    void setNotEditable();

    void setChecked(int column, bool checked);
    /// False for a cell that is checked partly.
    bool isChecked(int column) const;
    bool isUserCheckable() const;

    void setBold(int column, bool bold);
    void setBoldText(int column, const QString& text);
    /// The text in the status red of the look that is active now; bold or not.
    void setRed(int column, bool bold);
    void setGreen(int column, bool bold);
    void setBlue(int column, bool bold);
    void setOrange(int column, bool bold);
    /// The application's text colour; a bold text stays bold.
    void setStandardColor(int column);

    /// Removes and deletes the children, from the first to the last.
    void DeleteAllChildren();

    /// Whether the lower-cased text of some column contains @p text as it stands; a text with
    /// capitals is never found. An item outside a tree finds nothing.
    bool isTextFound(const QString& text) const;

protected:
    /// The tooltip of the whole row; none unless a row type overrides it.
    virtual QVariant ToolTipRequested() const;

private:
    void setFlag(Qt::ItemFlag flag, bool on);
    void mark(int column, const QColor& color, bool bold);

    bool m_oneTooltip = true;
};

} // namespace CorvelGui
