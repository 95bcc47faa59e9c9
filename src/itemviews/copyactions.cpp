#include "copyactions.h"

#include <Hueloft/PIconHelper>

#include <QAbstractItemView>
#include <QAction>
#include <QMenu>
#include <QPointer>

namespace CorvelGui {

void CopyActions::create(QAbstractItemView* view)
{
    m_copy = new QAction(view);
    m_copy->setIcon(Hueloft::PIconHelper::GetCopyIcon_32x32(true));
    m_copy->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    m_copyCell = new QAction(view);
    m_copyCell->setIcon(Hueloft::PIconHelper::GetCopyRowsIcon_32x32(true));
    // The everyday keys copy one cell, the longer ones whole rows.
    m_copyCell->setShortcut(QKeySequence::Copy);
}

void CopyActions::setTexts(const Texts& texts)
{
    if (!m_copy)
        return;
    m_copy->setText(texts.copy);
    m_copy->setStatusTip(texts.copyTip);
    m_copyCell->setText(texts.copyCell);
    m_copyCell->setStatusTip(texts.copyCellTip);
}

void CopyActions::runMenu(QAbstractItemView* view, QPoint position) const
{
    if (!m_copy)
        return;
    const QPointer<QMenu> menu = new QMenu(view);
    menu->addAction(m_copy);
    menu->addAction(m_copyCell);
    menu->exec(view->viewport()->mapToGlobal(position));
    delete menu;
}

} // namespace CorvelGui
