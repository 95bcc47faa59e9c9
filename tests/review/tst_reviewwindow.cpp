// SPDX-License-Identifier: MIT
#include "lists/deviceitem.h"
#include "samplewindow.h"
#include "testsupport.h"
#include "times.h"
#include "window/reviewpanes.h"

#include <QDockWidget>
#include <QLayout>

using namespace Review;
using CorvelGui::Ruler;

namespace {

QString enabledActions(const SampleWindow& sample)
{
    QStringList texts;
    for (const QString& text : {u"Zoom in"_s, u"Zoom out"_s, u"Whole period"_s, u"Earlier"_s,
                                u"Later"_s, u"Current time"_s})
        texts += sample.action(text)->isEnabled() ? QStringList{text} : QStringList();
    return texts.join(u", "_s);
}

} // namespace

class TestReviewWindow : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void actionsMoveTheView()
    {
        const SampleWindow sample(u"UTC"_s);
        QVERIFY(sample.says(u"02.03.2026 00:00:00 – 16.03.2026 00:00:00 (UTC)"_s));
        QVERIFY(sample.says(u"Cameras: 4    Recordings: 2,721    Events: 1,632"_s));
        QCOMPARE(enabledActions(sample), u"Zoom in"_s);

        // The level of fourteen days would show the same as the whole period.
        Ruler* ruler = sample.ruler();
        QTest::mouseClick(ruler, Qt::LeftButton, {}, QPoint(ruler->width() * 2 / 5, 5));
        const qint64 time = qint64(ruler->getIndicatorMSecs());
        sample.action(u"Zoom in"_s)->trigger();
        QCOMPARE(enabledActions(sample), u"Zoom in, Zoom out, Whole period, Earlier, Later"_s);
        QCOMPARE(sample.viewSpan(), 7 * day);

        const qint64 begin = qint64(ruler->beginTime());
        sample.action(u"Later"_s)->trigger();
        QCOMPARE(qint64(ruler->beginTime()), begin + 7 * day / 2);
        QCOMPARE(enabledActions(sample),
                 u"Zoom in, Zoom out, Whole period, Earlier, Later, Current time"_s);
        sample.action(u"Current time"_s)->trigger();
        QVERIFY(time > qint64(ruler->beginTime()) && time < qint64(ruler->endTime()));
        sample.action(u"Earlier"_s)->trigger();
        sample.action(u"Earlier"_s)->trigger();
        QCOMPARE(qint64(ruler->beginTime()), monday);
        QCOMPARE(enabledActions(sample), u"Zoom in, Zoom out, Whole period, Later"_s);

        for (int i = 0; i < 10; ++i)
            sample.action(u"Zoom in"_s)->trigger();
        QCOMPARE(sample.viewSpan(), 20 * minute);
        QCOMPARE(enabledActions(sample), u"Zoom out, Whole period, Earlier, Later"_s);
        sample.action(u"Zoom out"_s)->trigger();
        QCOMPARE(sample.viewSpan(), hour);

        sample.action(u"Whole period"_s)->trigger();
        QVERIFY(sample.says(u"02.03.2026 00:00:00 – 16.03.2026 00:00:00 (UTC)"_s));
        QCOMPARE(enabledActions(sample), u"Zoom in"_s);

        // The ruler can be moved beyond the period.
        ruler->onTimelineOffsetChanged(0.75);
        QCOMPARE(enabledActions(sample), u"Zoom in, Whole period, Earlier"_s);
        sample.action(u"Whole period"_s)->trigger();
        QCOMPARE(qint64(ruler->beginTime()), monday);

        sample.action(u"Zoom freely"_s)->trigger();
        sample.action(u"Zoom in"_s)->trigger();
        sample.action(u"Zoom in"_s)->trigger();
        QCOMPARE(sample.viewSpan(), 14 * day / 4);
        sample.action(u"Whole period"_s)->trigger();
        sample.action(u"Previous view"_s)->trigger();
        QCOMPARE(sample.viewSpan(), 14 * day / 4);
        QVERIFY(sample.action(u"Next view"_s)->isEnabled());
    }

    void problemsAreListed()
    {
        QVERIFY(!SampleWindow(u"UTC"_s).window.findChild<QDockWidget*>()->isVisible());

        ProblemList problems;
        for (int line = 2; line < 252; ++line)
            problems.add({u"dir/<b>.csv"_s, line, u"bad"_s});
        const SampleWindow sample(u"UTC"_s, problems);
        const QListWidget* list = sample.window.findChild<QListWidget*>();
        QCOMPARE(list->count(), 101);
        QCOMPARE(list->item(0)->text(), u"<b>.csv:2: bad"_s);
        QCOMPARE(list->item(100)->text(), u"and 150 more"_s);

        QAction* toggle = sample.action(u"Left out: 250"_s);
        QVERIFY(list->isVisible());
        toggle->trigger();
        QVERIFY(!list->isVisible());
    }

    void camerasAreChosen()
    {
        const SampleWindow sample(u"UTC"_s);
        const auto* shown = sample.window.findChild<QComboBox*>();
        QTreeWidgetItem* park = sample.device(u"Car park"_s);
        QTreeWidget* tree = sample.devices();
        const auto click = [&](QTreeWidgetItem* item) {
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                              tree->visualItemRect(item).topLeft() + QPoint(60, 8));
        };
        click(park);
        QCOMPARE(shown->currentText(), u"Car park"_s);
        QVERIFY(park->font(DeviceItem::Name).bold());

        park->setCheckState(DeviceItem::Name, Qt::Unchecked);
        click(park);
        QCOMPARE(shown->currentText(), u"Main gate"_s);
        const auto data = SampleData::make();
        for (const CorvelGui::TimeSpan& recording : data.tracks[1].recorded.first(2)) {
            QTest::keyClick(tree, Qt::Key_Return);
            const QDateTime begin = QDateTime::fromMSecsSinceEpoch(recording.begin, Qt::UTC);
            QVERIFY(sample.showsTime(begin.toString(u"dd MMM HH:mm:ss"_s)));
            QCOMPARE(shown->currentText(), u"Car park"_s);
        }
    }

    void largeFontsFit()
    {
        bool fits = true;
        const auto sizes = [&fits] {
            SampleWindow sample(u"UTC"_s);
            sample.window.resize(sample.window.minimumSizeHint());
            const QLayout* panes = sample.window.findChild<ReviewPanes*>()->layout();
            fits = fits && QTest::qWaitFor([panes] {
                       const QRect room = panes->geometry();
                       return room.height() >= panes->totalMinimumHeightForWidth(room.width());
                   });
            return QSize(sample.window.minimumSizeHint().width(), sample.ruler()->minimumHeight());
        };
        const QSize before = sizes();
        QVERIFY(before.width() <= 480);
        const QFont font = QApplication::font();
        QApplication::setFont({font.family(), 20});
        const QSize large = sizes();
        QApplication::setFont(font);
        QVERIFY(fits);
        QVERIFY(large.width() <= 800);
        QVERIFY(large.height() > before.height() * 3 / 2);
    }
};

QTEST_MAIN(TestReviewWindow)
#include "tst_reviewwindow.moc"
