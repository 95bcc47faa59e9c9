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

/// A model that gets rows at random and a filter on it, beside what they must show.
struct Play
{
    explicit Play(quint32 seed) : random(seed) { filtered.setSourceModel(&source); }

    int below(int limit) { return int(random.bounded(limit)); }
    QString word() { return QString::number(below(30)) + u"xX"_s[below(2)]; }

    void insert(int count)
    {
        const int at = below(source.rowCount() + 1);
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
            source.item(below(rows))->setText(word());
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
            for (int change = 0; change < 60; ++change) {
                play.change();
                if (play.below(2))
                    QCoreApplication::processEvents();
                if (play.below(3))
                    continue;
                play.filtered.finish();
                QVERIFY(!play.filtered.isBusy());
                QCOMPARE(texts(play.filtered), play.expected());
                QCOMPARE(play.filtered.hasChildren(), !play.expected().isEmpty());
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
        const QPersistentModelIndex b = filtered.index(0, 0);
        filtered.setComparison([&](int row, int other, int) {
            return -source.item(row)->text().compare(source.item(other)->text());
        });
        filtered.sort(0);
        filtered.finish();
        QCOMPARE(texts(filtered), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
        QCOMPARE(b.row(), 1);
        QCOMPARE(filtered.mapFromSource(source.index(2, 0)), filtered.index(2, 0));
        QCOMPARE(filtered.headerData(0, Qt::Vertical), source.headerData(1, Qt::Vertical));

        QSignalSpy changes(&filtered, &QAbstractItemModel::dataChanged);
        source.item(1)->setText(u"d"_s);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes[0][0].toModelIndex(), filtered.index(0, 0));
        filtered.setFilterText(u"d"_s);
        QVERIFY(!filtered.mapFromSource(source.index(0, 0)).isValid());

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
