// SPDX-License-Identifier: MIT
#include "lists/deviceaddress.h"
#include "lists/devicepane.h"
#include "lists/devicetree.h"
#include "lists/eventtexts.h"

#include "samplewindow.h"
#include "session/clock.h"
#include "session/selection.h"
#include "testsupport.h"
#include "times.h"
#include "window/reviewpanes.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/RangeSlider>

#include <QScrollBar>
#include <QStatusBar>

using namespace Review;
using CorvelGui::FilterLineEdit;
using CorvelGui::PIpRangeDialog;

namespace {

/// Texts of times do not sort as instants do, the kinds not as their names, and durations and
/// severities not as their texts.
ReviewData review()
{
    const auto time = [](const char* text) {
        return QDateTime::fromString(QLatin1StringView(text), Qt::ISODate).toMSecsSinceEpoch();
    };
    return {.tracks = {{u"a"_s, u"<b>Gate</b>"_s, monday, monday + day, {{monday, monday + hour}}},
                       {u"b"_s, u"Fence"_s, monday, monday + hour, {}},
                       {u"10.0.0.2"_s, u"Roof"_s, monday, monday + day, {{monday, monday + day}}}},
            .events = {
                {time("2026-02-28T12:00:00Z"), u"person"_s, u"No 10"_s, u"a"_s, 11 * hour},
                {time("2026-03-01T12:00:00Z"), u"car"_s, u"no 9"_s, u"b"_s, 2'500, Severity::None},
                {time("2026-03-02T06:00:00Z"), u"alarm"_s, u"Älter"_s, u"a"_s}}};
}

FilterLineEdit* filter(const SampleWindow& sample, const QString& accessibleName)
{
    const auto fields = sample.window.findChildren<FilterLineEdit*>();
    const auto found = std::ranges::find(fields, accessibleName, &QWidget::accessibleName);
    return found == fields.end() ? nullptr : *found;
}

} // namespace

class TestReviewLists : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void eventsSort()
    {
        const QString person = u"No 10"_s;
        const QString vehicle = u"no 9"_s;
        const QString alarm = u"Älter"_s;
        for (auto [column, texts] :
             {std::pair(EventTexts::Time, QStringList{person, vehicle, alarm}),
              {EventTexts::Kind, {alarm, person, vehicle}},
              {EventTexts::Text, {alarm, vehicle, person}},
              {EventTexts::Track, {person, alarm, vehicle}},
              {EventTexts::Duration, {alarm, vehicle, person}},
              {EventTexts::Severity, {vehicle, person, alarm}}}) {
            const SampleWindow sample(u"UTC"_s, {}, review());
            sample.events()->sortByColumn(column, Qt::AscendingOrder);
            QCOMPARE(sample.shownEvents(EventTexts::Text), texts);

            // What is hidden and what is current are events, not rows.
            filter(sample, u"Filter events"_s)->setText(u"no"_s);
            texts.removeOne(alarm);
            const auto at = [&] {
                return int(sample.shownEvents(EventTexts::Text).indexOf(vehicle));
            };
            sample.events()->selectRow(at());
            sample.events()->sortByColumn(column, Qt::DescendingOrder);
            std::ranges::reverse(texts);
            QCOMPARE(sample.shownEvents(EventTexts::Text).count(), 2);
            QCOMPARE(sample.events()->currentIndex().row(), at());
            if (column != EventTexts::Track)
                QCOMPARE(sample.shownEvents(EventTexts::Text), texts);
        }
    }

    void eventsAreFiltered()
    {
        const SampleWindow sample(u"UTC"_s, {}, review());
        const QImage timeline = sample.ruler()->grab().toImage();
        FilterLineEdit* field = filter(sample, u"Filter events"_s);
        const auto shown = [&](const QString& text) {
            field->setText(text);
            return sample.shownEvents(EventTexts::Text).join(u", "_s);
        };
        QCOMPARE(shown(u"ÄLT"_s), u"Älter"_s);
        QCOMPARE(shown(u"vehicle"_s), u"no 9"_s); // not "car", as in the file
        QCOMPARE(shown(u"<B>"_s), u"No 10, Älter"_s);
        QCOMPARE(shown(u"01.03"_s), u"no 9"_s);
        QCOMPARE(shown(u"0:00:02.500"_s), u"no 9"_s);
        QCOMPARE(shown(u"informa"_s), u"No 10"_s);
        field->setText({});
        auto* durations = sample.window.findChild<CorvelGui::RangeSlider*>();
        const std::tuple<int, int, QString> rows[] = {
            {0, 1, u"Älter"_s}, {2, 3, u"no 9"_s}, {2, 13, u"No 10, no 9"_s}, {0, 13, {}}};
        for (const auto& [shortest, longest, texts] : rows) {
            durations->setValues(shortest, longest);
            if (!texts.isEmpty())
                QCOMPARE(shown({}), texts);
        }
        QCOMPARE(shown(u"informa"_s), u"No 10"_s);
        QCOMPARE(sample.ruler()->grab().toImage(), timeline);

        // The rows follow what the cells say in another zone.
        sample.enterZone(u"Australia/Darwin"_s);

        QCOMPARE(sample.shownEvents(EventTexts::Text).size(), 1);
        QCOMPARE(shown(u"12:00"_s), QString());
        QCOMPARE(shown(u"21:30"_s), u"No 10, no 9"_s);
        QCOMPARE(shown({}), u"No 10, no 9, Älter"_s);
    }

    void optionalColumns()
    {
        SampleWindow sample(u"UTC"_s, {}, review());
        const auto areShown = [&] {
            return std::pair(!sample.events()->isColumnHidden(EventTexts::Duration),
                             !sample.events()->isColumnHidden(EventTexts::Severity));
        };
        QCOMPARE(areShown(), std::pair(true, true));
        // The keyboard is seen.
        sample.events()->setFocus();
        const QPoint cell = sample.events()->visualRect(sample.events()->currentIndex()).topLeft();
        const QColor frame = sample.events()->palette().color(QPalette::HighlightedText);
        QWidget* cells = sample.events()->viewport();
        QTRY_COMPARE(cells->grab().toImage().pixelColor(cell + QPoint(1, 1)), frame);
        // Going to an event leaves the columns in view.
        sample.window.resize(600, 400);
        QScrollBar* columns = sample.events()->horizontalScrollBar();
        QTRY_VERIFY(columns->maximum() > 0);
        columns->setValue(columns->maximum());
        sample.events()->goTo(1);
        QCOMPARE(columns->value(), columns->maximum());
        ReviewData other = review();
        other.events = {{monday, {}, {}, {}, 0, Severity::Warning}};
        sample.window.setReview(other);
        QCOMPARE(areShown(), std::pair(false, true));
        // The user's choice stays while it can.
        sample.events()->hideColumn(EventTexts::Severity);
        sample.window.setReview(other);
        QCOMPARE(areShown(), std::pair(false, false));
    }

    void stateFollowsTheIndicator()
    {
        const SampleWindow sample(u"Australia/Darwin"_s, {}, review());
        QTreeWidgetItem* gate = sample.device(u"<b>Gate</b>"_s);
        const auto stateAt = [&](qint64 msecs) {
            Q_EMIT sample.ruler()->indicatorPositionChanged(quint64(msecs), 0);
            return gate->text(DeviceItem::State);
        };
        QCOMPARE(stateAt(monday), u"Recorded"_s);
        const QVariant toolTip = gate->data(DeviceItem::Address, Qt::ToolTipRole);
        QVERIFY(toolTip.toString().contains(u"&lt;b&gt;Gate&lt;/b&gt;"_s));
        QVERIFY(!toolTip.toString().contains(u"<b>Gate"_s));
        QCOMPARE(stateAt(monday + 2 * hour), u"No recording"_s);
        QCOMPARE(stateAt(monday - hour), u"Nothing known"_s);
    }

    void groupChecksItsCameras()
    {
        const SampleWindow sample(u"UTC"_s, {}, review());
        QTreeWidgetItem* group = sample.device(u"Cameras"_s);
        QSignalSpy changes(sample.window.findChild<DevicePane*>(),
                           &DevicePane::checkedTracksChanged);
        sample.device(u"Roof"_s)->setCheckState(0, Qt::Unchecked);
        QCOMPARE(group->checkState(0), Qt::PartiallyChecked);
        group->setCheckState(0, Qt::Unchecked);
        QCOMPARE(sample.shownEvents(EventTexts::Text), QStringList());
        QCOMPARE(changes.size(), 2);

        // What the filter hides is left alone.
        filter(sample, u"Filter cameras"_s)->setText(u"fence"_s);
        group->setCheckState(0, Qt::Checked);
        QCOMPARE(group->checkState(0), Qt::PartiallyChecked);
        QCOMPARE(sample.shownEvents(EventTexts::Text), QStringList{u"no 9"_s});
    }

    void rangeAddsCameras()
    {
        SampleWindow sample(u"UTC"_s, {}, review());
        sample.device(u"Fence"_s)->setCheckState(0, Qt::Unchecked);
        int refusals = 0;
        const auto add = [&](const QString& address, int prefix) {
            whenShown<PIpRangeDialog>(this, [&, address, prefix](PIpRangeDialog& dialog) {
                dialog.findChild<QLineEdit*>(u"lineEditIp"_s)->setText(address);
                auto* masks = dialog.findChild<QComboBox*>(u"comboBoxMask"_s);
                QCOMPARE(masks->currentData(), 24);
                if (masks->findData(prefix) < 0)
                    qFatal("There is no such mask");
                masks->setCurrentIndex(masks->findData(prefix));
                if (DeviceAddress::roomIn(prefix) > 256) {
                    whenShown<QMessageBox>(this, [&](QMessageBox& box) {
                        ++refusals;
                        whenShown<PIpRangeDialog>(this,
                                                  [](PIpRangeDialog& again) { again.reject(); });
                        box.accept();
                    });
                }
                QMetaObject::invokeMethod(&dialog, "slotAccept");
            });
            sample.action(u"Add camera range…"_s)->trigger();
        };
        // One of the six has a camera with a track already.
        add(u"10.0.0.3"_s, 29);
        QCOMPARE(sample.device(u"Added cameras"_s)->childCount(), 5);
        QVERIFY(sample.window.statusBar()->currentMessage().startsWith(u"5 "_s));
        add(u"10.0.0.6"_s, 28);
        QCOMPARE(sample.device(u"Added cameras"_s)->childCount(), 13);
        add(u"10.0.0.1"_s, 23);
        QCOMPARE(refusals, 1);
        QCOMPARE(sample.device(u"Added cameras"_s)->childCount(), 13);

        sample.device(u"10.0.0.5"_s)->setSelected(true);
        sample.device(u"Roof"_s)->setSelected(true);
        sample.action(u"Remove added cameras"_s)->trigger();
        QCOMPARE(sample.device(u"Added cameras"_s)->childCount(), 12);
        QVERIFY(!sample.action(u"Remove added cameras"_s)->isEnabled());
        QCOMPARE(sample.device(u"Fence"_s)->checkState(0), Qt::Unchecked);
        QCOMPARE(sample.device(u"Roof"_s)->checkState(0), Qt::Checked);

        // The same data in another language, and other data.
        sample.window.findChild<ReviewPanes*>()->setTexts(review());
        QCOMPARE(sample.device(u"Added cameras"_s)->childCount(), 12);
        QCOMPARE(sample.device(u"Fence"_s)->checkState(0), Qt::Unchecked);
        sample.window.setReview(review());
        QCOMPARE(sample.device(u"Added cameras"_s)->childCount(), 0);
        QCOMPARE(sample.device(u"Cameras"_s)->checkState(0), Qt::Checked);
    }

    void addressesSortAndFilter()
    {
        QCOMPARE(DeviceAddress::parse(u"10.1.2.255"_s), std::optional<quint32>(0x0a0102ff));
        for (const QString& bad : {u"10.1.2"_s, u"10.1.2.256"_s, u"10.1.2.+3"_s, u"10.1.2. 3"_s,
                                   u"10.1..3"_s, u"10.1.2.3.4"_s, QString()})
            QVERIFY2(!DeviceAddress::parse(bad), qPrintable(bad));
        QCOMPARE(DeviceAddress::network(0xffffffff, 30), QList<quint32>({0xfffffffd, 0xfffffffe}));
        QCOMPARE(DeviceAddress::network(0, 24).size(), DeviceAddress::roomIn(24));

        const Clock clock(u"UTC"_s);
        Selection selection;
        DeviceTree tree(clock, selection);
        tree.setReview(
            {.tracks = {{u"9.0.0.200"_s, u"b"_s, 0, 0, {}}, {u"-"_s, u"10.0.0.1"_s, 0, 0, {}}},
             .events = {}});
        QCOMPARE(tree.addCameras({0x0a00000a, 0x0a000002, 0x0a000001, 0x0a00000a}), 2);
        const auto shown = [&] {
            QStringList names;
            for (const QTreeWidgetItem* item : tree.GetAllTreeWidgetItems()) {
                if (item->parent() && !item->isHidden())
                    names.append(item->text(DeviceItem::Name));
            }
            return names.join(u' ');
        };
        const auto sortedBy = [&](int column, Qt::SortOrder order) {
            tree.header()->setSortIndicator(column, order);
            return shown();
        };
        QCOMPARE(shown(), u"b 10.0.0.1 10.0.0.2 10.0.0.10"_s);
        QCOMPARE(sortedBy(DeviceItem::Name, Qt::AscendingOrder),
                 u"10.0.0.1 b 10.0.0.2 10.0.0.10"_s);
        QCOMPARE(sortedBy(DeviceItem::Address, Qt::DescendingOrder),
                 u"10.0.0.1 b 10.0.0.10 10.0.0.2"_s);
        tree.showRows(u"B"_s);
        QCOMPARE(shown(), u"b"_s);
        tree.showRows({});
        QCOMPARE(sortedBy(-1, Qt::AscendingOrder), u"b 10.0.0.1 10.0.0.2 10.0.0.10"_s);
    }
};

QTEST_MAIN(TestReviewLists)
#include "tst_reviewlists.moc"
