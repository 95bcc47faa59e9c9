#include "ptextwidgetitem.h"

#include <QTextDocument>

namespace CorvelGui {

PTextWidgetItem::PTextWidgetItem(int type) : PTableWidgetItem(type) {}

PTextWidgetItem::PTextWidgetItem(const QString& text, int type) : PTableWidgetItem(text, type) {}

bool PTextWidgetItem::operator<(const QTableWidgetItem& other) const
{
    return QTableWidgetItem::operator<(other);
}

QVariant PTextWidgetItem::ToolTipRequested() const
{
    // A tooltip takes for markup what looks like it.
    const QString own = text();
    return Qt::mightBeRichText(own) ? Qt::convertFromPlainText(own) : own;
}

} // namespace CorvelGui
