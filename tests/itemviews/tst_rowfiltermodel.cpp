// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PRowFilterModel>

#include <QAbstractItemModelTester>
#include <QDeadlineTimer>
#include <QStandardItemModel>

using CorvelGui::PRowFilterModel;

namespace {

QStringList texts(const QAbstractItemModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, 0).data().toString());
    return texts;
}

/// What a view shows that goes by the signals of its model alone.
struct View
{
    explicit View(const PRowFilterModel& model)
    {
        using Model = QAbstractItemModel;
        const auto reload = [&] {
            shown = texts(model);
        };
        QObject::connect(&model, &Model::modelReset, &context, reload);
        QObject::connect(&model, &Model::layoutChanged, &context, reload);
        QObject::connect(&model, &Model::rowsInserted, &context,
                         [&](const QModelIndex&, int first, int last) {
                             for (int row = first; row <= last; ++row)
                                 shown.insert(row, model.index(row, 0).data().toString());
                         });
        QObject::connect(&model, &Model::rowsRemoved, &context,
                         [&](const QModelIndex&, int first, int last) {
                             shown.remove(first, last - first + 1);
                         });
        QObject::connect(&model, &Model::dataChanged, &context,
                         [&](const QModelIndex& first, const QModelIndex& last) {
                             for (int row = first.row(); row <= last.row(); ++row)
                                 shown[row] = model.index(row, 0).data().toString();
                         });
        QObject::connect(&model, &PRowFilterModel::busyChanged, &context,
                         [&](bool now) { busy = now; });
    }

    QObject context;
    QStringList shown;
    bool busy = false;
};

/// A model that gets rows at random and a filter on it, beside what they must show.
struct Play
{
    explicit Play(quint32 seed) : random(seed)
    {
        filtered.setSlice(std::chrono::milliseconds(seed % 3 * 4));
        filtered.setSourceModel(&source);
    }

    int below(int limit) { return int(random.bounded(limit)); }
    QString word() { return QString::number(below(30)) + u"xX"_s[below(2)]; }

    void insert(int count)
    {
        const int at = below(2) ? source.rowCount() : below(source.rowCount() + 1);
        QList<QStandardItem*> items;
        for (; count > 0; --count)
            items.append(new QStandardItem(word()));
        if (items.size() == 1)
            source.insertRow(at, items);
        else if (source.columnCount() == 0)
            source.appendColumn(items);
        else
            source.invisibleRootItem()->insertRows(at, items);
    }

    void change()
    {
        const int rows = source.rowCount();
        const int kind = below(8);
        if (kind == 0) {
            insert(rows < 500 ? 700 : 1);
        } else if (kind <= 2 || (kind <= 4 && rows == 0)) {
            insert(1 + below(3));
        } else if (kind == 3) {
            const int first = below(rows);
            source.removeRows(first, std::min(rows - first, below(8) == 0 ? 600 : 3));
        } else if (kind == 4) {
            const int first = below(rows);
            const int last = std::min(rows - 1, first + below(2) * 600);
            source.blockSignals(true);
            for (int row = first; row <= last; ++row)
                source.item(row)->setText(word());
            source.blockSignals(false);
            Q_EMIT source.dataChanged(source.index(first, 0), source.index(last, 0));
            filtered.refilter();
        } else if (kind == 5) {
            text = below(3) == 0 ? QString() : QString::number(below(10));
            filtered.setFilterText(text);
        } else {
            column = below(3) - 1;
            direction = below(2) ? Qt::AscendingOrder : Qt::DescendingOrder;
            filtered.sort(std::min(column, 0), direction);
        }
    }

    QStringList expected() const
    {
        QStringList all = texts(source);
        all.removeIf([&](const QString& word) { return !word.contains(text); });
        const auto number = [](const QString& word) {
            return QStringView(word).chopped(1).toInt();
        };
        if (column >= 0 && direction == Qt::AscendingOrder)
            std::ranges::stable_sort(all, {}, number);
        else if (column >= 0)
            std::ranges::stable_sort(all, std::ranges::greater(), number);
        return all;
    }

    QRandomGenerator random;
    QStandardItemModel source;
    PRowFilterModel filtered;
    const View view{filtered};
    QString text;
    int column = -1;
    Qt::SortOrder direction = Qt::AscendingOrder;
};

} // namespace

class TestRowFilterModel : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    // The order of texts is that of a language.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void showsWhatASimpleModelDoes()
    {
        for (quint32 seed = 0; seed < 12; ++seed) {
            Play play(seed);
            // It looks at all rows after every change, which takes long.
            std::optional<QAbstractItemModelTester> tester;
            if (seed == 0)
                tester.emplace(&play.filtered,
                               QAbstractItemModelTester::FailureReportingMode::Fatal);
            const PRowFilterModel& filtered = play.filtered;
            for (int change = 0; change < 60; ++change) {
                const QPersistentModelIndex kept =
                    filtered.index(play.below(filtered.rowCount() + 1), 0);
                const QStandardItem* item = play.source.itemFromIndex(filtered.mapToSource(kept));
                const int rows = play.source.rowCount();
                play.change();
                if (play.below(2))
                    QCoreApplication::processEvents();
                QCOMPARE(play.view.busy, filtered.isBusy());
                if (filtered.isBusy() && play.below(3))
                    continue;
                play.filtered.finish();
                QVERIFY(!filtered.isBusy() && !play.view.busy);
                const QStringList expected = play.expected();
                QCOMPARE(texts(filtered), expected);
                QCOMPARE(play.view.shown, expected);
                QCOMPARE(filtered.hasChildren(), !expected.isEmpty());
                if (kept.isValid() && play.source.rowCount() >= rows)
                    QCOMPARE(play.source.itemFromIndex(filtered.mapToSource(kept)), item);
                int mapped = 0;
                for (int row = 0; row < play.source.rowCount(); ++row) {
                    const QModelIndex index = filtered.mapFromSource(play.source.index(row, 0));
                    QVERIFY(!index.isValid() || filtered.mapToSource(index).row() == row);
                    mapped += index.isValid();
                }
                QCOMPARE(mapped, expected.size());
            }
        }
    }

    void worksInSlices()
    {
        QStandardItemModel source(10'000, 1);
        PRowFilterModel filtered;
        filtered.setSlice(std::chrono::milliseconds(0));
        filtered.setSourceModel(&source);
        QSignalSpy busy(&filtered, &PRowFilterModel::busyChanged);
        const auto slowly = [](int row) {
            const QDeadlineTimer work(row % 64 == 0 ? 2 : 0);
            while (!work.hasExpired()) {
            }
            return true;
        };
        filtered.setFilter(slowly);
        QVERIFY(filtered.isBusy());
        const int found = filtered.rowCount();
        QVERIFY(found > 0 && found < source.rowCount());
        QTRY_VERIFY(filtered.rowCount() > found);
        QVERIFY(filtered.isBusy());

        // What comes in the meantime waits for its place.
        source.appendRow(new QStandardItem);
        filtered.setFilter([&](int row) { return row >= 9'999; });
        QTRY_VERIFY(!filtered.isBusy());
        QCOMPARE(filtered.rowCount(), 2);
        QCOMPARE(busy, (QList<QVariantList>{{true}, {false}}));
    }

    void indexesFollowTheirRows()
    {
        QStandardItemModel source;
        for (const char* name : {"b", "c", "a"})
            source.appendRow(new QStandardItem(QString::fromLatin1(name)));
        PRowFilterModel filtered;
        filtered.setSourceModel(&source);
        filtered.setComparison([&](int row, int other, int) {
            return -source.item(row)->text().compare(source.item(other)->text());
        });
        filtered.sort(0);
        filtered.finish();
        QCOMPARE(texts(filtered), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
        QCOMPARE(filtered.headerData(0, Qt::Vertical), source.headerData(1, Qt::Vertical));

        QSignalSpy changes(&filtered, &QAbstractItemModel::dataChanged);
        source.item(1)->setText(u"d"_s);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes[0][0].toModelIndex(), filtered.index(0, 0));
        filtered.setFilterText(u"d"_s);
        QVERIFY(!filtered.mapFromSource(source.index(0, 0)).isValid());

        // Rows below rows are not looked at; any column counts for the text.
        source.setItem(2, 1, new QStandardItem(u"Zebra"_s));
        filtered.setFilterText(u"zebra"_s);
        QCOMPARE(texts(filtered), QStringList{u"a"_s});
        QSignalSpy headers(&filtered, &QAbstractItemModel::headerDataChanged);
        source.setHeaderData(0, Qt::Vertical, u"1"_s);
        QCOMPARE(headers.size(), 0);
        source.setHeaderData(0, Qt::Horizontal, u"Name"_s);
        QCOMPARE(headers.size(), 1);
        changes.clear();
        source.item(2)->appendRow(new QStandardItem(u"zebra"_s));
        source.item(2)->child(0)->setText(u"x"_s);
        source.item(2)->removeRow(0);
        QCOMPARE(texts(filtered), QStringList{u"a"_s});
        QCOMPARE(changes.size(), 0);
        source.removeColumn(1);
        QCOMPARE(filtered.rowCount(), 0);
        QVERIFY(!filtered.headerData(-1, Qt::Horizontal).isValid());
        QVERIFY(!filtered.headerData(0, Qt::Vertical).isValid());

        // A source that goes leaves a model without rows.
        auto gone = std::make_unique<QStandardItemModel>(1, 1);
        filtered.setFilterText({});
        filtered.setSourceModel(gone.get());
        QSignalSpy resets(&filtered, &QAbstractItemModel::modelReset);
        gone.reset();
        QCOMPARE(resets.size(), 1);
        QCOMPARE(filtered.rowCount(), 0);
    }
};

QTEST_MAIN(TestRowFilterModel)
#include "tst_rowfiltermodel.moc"
