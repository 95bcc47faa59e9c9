// SPDX-License-Identifier: MIT
#include "lists/deviceitem.h"
#include "lists/eventtexts.h"
#include "look/eventicons.h"
#include "samplewindow.h"
#include "session/clock.h"
#include "testsupport.h"
#include "timeline/eventmarkers.h"
#include "timeline/instantedit.h"
#include "timeline/previewcard.h"
#include "timeline/timelinemenu.h"
#include "times.h"

#include <CorvelGui/RulerMarkerButton>
#include <CorvelGui/TimelineScroll>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QStatusBar>
#include <QToolTip>

using namespace Review;
using CorvelGui::Ruler;
using CorvelGui::RulerMarkerButton;

namespace {

/// Two tracks and three events, one of them of no track, around the noon of the Monday. The first
/// texts look like markup.
ReviewData smallReview()
{
    const qint64 noon = monday + 12 * hour;
    return {.tracks = {{u"a"_s, u"<b>Gate</b>"_s, monday, monday + day, {{noon, noon + hour}}},
                       {u"b"_s, u"Fence"_s, monday, noon, {{monday, monday + hour}}}},
            .events = {{noon - 6 * hour, u" PERSON "_s, u"<i>thin</i>"_s, u"b"_s},
                       {noon, u"car"_s, u"vehicle"_s, u"a"_s, minute, Severity::Warning},
                       {noon + 6 * hour, u"ghost"_s, u"boo"_s, QString()}}};
}

QList<RulerMarkerButton*> shownMarkers(const Ruler* ruler)
{
    QList<RulerMarkerButton*> shown = ruler->findChildren<RulerMarkerButton*>();
    shown.removeIf([](const RulerMarkerButton* button) { return !button->isVisible(); });
    std::ranges::sort(shown, {}, &RulerMarkerButton::centerX);
    return shown;
}

/// Moves the mouse as the window system does, so that widgets are entered and left.
void moveMouse(const SampleWindow& sample, const QWidget* widget, QPoint position)
{
    QTest::mouseMove(sample.window.windowHandle(), widget->mapTo(&sample.window, position));
}

} // namespace

class TestReviewTimeline : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void iconsDifferInShape()
    {
        constexpr int side = 16;
        EventIcons icons;
        QList<QImage> shapes;
        for (int kind = 0; kind < EventKinds::count; ++kind)
            shapes.append(icons.icon(kind).pixmap(QSize(side, side), 1.0).toImage());
        for (int a = 0; a < EventKinds::count; ++a) {
            for (int b = 0; b < a; ++b) {
                int different = 0;
                for (int i = 0; i < side * side; ++i)
                    different += std::abs(qAlpha(shapes[a].pixel(i % side, i / side)) -
                                          qAlpha(shapes[b].pixel(i % side, i / side))) > 128;
                QCOMPARE_GE(different, 18);
            }
        }
    }

    void markersOfCheckedTracks()
    {
        const ReviewData data = smallReview();
        const SampleWindow sample(u"UTC"_s, {}, data);
        const auto shownEvents = [&] {
            QList<qsizetype> indexes;
            for (const RulerMarkerButton* button : shownMarkers(sample.ruler())) {
                const qsizetype index = EventMarkers::indexOf(button->marker().identifier);
                indexes.append(index);
                // The marker is the event's in all that it says.
                const Event event = data.events[index];
                const auto ofKind = index == 2 ? Severity::None : Severity::Information;
                const CorvelGui::RulerMarker& marker = button->marker();
                if (marker.time.toMSecsSinceEpoch() != event.time ||
                    marker.iconIndex != int(EventKinds::parse(event.kind)) ||
                    marker.duration != event.duration ||
                    marker.severity != event.severity.value_or(ofKind))
                    indexes.append(-1);
            }
            return indexes;
        };
        QCOMPARE(shownEvents(), QList<qsizetype>({0, 1, 2}));
        QCOMPARE(sample.shownEvents(EventTexts::Kind).join(u' '), u"Person Vehicle ghost"_s);
        // On the first event, which there is something to see of.
        QVERIFY(sample.showsTime(u"02 Mar 06:00:00"_s));
        QCOMPARE(sample.window.findChild<QComboBox*>()->currentText(), u"Fence"_s);

        QTreeWidgetItem* fence = sample.device(u"Fence"_s);
        fence->setCheckState(DeviceItem::Name, Qt::Unchecked);
        QCOMPARE(shownEvents(), QList<qsizetype>({1, 2}));

        QCOMPARE(sample.shownEvents(EventTexts::Track), QStringList({u"<b>Gate</b>"_s, QString()}));

        // Rows and events differ in number here.
        sample.events()->sortByColumn(EventTexts::Time, Qt::DescendingOrder);
        Ruler* ruler = sample.ruler();
        const qint64 span = sample.viewSpan();
        QTest::mouseClick(shownMarkers(ruler).last(), Qt::LeftButton);
        QCOMPARE(sample.events()->currentIndex().row(), 0);
        QCOMPARE(qint64(ruler->getIndicatorMSecs()), data.events[2].time);
        QVERIFY(sample.showsTime(u"02 Mar 18:00:00"_s));
        QCOMPARE(sample.viewSpan(), span);
        QTest::mouseDClick(shownMarkers(ruler).first(), Qt::LeftButton);
        QCOMPARE(sample.events()->currentIndex().row(), 1);
        QCOMPARE(qint64(ruler->getIndicatorMSecs()), data.events[1].time);
        QCOMPARE(sample.viewSpan(), 20 * minute);
        QCOMPARE(sample.viewCentre(), data.events[1].time);

        // The overview goes along.
        const double strip =
            sample.window.findChild<CorvelGui::TimelineScroll*>()->centerPosition();
        QVERIFY(std::abs(strip - ruler->getCurrentCenterPosition()) < 1e-6);

        // A double click on a row goes there.
        QTableView* events = sample.events();
        const QPoint first = events->visualRect(events->model()->index(0, 0)).center();

        QTest::mouseClick(events->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(qint64(ruler->getIndicatorMSecs()), data.events[1].time);
        QTest::mouseDClick(events->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(qint64(ruler->getIndicatorMSecs()), data.events[2].time);
        QCOMPARE(sample.viewCentre(), data.events[2].time);

        sample.action(u"Whole period"_s)->trigger();
        sample.action(u"Events"_s)->trigger();
        QCOMPARE(shownEvents(), QList<qsizetype>());
        const QImage without = ruler->grab().toImage();

        fence->setCheckState(DeviceItem::Name, Qt::Checked);
        QVERIFY(ruler->grab().toImage() != without);
        sample.action(u"Events"_s)->trigger();

        QCOMPARE(shownEvents(), QList<qsizetype>({0, 1, 2}));
    }

    void manyMarkersComeInSlices()
    {
        constexpr int count = 50'000;
        ReviewData data = smallReview();
        data.events = {};
        for (int i = 0; i < count; ++i)
            data.events.append({monday + i * second, {}, {}, {}});
        SampleWindow sample(u"UTC"_s, {}, data);
        QSignalSpy settled(&sample.window, &ReviewWindow::settled);
        sample.window.setReview(data);
        QVERIFY(sample.window.isBusy());
        QVERIFY(settled.wait());
        QCOMPARE(sample.ruler()->activity(1).columns[0].events[0], quint32(count));
    }

    void previewSaysWhatIsKnown()
    {
        const SampleWindow sample(u"Europe/Brussels"_s, {}, smallReview());
        Ruler* ruler = sample.ruler();
        const auto* card = sample.window.findChild<PreviewCard*>();
        QVERIFY(!card->isVisible());

        const auto preview = [&](qint64 msecs) {
            Q_EMIT ruler->previewPositionChanged(quint64(msecs), QPoint(600, 5), false);
            return card->lines();
        };
        // The zone's abbreviation differs between platforms.
        QVERIFY(preview(monday + 30 * minute)[0].startsWith(u"Mon 02.03.2026 01:30:00.000 "_s));
        QCOMPARE(preview(monday + 30 * minute).sliced(1),
                 QStringList({u"<b>Gate</b>: no recording"_s, u"Fence: recorded"_s}));
        QCOMPARE(preview(monday + 12 * hour).sliced(1),
                 QStringList({u"<b>Gate</b>: recorded"_s, u"Fence: nothing known"_s}));
        QVERIFY(card->isVisible());
        preview(0);
        QVERIFY(!card->isVisible());

        // Above the ruler, and inside the window at its edges.
        QTest::mouseClick(ruler, Qt::LeftButton, {}, QPoint(600, 5));
        for (const int x : {20, ruler->width() - 20}) {
            moveMouse(sample, ruler, QPoint(x, 5));
            QTRY_VERIFY(card->isVisible());
            QVERIFY(sample.window.rect().contains(card->geometry()));
            QVERIFY(card->geometry().bottom() < ruler->mapTo(&sample.window, QPoint(0, 0)).y());
            // On an arrow of the ruler, at its edge.
            moveMouse(sample, ruler, QPoint(x < 600 ? 3 : ruler->width() - 3, ruler->height() / 2));
            QTRY_VERIFY(!card->isVisible());
        }

        // The marker comes first while the mouse is on it.
        QSignalSpy previews(ruler, &Ruler::previewPositionChanged);
        RulerMarkerButton* marker = shownMarkers(ruler).first();
        moveMouse(sample, marker, QPoint(8, 0));
        QTRY_VERIFY(card->isVisible());
        QHelpEvent help(QEvent::ToolTip, QPoint(8, 8), marker->mapToGlobal(QPoint(8, 8)));
        QApplication::sendEvent(marker, &help);
        QVERIFY(!QToolTip::isVisible());
        QCOMPARE(previews.size(), 2);
        QVERIFY(card->lines()[0].startsWith(u"Mon 02.03.2026 07:00:00.000 "_s));
        QCOMPARE(card->lines()[1], u"Person: <i>thin</i>"_s);
        QCoreApplication::processEvents();
        QCOMPARE(preview(monday + 6 * hour).size(), 3);
    }

    void menuOfATime()
    {
        const SampleWindow sample(u"UTC"_s, {}, smallReview());
        Ruler* ruler = sample.ruler();
        const auto choose = [&](const QString& text) {
            const QPoint position(int(ruler->xAt(monday + 8 * hour)), 5);
            QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                                    ruler->mapToGlobal(position));
            QApplication::sendEvent(ruler, &event);
            auto* menu = sample.window.findChild<TimelineMenu*>();
            sample.withText<QAction>(text)->trigger();
            menu->close();
            QTRY_VERIFY(!sample.window.findChild<TimelineMenu*>());
        };
        choose(u"Next event"_s);
        QCOMPARE(qint64(ruler->getIndicatorMSecs()), monday + 12 * hour);
        sample.device(u"<b>Gate</b>"_s)->setCheckState(DeviceItem::Name, Qt::Unchecked);
        choose(u"Next event"_s);
        QCOMPARE(qint64(ruler->getIndicatorMSecs()), monday + 18 * hour);
        choose(u"Previous event"_s);
        QCOMPARE(qint64(ruler->getIndicatorMSecs()), monday + 6 * hour);
        choose(u"Range begins here"_s);
        const qint64 begin = ruler->selectedRange().begin;
        QVERIFY(std::abs(begin - monday - 8 * hour) < 2 * minute);
        QCOMPARE(ruler->selectedRange().end, monday + day);
        choose(u"Zoom in here"_s);
        choose(u"Range ends here"_s);
        QVERIFY(ruler->view().end - ruler->view().begin < day);
        choose(u"Clear the selected range"_s);
        QVERIFY(ruler->selectedRange().isEmpty());
        choose(u"Copy this time"_s);
        QVERIFY(QGuiApplication::clipboard()->text().contains(u"02.03.2026"_s));
    }

    void zoneChangesAllTexts()
    {
        const SampleWindow sample(u"UTC"_s, {}, smallReview());
        sample.action(u"Ranges"_s)->trigger();
        const auto texts = [&] {
            QStringList all;
            all.append(sample.device(u"Fence"_s)->text(DeviceItem::KnownFrom));
            all.append(sample.eventText(0, EventTexts::Time));
            for (const InstantEdit* edit : sample.window.findChildren<InstantEdit*>())
                all.append(edit->text());
            return all;
        };
        const QImage before = sample.ruler()->grab().toImage();
        QCOMPARE(texts(), QStringList({u"02.03.2026 00:00:00"_s, u"02.03.2026 06:00:00"_s,
                                       u"02.03.2026 00:00:00"_s, u"03.03.2026 00:00:00"_s}));
        const QStringList inDarwin{u"02.03.2026 09:30:00"_s, u"02.03.2026 15:30:00"_s,
                                   u"02.03.2026 09:30:00"_s, u"03.03.2026 09:30:00"_s};
        const QString period = u"02.03.2026 09:30:00 – 03.03.2026 09:30:00 (Australia/Darwin)"_s;
        sample.enterZone(u"australia/darwin"_s);
        QCOMPARE(texts(), inDarwin);
        QVERIFY(sample.says(period));
        QVERIFY(sample.ruler()->grab().toImage() != before);

        sample.enterZone(u"Mars/Base"_s);
        QCOMPARE(texts(), inDarwin);
        QCOMPARE(sample.window.findChild<ZoneCombo*>()->currentText(), u"Australia/Darwin"_s);
        QVERIFY(sample.window.statusBar()->currentMessage().contains(u"Mars/Base"_s));

        sample.enterZone(u"UTC"_s);
        QCOMPARE(sample.ruler()->grab().toImage(), before);
        QCOMPARE(sample.window.statusBar()->currentMessage(), QString());
        sample.enterZone(u"This computer"_s);
        QVERIFY(!sample.says(period));
    }

    void rangesAreAsked()
    {
        const ReviewData data = smallReview();
        const SampleWindow sample(u"UTC"_s, {}, data);
        Ruler* ruler = sample.ruler();
        sample.action(u"Ranges"_s)->trigger();
        const QList<InstantEdit*> edits = sample.window.findChildren<InstantEdit*>();
        const auto type = [](InstantEdit* edit, const QString& text) {
            edit->selectAll();
            QTest::keyClicks(edit, text);
            QTest::keyClick(edit, Qt::Key_Return);
        };
        type(edits[0], u"11:00:00"_s);
        type(edits[1], u"2.3.2026 14:00"_s);

        QVERIFY(ruler->selectedRange() ==
                CorvelGui::TimeSpan({monday + 11 * hour, monday + 14 * hour}));
        ruler->setSelectedRange({monday + 9 * hour, monday + 10 * hour});
        QCOMPARE(edits[0]->instant(), monday + 9 * hour);
        ruler->setSelectedRange({monday + 11 * hour, monday + 14 * hour});
        sample.press(u"Search range"_s);
        QCOMPARE(sample.viewSpan(), 3 * hour);
        QCOMPARE(sample.viewCentre(), monday + 12 * hour + 30 * minute);

        sample.action(u"Whole period"_s)->trigger();
        sample.withText<QCheckBox>(u"Zoom to it"_s)->setChecked(false);
        sample.withText<QCheckBox>(u"Only markers inside"_s)->setChecked(true);
        sample.press(u"Show result"_s);
        QCOMPARE(sample.viewSpan(), day);
        QCOMPARE(shownMarkers(ruler).size(), 1);
        const QImage marked = ruler->grab().toImage();
        sample.press(u"Clear"_s);
        QVERIFY(ruler->selectedRange().isEmpty());
        QCOMPARE(shownMarkers(ruler).size(), 3);
        QVERIFY(ruler->grab().toImage() != marked);

        sample.action(u"Zoom in"_s)->trigger();
        sample.press(u"From view"_s);
        QCOMPARE(edits[0]->instant(), qint64(ruler->beginTime()));
        QCOMPARE(edits[1]->instant(), qint64(ruler->endTime()));

        // Faulty ranges change nothing, also where the view would follow them.
        sample.withText<QCheckBox>(u"Zoom to it"_s)->setChecked(true);
        const QImage before = ruler->grab().toImage();
        edits[0]->setInstant(monday + 3 * hour);
        edits[1]->setInstant(monday + 2 * hour);
        const QString reversed = u"The range must end after it begins."_s;
        for (const QString& button : {u"Search range"_s, u"Show result"_s}) {
            sample.press(button);
            QVERIFY(sample.says(reversed));
        }
        QCOMPARE(edits[0]->instant(), monday + 3 * hour);
        QCOMPARE(edits[1]->instant(), monday + 2 * hour);
        type(edits[1], u"noon"_s);
        QVERIFY(!sample.says(reversed));
        QCOMPARE(edits[1]->text(), u"noon"_s);
        const QString unreadable = u"“noon” is not a date and time such as 02.03.2026 02:00:00."_s;
        QVERIFY(sample.says(unreadable));
        type(edits[0], u"3.3.2026 00:00:02"_s);
        const QString unknown = u"Nothing is known of 03.03.2026 00:00:02. Choose a time from "
                                "02.03.2026 00:00:00 to 03.03.2026 00:00:00."_s;
        QVERIFY(sample.says(unknown));
        edits[1]->setInstant(monday + 3 * hour);
        sample.press(u"Search range"_s);
        QVERIFY(sample.says(unknown));
        QCOMPARE(edits[0]->instant(), monday + day + 2 * second);
        QCOMPARE(ruler->grab().toImage(), before);
    }

    void instantsOutlastTheClock()
    {
        // The second of two times that the clock shows as 02:30, with a fraction that it does not
        // show.
        const qint64 second0230 =
            QDateTime::fromString(u"2026-10-25T01:30:00.250Z"_s, Qt::ISODateWithMs)
                .toMSecsSinceEpoch();
        Clock clock(u"Europe/Brussels"_s);
        InstantEdit edit(clock);
        edit.setInstant(second0230);
        QCOMPARE(edit.text(), u"25.10.2026 02:30:00"_s);
        clock.setZone(u"America/New_York"_s);
        QCOMPARE(edit.text(), u"24.10.2026 21:30:00"_s);
        QCOMPARE(edit.instant(), second0230);
        clock.setZone(u"Europe/Brussels"_s);
        QTest::keyClicks(&edit, u"x"_s);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(edit.instant(), second0230);
        QTest::keyClick(&edit, Qt::Key_Up);
        QCOMPARE(edit.instant(), second0230 + second);
        for (const auto& [place, sum] : {std::pair(0, day), std::pair(12, -hour)}) {
            const qint64 before = edit.instant();
            edit.setCursorPosition(place);
            QTest::keyClick(&edit, sum > 0 ? Qt::Key_Up : Qt::Key_Down);
            QCOMPARE(edit.instant(), before + sum);
        }
        edit.setText({});
        QTest::keyClicks(&edit, u"29.3.2026 02:30"_s);
        QCOMPARE(edit.fault(), u"The clocks are put forward past 29.3.2026 02:30."_s);
    }
};

QTEST_MAIN(TestReviewTimeline)
#include "tst_reviewtimeline.moc"
