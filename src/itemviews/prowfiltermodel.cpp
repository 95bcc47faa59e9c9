// SPDX-License-Identifier: MIT
#include "prowfiltermodel.h"

#include "frame/stringhelper.h"
#include "slicedsort.h"

#include <QDeadlineTimer>
#include <QTimer>

#include <algorithm>
#include <numeric>
#include <utility>

namespace CorvelGui {

namespace {

using namespace std::chrono_literals;

// Of more rows than these each would cost more than to begin anew.
constexpr int fewRows = 500;

std::vector<int> firstNumbers(int count)
{
    std::vector<int> numbers(size_t(std::max(count, 0)));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

} // namespace

struct PRowFilterModel::Private
{
    std::vector<int> order; ///< all rows of the source that have a place
    std::vector<int> shown; ///< those of them that the filter lets through, as far as it has come
    /// The places of all rows in shown, or -1; empty until it is asked for.
    mutable std::vector<int> places;

    Filter filter;
    bool filtering = false;
    size_t filteredTo = 0; ///< so far in order

    int column = -1;
    Qt::SortOrder direction = Qt::AscendingOrder;
    Comparison comparison;
    QCollator collator;
    std::unique_ptr<SlicedSort> sorting;

    QTimer slices;
    std::chrono::milliseconds slice = 8ms;
    QString filterText;
    bool busy = false;
    bool resetting = false;
};

PRowFilterModel::PRowFilterModel(QObject* parent)
    : QAbstractProxyModel(parent), d(std::make_unique<Private>())
{
    connect(&d->slices, &QTimer::timeout, this, [this] {
        work(QDeadlineTimer(d->slice));
        followWork();
    });
}

PRowFilterModel::~PRowFilterModel() = default;

void PRowFilterModel::setSourceModel(QAbstractItemModel* source)
{
    if (sourceModel())
        disconnect(sourceModel(), nullptr, this, nullptr);
    beginResetModel();
    QAbstractProxyModel::setSourceModel(source);
    startOver();
    if (source)
        connectSource();
}

void PRowFilterModel::connectSource()
{
    using Model = QAbstractItemModel;
    const Model* source = sourceModel();
    const auto begin = [this] {
        if (!std::exchange(d->resetting, true))
            beginResetModel();
    };
    const auto end = [this] {
        startOver();
    };
    connect(source, &Model::modelAboutToBeReset, this, begin);
    connect(source, &Model::modelReset, this, end);
    connect(source, &Model::layoutAboutToBeChanged, this, begin);
    connect(source, &Model::layoutChanged, this, end);
    connect(source, &Model::rowsAboutToBeMoved, this, begin);
    connect(source, &Model::rowsMoved, this, end);
    connect(source, &Model::columnsAboutToBeInserted, this, begin);
    connect(source, &Model::columnsInserted, this, end);
    connect(source, &Model::columnsAboutToBeRemoved, this, begin);
    connect(source, &Model::columnsRemoved, this, end);
    connect(source, &QObject::destroyed, this, [=] {
        begin();
        end();
    });
    const auto isRow = [](const QModelIndex& parent) {
        return !parent.isValid();
    };
    connect(source, &Model::rowsInserted, this,
            [=, this](const QModelIndex& parent, int first, int last) {
                if (isRow(parent))
                    addRows(first, last);
            });
    connect(source, &Model::rowsAboutToBeRemoved, this,
            [=, this](const QModelIndex& parent, int first, int last) {
                if (isRow(parent) && (d->busy || last - first >= fewRows))
                    begin();
                else if (isRow(parent))
                    beforeRemoval(first, last);
            });
    connect(source, &Model::rowsRemoved, this,
            [=, this](const QModelIndex& parent, int first, int last) {
                if (isRow(parent) && d->resetting)
                    end();
                else if (isRow(parent))
                    afterRemoval(first, last);
            });
    connect(source, &Model::dataChanged, this, &PRowFilterModel::passOnChange);
    connect(source, &Model::headerDataChanged, this,
            [this](Qt::Orientation orientation, int first, int last) {
                if (orientation == Qt::Horizontal)
                    Q_EMIT headerDataChanged(orientation, first, last);
            });
}

void PRowFilterModel::startOver()
{
    d->order = firstNumbers(sourceModel() ? sourceModel()->rowCount() : 0);
    d->shown = firstFound();
    d->places.clear();
    d->sorting.reset();
    d->resetting = false;
    endResetModel();
    if (d->column >= 0)
        startSort();
    followWork();
}

QString PRowFilterModel::filterText() const
{
    return d->filterText;
}

void PRowFilterModel::setFilter(const Filter& filter)
{
    d->filterText.clear();
    useFilter(filter);
}

void PRowFilterModel::useFilter(const Filter& filter)
{
    d->filter = filter;
    startFilter();
    followWork();
}

void PRowFilterModel::setFilterText(const QString& text)
{
    d->filterText = text;
    if (text.isEmpty())
        return useFilter({});
    useFilter([this, text](int row) {
        for (int column = 0; column < columnCount(); ++column) {
            if (sourceModel()->index(row, column).data().toString().toLower().contains(text))
                return true;
        }
        return false;
    });
}

void PRowFilterModel::refilter()
{
    if (d->column >= 0)
        startSort();
    startFilter();
    followWork();
}

void PRowFilterModel::sort(int column, Qt::SortOrder order)
{
    if (d->column == column && d->direction == order)
        return;
    d->column = column;
    d->direction = order;
    startSort();
    followWork();
}

void PRowFilterModel::setComparison(const Comparison& comparison)
{
    d->comparison = comparison;
    startSort();
    followWork();
}

bool PRowFilterModel::isBusy() const
{
    return d->busy;
}

void PRowFilterModel::finish()
{
    work(QDeadlineTimer(QDeadlineTimer::Forever));
    followWork();
}

std::chrono::milliseconds PRowFilterModel::slice() const
{
    return d->slice;
}

void PRowFilterModel::setSlice(std::chrono::milliseconds slice)
{
    d->slice = std::max(slice, 1ms);
}

// A short list is filtered at once, without an empty one in between.
std::vector<int> PRowFilterModel::firstFound()
{
    d->filtering = bool(d->filter);
    d->filteredTo = 0;
    return d->filter ? findUntil(QDeadlineTimer(d->slice)) : d->order;
}

void PRowFilterModel::startFilter()
{
    std::vector<int> shown = firstFound();
    if (shown == d->shown)
        return;
    beginResetModel();
    d->shown = std::move(shown);
    d->places.clear();
    endResetModel();
}

std::vector<int> PRowFilterModel::findUntil(const QDeadlineTimer& deadline)
{
    constexpr size_t rowsBetweenLooks = 64;
    std::vector<int> found;
    for (; d->filteredTo < d->order.size(); ++d->filteredTo) {
        if (d->filteredTo % rowsBetweenLooks == 0 && deadline.hasExpired())
            return found;
        if (const int row = d->order[d->filteredTo]; d->filter(row))
            found.push_back(row);
    }
    d->filtering = false;
    return found;
}

void PRowFilterModel::startSort()
{
    if (d->column < 0) {
        d->sorting.reset();
        adoptOrder(firstNumbers(int(d->order.size())));
        return d->filtering ? startFilter() : void();
    }
    d->collator = StringHelper::naturalOrder();
    d->sorting = std::make_unique<SlicedSort>(
        d->order, [this](int row, int other) { return standsBefore(row, other); });
}

void PRowFilterModel::work(const QDeadlineTimer& deadline)
{
    if (d->filtering) {
        const std::vector<int> found = findUntil(deadline);
        if (!found.empty()) {
            const auto first = int(d->shown.size());
            beginInsertRows({}, first, first + int(found.size()) - 1);
            d->shown.insert(d->shown.end(), found.begin(), found.end());
            d->places.clear();
            endInsertRows();
        }
    }
    if (!d->filtering && d->sorting && d->sorting->run(deadline)) {
        const std::unique_ptr<SlicedSort> done = std::move(d->sorting);
        adoptOrder(done->take());
    }
}

void PRowFilterModel::followWork()
{
    const auto isWorking = [this] {
        return d->filtering || d->sorting;
    };
    const int rows = sourceModel() ? sourceModel()->rowCount() : 0;
    if (!isWorking() && int(d->order.size()) < rows)
        addRows(int(d->order.size()), rows - 1);
    const bool busy = isWorking();
    if (busy && !d->slices.isActive())
        d->slices.start(0);
    else if (!busy)
        d->slices.stop();
    if (std::exchange(d->busy, busy) != busy)
        Q_EMIT busyChanged(busy);
}

void PRowFilterModel::adoptOrder(std::vector<int> order)
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& index : before)
        after.append(createIndex(d->shown[size_t(index.row())], index.column()));

    std::vector<bool> isShown(order.size());
    for (const int row : d->shown)
        isShown[size_t(row)] = true;
    d->shown.clear();
    std::ranges::copy_if(order, std::back_inserter(d->shown),
                         [&](int row) { return isShown[size_t(row)]; });
    d->order = std::move(order);
    d->places.clear();

    for (QModelIndex& index : after)
        index = createIndex(placeOf(index.row()), index.column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

bool PRowFilterModel::standsBefore(int row, int other) const
{
    if (d->column >= 0) {
        const int compared = d->comparison ? d->comparison(row, other, d->column)
                                           : compareTexts(row, other, d->column);
        if (compared != 0)
            return (compared < 0) == (d->direction == Qt::AscendingOrder);
    }
    return row < other;
}

int PRowFilterModel::compareTexts(int row, int other, int column) const
{
    const auto text = [&](int of) {
        return sourceModel()->index(of, column).data().toString();
    };
    return d->collator.compare(text(row), text(other));
}

int PRowFilterModel::placeOf(int row) const
{
    if (d->places.empty()) {
        d->places.assign(d->order.size(), -1);
        for (size_t place = 0; place < d->shown.size(); ++place)
            d->places[size_t(d->shown[place])] = int(place);
    }
    return size_t(row) < d->places.size() ? d->places[size_t(row)] : -1;
}

void PRowFilterModel::addRows(int first, int last)
{
    const bool areBehind = first == int(d->order.size());
    if (areBehind && (d->filtering || d->sorting))
        return; // until that is done
    if (d->filtering || d->sorting || last - first >= fewRows) {
        beginResetModel();
        return startOver();
    }
    const int count = last - first + 1;
    for (std::vector<int>* rows : {&d->order, &d->shown}) {
        for (int& row : *rows)
            row += row >= first ? count : 0;
    }
    for (int row = first; row <= last; ++row)
        placeRow(row);
}

void PRowFilterModel::placeRow(int row)
{
    const auto before = [this](int one, int other) {
        return standsBefore(one, other);
    };
    d->order.insert(std::ranges::lower_bound(d->order, row, before), row);
    d->places.clear();
    if (d->filter && !d->filter(row))
        return;
    const auto place = std::ranges::lower_bound(d->shown, row, before);
    const auto number = int(place - d->shown.begin());
    beginInsertRows({}, number, number);
    d->shown.insert(place, row);
    endInsertRows();
}

void PRowFilterModel::beforeRemoval(int first, int last)
{
    const auto goes = [=](int row) {
        return first <= row && row <= last;
    };
    for (int row = first; row <= last; ++row) {
        const int place = placeOf(row);
        if (place < 0)
            continue;
        beginRemoveRows({}, place, place);
        d->shown.erase(d->shown.begin() + place);
        d->places.clear();
        endRemoveRows();
    }
    std::erase_if(d->order, goes);
}

void PRowFilterModel::afterRemoval(int first, int last)
{
    for (std::vector<int>* rows : {&d->order, &d->shown}) {
        for (int& row : *rows)
            row -= row > last ? last - first + 1 : 0;
    }
    d->places.clear();
}

void PRowFilterModel::passOnChange(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                   const QList<int>& roles)
{
    if (topLeft.parent().isValid() || d->shown.empty())
        return;
    const auto say = [&](int first, int last) {
        Q_EMIT dataChanged(index(first, topLeft.column()), index(last, bottomRight.column()),
                           roles);
    };
    if (bottomRight.row() - topLeft.row() >= fewRows)
        return say(0, rowCount() - 1);
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        if (const int place = placeOf(row); place >= 0)
            say(place, place);
    }
}

QModelIndex PRowFilterModel::index(int row, int column, const QModelIndex& parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex PRowFilterModel::parent(const QModelIndex&) const
{
    return {};
}

int PRowFilterModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(d->shown.size());
}

int PRowFilterModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || !sourceModel() ? 0 : sourceModel()->columnCount();
}

bool PRowFilterModel::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0 && columnCount(parent) > 0;
}

QModelIndex PRowFilterModel::mapToSource(const QModelIndex& proxyIndex) const
{
    if (!proxyIndex.isValid() || !sourceModel())
        return {};
    return sourceModel()->index(d->shown[size_t(proxyIndex.row())], proxyIndex.column());
}

QModelIndex PRowFilterModel::mapFromSource(const QModelIndex& sourceIndex) const
{
    const int place =
        sourceIndex.isValid() && !sourceIndex.parent().isValid() ? placeOf(sourceIndex.row()) : -1;
    return place < 0 ? QModelIndex() : createIndex(place, sourceIndex.column());
}

QVariant PRowFilterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (!sourceModel() || section < 0)
        return {};
    if (orientation == Qt::Vertical)
        section = size_t(section) < d->shown.size() ? d->shown[size_t(section)] : -1;
    return sourceModel()->headerData(section, orientation, role);
}

} // namespace CorvelGui
