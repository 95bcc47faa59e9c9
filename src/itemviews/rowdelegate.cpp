// SPDX-License-Identifier: MIT
#include "rowdelegate.h"

#include "base/readablecolor.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>

namespace CorvelGui {

namespace {

/// What a style sheet draws around the check box counts for nothing in its metrics.
constexpr int frame = 4;

} // namespace

RowDelegate::RowDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize needed = QStyledItemDelegate::sizeHint(option, index);
    if (index.data(Qt::SizeHintRole).isValid())
        return needed;
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    const int box = style->pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget);
    return {needed.width(), std::max(needed.height(), box + frame)};
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(Qt::ForegroundRole).isValid())
        return;
    const bool alternate = option->features.testFlag(QStyleOptionViewItem::Alternate);
    QPalette& palette = option->palette;
    palette.setColor(QPalette::Text, readableOn(palette.color(QPalette::Text),
                                                palette.color(alternate ? QPalette::AlternateBase
                                                                        : QPalette::Base)));
}

} // namespace CorvelGui
