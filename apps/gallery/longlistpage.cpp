// SPDX-License-Identifier: MIT
#include "longlistpage.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PHeaderCheckMenu>
#include <CorvelGui/PListActions>
#include <CorvelGui/PRowFilterModel>

#include <QAbstractTableModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableView>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// Passages through gates: a row says what it shows when it is asked.
class Passages : public QAbstractTableModel
{
public:
    static constexpr int count = 1'000'000;

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count; }
    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : ColumnCount;
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        const QString number = QString::number(value(index.row(), index.column()));
        return index.column() == Gate ? LongListPage::tr("Gate %1").arg(number) : number;
    }

    static int compare(int row, int other, int column)
    {
        return value(row, column) - value(other, column);
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        const QString titles[] = {LongListPage::tr("Number"), LongListPage::tr("Gate"),
                                  LongListPage::tr("Badge")};
        return titles[section];
    }

private:
    enum Column { Number, Gate, Badge, ColumnCount };

    static int value(int row, int column)
    {
        const quint32 mixed = quint32(row) * 2'654'435'769U;
        switch (column) {
        case Number:
            return row + 1;
        case Gate:
            return int(mixed >> 28);
        default:
            return int(mixed % 900'000) + 100'000;
        }
    }
};

} // namespace

LongListPage::LongListPage(QWidget* parent)
    : QWidget(parent), m_rows(new PRowFilterModel(this)), m_count(new QLabel)
{
    m_rows->setSourceModel(new Passages(this));
    m_rows->setComparison(&Passages::compare);
    auto* list = new QTableView;
    list->setAccessibleName(tr("Passages"));
    list->setModel(m_rows);
    list->setAlternatingRowColors(true);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->verticalHeader()->hide();
    // Rows of one height need not be measured.
    list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    list->horizontalHeader()->setStretchLastSection(true);
    list->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    list->horizontalHeader()->setSortIndicatorClearable(true);
    list->setSortingEnabled(true);
    list->setMinimumSize(720, 360);
    (new PListActions(list))->offer();

    auto* filter = new FilterLineEdit;
    filter->setAccessibleName(tr("Filter"));
    connect(filter, &QLineEdit::textChanged, m_rows,
            [this](const QString& text) { m_rows->setFilterText(text.toLower()); });
    auto* columns = new QPushButton(tr("Columns"));
    columns->setMenu(new PHeaderCheckMenu(list->horizontalHeader()));
    auto* exporting = new QPushButton(tr("Export…"));
    connect(exporting, &QPushButton::clicked, list,
            [list] { PListActions::exportSelection(*list); });
    connect(m_rows, &QAbstractItemModel::modelReset, this, &LongListPage::showCount);
    connect(m_rows, &QAbstractItemModel::rowsInserted, this, &LongListPage::showCount);
    connect(m_rows, &PRowFilterModel::busyChanged, this, &LongListPage::showCount);

    auto* grid = new QGridLayout(this);
    grid->addWidget(filter, 0, 0);
    grid->addWidget(columns, 0, 1);
    grid->addWidget(exporting, 0, 2);
    grid->addWidget(list, 1, 0, 1, 3);
    grid->addWidget(m_count, 2, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);
    showCount();
}

void LongListPage::showCount()
{
    const QString count = QLocale().toString(m_rows->rowCount());
    m_count->setText(m_rows->isBusy() ? tr("%1 rows so far").arg(count) : tr("%1 rows").arg(count));
}

} // namespace Gallery
