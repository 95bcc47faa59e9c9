// SPDX-License-Identifier: MIT
#include "flowlayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace Review {

namespace {

constexpr int rowGap = 4;

} // namespace

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
    invalidate();
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[size_t(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* item = m_items[size_t(index)].release();
    m_items.erase(m_items.begin() + index);
    invalidate();
    return item;
}

std::vector<FlowLayout::Row> FlowLayout::rows(int width) const
{
    std::vector<Row> rows;
    int used = 0;
    for (const std::unique_ptr<QLayoutItem>& item : m_items) {
        if (item->isEmpty())
            continue;
        const int needed = item->sizeHint().width();
        if (rows.empty() || used + spacing() + needed > width) {
            rows.emplace_back();
            used = needed;
        } else {
            used += spacing() + needed;
        }
        rows.back().push_back(item.get());
    }
    return rows;
}

int FlowLayout::heightOf(const Row& row) const
{
    int height = 0;
    for (const QLayoutItem* item : row)
        height = std::max(height, item->sizeHint().height());
    return height;
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    int height = margins.top() + margins.bottom();
    const std::vector<Row> all = rows(width - margins.left() - margins.right());
    for (const Row& row : all)
        height += heightOf(row) + (&row == &all.front() ? 0 : rowGap);
    return height;
}

QSize FlowLayout::sizeHint() const
{
    QSize size(-spacing(), 0);
    for (const std::unique_ptr<QLayoutItem>& item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize hint = item->sizeHint();
        size = {size.width() + spacing() + hint.width(), std::max(size.height(), hint.height())};
    }
    return size.grownBy(contentsMargins());
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const std::unique_ptr<QLayoutItem>& item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const QRect room = rect.marginsRemoved(contentsMargins());
    int top = room.top() + std::max(0, rect.height() - heightForWidth(rect.width())) / 2;
    for (const Row& row : rows(room.width())) {
        const int height = heightOf(row);
        placeRow(row, {room.left(), top, room.width(), height});
        top += height + rowGap;
    }
}

void FlowLayout::placeRow(const Row& row, const QRect& area) const
{
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    int left = area.left();
    for (QLayoutItem* item : row) {
        const int rest = area.right() + 1 - left;
        const bool takesRest =
            item == row.back() && item->expandingDirections().testFlag(Qt::Horizontal);
        const int width = takesRest ? rest : std::min(item->sizeHint().width(), rest);
        item->setGeometry(
            QStyle::visualRect(direction, area, {left, area.top(), width, area.height()}));
        left += width + spacing();
    }
}

} // namespace Review
