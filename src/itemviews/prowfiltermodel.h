// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QAbstractProxyModel>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

class QDeadlineTimer;

namespace CorvelGui {

/// The rows of a table model that a filter lets through, in an order of choice: for lists of
/// millions of rows.
///
/// It never keeps the window waiting. Filtering and sorting go on between the events of the window,
/// for some milliseconds at a time. What a filter has found so far is shown, and a new filter takes
/// the place of one that is under way; until a new order is known the old one shows. The source
/// model is read on its own thread only.
///
/// The source must be a table: rows below rows do not show. Rows that come to the source or go from
/// it later find their places at once, or, behind the others, as soon as it is no longer busy;
/// those that only change keep theirs until refilter().
class CORVELGUI_EXPORT PRowFilterModel : public QAbstractProxyModel
{
    Q_OBJECT
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText)
    Q_PROPERTY(std::chrono::milliseconds slice READ slice WRITE setSlice)
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)

public:
    /// Says of a row of the source whether it is shown.
    using Filter = std::function<bool(int row)>;
    /// Compares two rows of the source by a column: less than 0 says that @p row comes first in
    /// ascending order, more than 0 that @p other does.
    using Comparison = std::function<int(int row, int other, int column)>;

    explicit PRowFilterModel(QObject* parent = nullptr);
    ~PRowFilterModel() override;

    void setSourceModel(QAbstractItemModel* source) override;

    /// Shows the rows for which @p filter says so; without a filter all rows, at once.
    void setFilter(const Filter& filter);
    /// Shows the rows in which a cell contains @p text. The text must be in lower case to be found.
    /// An empty one shows all rows.
    void setFilterText(const QString& text);
    /// Empty while setFilter() says what is shown.
    QString filterText() const;
    /// Asks the filter and the order anew, because rows say something else now.
    void refilter();

    /// What is equal stays in the order of the source. A @p column of -1 is that order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    /// Without a comparison, rows sort by their display texts in the order of the user's language:
    /// upper and lower case alike, and numbers in texts by their values.
    void setComparison(const Comparison& comparison);

    /// Whether filtering or sorting is under way.
    bool isBusy() const;
    /// Brings what is under way to its end now, however long that takes.
    void finish();
    /// How long it works between two events of the window; at first 8 ms, and 1 ms at
    /// least.
    void setSlice(std::chrono::milliseconds slice);
    std::chrono::milliseconds slice() const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QModelIndex mapToSource(const QModelIndex& proxyIndex) const override;
    QModelIndex mapFromSource(const QModelIndex& sourceIndex) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// Emitted when filtering or sorting begins, unless something of it was under way, and when all
    /// of it has come to its end.
    void busyChanged(bool busy);

private:
    void connectSource();
    void startOver();
    void useFilter(const Filter& filter);
    std::vector<int> firstFound();
    void startFilter();
    void startSort();
    void work(const QDeadlineTimer& deadline);
    std::vector<int> findUntil(const QDeadlineTimer& deadline);
    void adoptOrder(std::vector<int> order);
    void followWork();
    bool standsBefore(int row, int other) const;
    int compareTexts(int row, int other, int column) const;
    int placeOf(int row) const;
    void addRows(int first, int last);
    void placeRow(int row);
    void beforeRemoval(int first, int last);
    void afterRemoval(int first, int last);
    void passOnChange(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                      const QList<int>& roles);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
