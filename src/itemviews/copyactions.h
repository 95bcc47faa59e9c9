#pragma once

#include <QString>

class QAbstractItemView;
class QAction;
class QPoint;

namespace CorvelGui {

/// The two copy actions of an item view. They belong to the view.
class CopyActions
{
public:
    struct Texts
    {
        QString copy;
        QString copyTip;
        QString copyCell;
        QString copyCellTip;
    };

    /// Makes a new pair; an earlier one stays with the view.
    void create(QAbstractItemView* view);
    /// Does nothing before create().
    void setTexts(const Texts& texts);
    /// Shows both in a modal menu at @p position of the viewport. The view may be deleted
    /// meanwhile. Does nothing before create().
    void runMenu(QAbstractItemView* view, QPoint position) const;

    QAction* copy() const { return m_copy; }
    QAction* copyCell() const { return m_copyCell; }

private:
    QAction* m_copy = nullptr;
    QAction* m_copyCell = nullptr;
};

} // namespace CorvelGui
