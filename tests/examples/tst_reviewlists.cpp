#include "eventtexts.h"
#include "samplewindow.h"
#include "testsupport.h"
#include "times.h"
#include "whenshown.h"
#include "zonecombo.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PCsvDialog>

#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Review;
using CorvelGui::FilterLineEdit;

namespace {

/// Texts of times do not sort as instants do, and the kinds not as their names.
ReviewData review()
{
    const auto time = [](const char* text) {
        return QDateTime::fromString(QLatin1StringView(text), Qt::ISODate).toMSecsSinceEpoch();
    };
    return {.tracks = {{u"a"_s, u"<b>Gate</b>"_s, monday, monday + day, {{monday, monday + hour}}},
                       {u"b"_s, u"Fence"_s, monday, monday + hour, {}},
                       {u"10.0.0.2"_s, u"Roof"_s, monday, monday + day, {{monday, monday + day}}}},
            .events = {{time("2026-02-28T12:00:00Z"), u"person"_s, u"No 10"_s, u"a"_s},
                       {time("2026-03-01T12:00:00Z"), u"car"_s, u"no 9"_s, u"b"_s},
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
    void eventsSort_data();
    void eventsSort();
    void eventsAreFiltered();
    void eventsAreExported();
};

void TestReviewLists::eventsSort_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("texts");

    const QString person = u"No 10"_s;
    const QString vehicle = u"no 9"_s;
    const QString alarm = u"Älter"_s;
    QTest::newRow("time") << int(EventTexts::Time) << QStringList{person, vehicle, alarm};
    QTest::newRow("kind") << int(EventTexts::Kind) << QStringList{alarm, person, vehicle};
    QTest::newRow("text") << int(EventTexts::Text) << QStringList{alarm, vehicle, person};
    QTest::newRow("track") << int(EventTexts::Track) << QStringList{person, alarm, vehicle};
}

void TestReviewLists::eventsSort()
{
    QFETCH(const int, column);
    const SampleWindow sample(u"UTC"_s, {}, review());
    sample.events()->sortItems(column);
    QTEST(sample.shownEvents(EventTexts::Text), "texts");

    // What is hidden and what is current are events, not rows.
    QFETCH(QStringList, texts);
    filter(sample, u"Filter events"_s)->setText(u"no"_s);
    texts.removeOne(u"Älter"_s);
    sample.events()->setCurrentItem(sample.events()->findItems(u"no 9"_s, Qt::MatchExactly)[0]);
    sample.events()->sortItems(column, Qt::DescendingOrder);
    std::ranges::reverse(texts);
    QCOMPARE(sample.shownEvents(EventTexts::Text).count(), 2);
    QCOMPARE(sample.events()->currentRow(),
             sample.events()->findItems(u"no 9"_s, Qt::MatchExactly)[0]->row());
    if (column != EventTexts::Track)
        QCOMPARE(sample.shownEvents(EventTexts::Text), texts);
}

void TestReviewLists::eventsAreFiltered()
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
    QCOMPARE(sample.ruler()->grab().toImage(), timeline);

    // The rows follow what the cells say in another zone.
    auto* zones = sample.window.findChild<ZoneCombo*>();
    zones->setEditText(u"Australia/Darwin"_s);
    QTest::keyClick(zones, Qt::Key_Return);
    QCOMPARE(sample.shownEvents(EventTexts::Text).size(), 1);
    QCOMPARE(shown(u"12:00"_s), QString());
    QCOMPARE(shown(u"21:30"_s), u"No 10, no 9"_s);
    QCOMPARE(shown({}), u"No 10, no 9, Älter"_s);
}

void TestReviewLists::eventsAreExported()
{
    const QTemporaryDir dir;
    SampleWindow sample(u"UTC"_s, {}, review());
    const auto exported = [&] {
        const QString path = dir.filePath(u"events.csv"_s);
        whenShown<CorvelGui::PCsvDialog>(&sample.window, [&path](CorvelGui::PCsvDialog& dialog) {
            dialog.findChild<QLineEdit*>(u"lineEditExportToFile"_s)->setText(path);
            dialog.findChild<QCheckBox*>(u"checkBoxOpenExcel"_s)->setChecked(false);
            dialog.findChild<QCheckBox*>(u"checkBoxAddColumns"_s)->setChecked(false);
            QMetaObject::invokeMethod(&dialog, "slotAccept");
        });
        sample.action(u"Export events…"_s)->trigger();
        QFile file(path);
        return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
    };
    const QByteArray gate = "\"28.02.2026 12:00:00\";\"Person\";\"No 10\";\"<b>Gate</b>\"\n";
    const QByteArray fence = "\"01.03.2026 12:00:00\";\"Vehicle\";\"no 9\";\"Fence\"\n";
    const QByteArray alarm = "\"02.03.2026 06:00:00\";\"Alarm\";\"Älter\";\"<b>Gate</b>\"\n";
    sample.events()->setCurrentCell(1, 0);
    QCOMPARE(exported(), gate + fence + alarm);
    QCOMPARE(sample.events()->GetSelectedRows(), QList<int>{1});

    // Several selected events, without those that are hidden.
    sample.events()->selectAll();
    filter(sample, u"Filter events"_s)->setText(u"gate"_s);
    QCOMPARE(exported(), gate + alarm);
    QCOMPARE(sample.events()->GetSelectedRows().size(), 3);
    filter(sample, u"Filter events"_s)->setText(u"alarm"_s);
    QCOMPARE(exported(), alarm);
}

QTEST_MAIN(TestReviewLists)
#include "tst_reviewlists.moc"
