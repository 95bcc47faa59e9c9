// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace Review {

/// Puts widgets side by side, in as many rows as the width asks for, in the middle of the height.
/// What is left of a row goes to its last widget, if that wants to expand.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return int(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    /// All in one row.
    QSize sizeHint() const override;
    /// Each in a row of its own.
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    using Row = std::vector<QLayoutItem*>;

    std::vector<Row> rows(int width) const;
    int heightOf(const Row& row) const;
    void placeRow(const Row& row, const QRect& area) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace Review
