// SPDX-License-Identifier: MIT
#include "footage/footage.h"
#include "lists/eventtable.h"
#include "look/zonecombo.h"
#include "options/reviewsettings.h"
#include "playback/playbackpane.h"
#include "testsupport.h"
#include "timeline/timelinepane.h"
#include "times.h"
#include "window/cameratimesdialog.h"
#include "window/offsetedit.h"
#include "window/reviewwindow.h"

#include <CorvelGui/Ruler>

#include <QAction>
#include <QImage>
#include <QStandardPaths>
#include <QTreeWidget>

using namespace Review;
using CorvelGui::Ruler;

class TestCameraTimes : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void timesAreShownAndCorrected()
    {
        const WallTime morning{QDateTime({2026, 3, 2}, {10, 15}, Qt::UTC), {}};
        Footage footage(QTimeZone("Europe/Brussels"));
        footage.add({u"Gate"_s, u"a"_s, morning, 1'000, Footage::Path});
        footage.add({u"Gate"_s, u"b"_s, WallTime::utc(monday + day), 1'000, Footage::Exif});
        footage.add({u"Yard"_s, u"c"_s, WallTime::utc(monday), 1'000, Footage::CreationTime});
        CameraTimesDialog dialog(footage, {{u"Yard"_s, {{}, -1'000}}}, TimeTexts(u"UTC"_s),
                                 nullptr);
        const auto* list = dialog.findChild<QTreeWidget*>();
        const auto row = [list](int index) {
            QStringList texts;
            for (int column = 0; column < list->columnCount(); ++column)
                texts.append(list->topLevelItem(index)->text(column));
            return texts.join(u'|');
        };
        QCOMPARE(row(0), u"Gate|2|path: 1, EXIF: 1|02.03.2026 09:15:00|Europe/Brussels|+0:00:00"_s);
        QCOMPARE(row(1), u"Yard|1|time of creation: 1|01.03.2026 23:59:59|known|-0:00:01"_s);

        const QSignalSpy applied(&dialog, &CameraTimesDialog::applied);
        auto* zone = dialog.findChild<ZoneCombo*>();
        auto* offset = dialog.findChild<OffsetEdit*>();
        auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        zone->setEditText(u"Asia/Tokyo"_s);
        QTest::keyClick(zone, Qt::Key_Return);
        offset->selectAll();
        QTest::keyClicks(offset, u"1:00:0x"_s);
        QVERIFY(!ok->isEnabled());
        QTest::keyClick(offset, Qt::Key_Backspace);
        QVERIFY(ok->isEnabled());
        QCOMPARE(row(0), u"Gate|2|path: 1, EXIF: 1|02.03.2026 02:15:00|Asia/Tokyo|+1:00:00"_s);
        list->topLevelItem(0)->setSelected(false);
        list->topLevelItem(1)->setSelected(true);
        QVERIFY(applied.isEmpty());
        ok->click();
        QCOMPARE(applied.size(), 1);
        QCOMPARE(dialog.corrections(), (TimeCorrections{{u"Gate"_s, {u"Asia/Tokyo"_s, hour}},
                                                        {u"Yard"_s, {{}, -1'000}}}));
    }

    void theWindowKeepsThem()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"Gate"_s));
        QVERIFY(QImage(16, 16, QImage::Format_RGB32)
                    .save(folder.filePath(u"Gate/20260302_101500.jpg"_s)));
        ReviewSettings settings{.zone = u"UTC"_s};
        ReviewWindow window(u"UTC"_s, true);
        const auto begin = [&window] {
            const Camera* camera = window.findChild<PlaybackPane*>()->camera();
            return camera ? camera->files.value(0).begin - monday : 0;
        };
        QSignalSpy loaded(&window, &ReviewWindow::loaded);
        window.load(ReviewFiles::named({folder.path()}));
        QVERIFY(loaded.wait());
        QCOMPARE(begin(), 10 * hour + 15 * minute);
        window.findChild<QAction*>(u"cameraTimes"_s)->trigger();
        auto* dialog = window.findChild<CameraTimesDialog*>();
        auto* offset = dialog->findChild<OffsetEdit*>();
        offset->selectAll();
        QTest::keyClicks(offset, u"-15:0"_s);
        QTest::keyClicks(offset, u":00"_s);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)->click();
        QTRY_COMPARE(begin(), -4 * hour - 45 * minute);

        window.takeSettings(settings);
        ReviewWindow next(u"UTC"_s, true);
        next.applySettings(settings);
        QSignalSpy again(&next, &ReviewWindow::loaded);
        next.load(ReviewFiles::named({folder.path()}));
        QVERIFY(again.wait());
        QCOMPARE(next.findChild<PlaybackPane*>()->camera()->files[0].begin - monday,
                 -4 * hour - 45 * minute);
    }

    void recordingsAreFollowed()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"Gate"_s));
        const auto record = [&folder](qint64 time) {
            return QImage(16, 16, QImage::Format_RGB32)
                .save(folder.filePath(u"Gate/%1.jpg"_s.arg(time / 1'000)));
        };
        const auto endOf = [](qint64 time) {
            return time + 1'000;
        };
        QVERIFY(record(monday) && record(monday + day));
        QFile events(folder.filePath(u"events.csv"_s));
        const auto note = [&events](const char* line) {
            const bool noted = events.open(QIODevice::Append) && events.write(line) > 0;
            events.close();
            return noted;
        };
        QVERIFY(note("time,kind,text\n2026-03-02T01:00Z,person,one\n"));
        ReviewWindow window(u"UTC"_s, true);
        const Ruler* ruler = window.findChild<Ruler*>();
        const auto end = [ruler] {
            return qint64(ruler->getTimeLimits().second);
        };
        const auto moment = [ruler] {
            return qint64(ruler->exactIndicatorMSecs());
        };
        QSignalSpy loaded(&window, &ReviewWindow::loaded);
        window.load(ReviewFiles::named({folder.path()}));
        QVERIFY(loaded.wait());
        window.follow();
        QCOMPARE(moment(), endOf(monday + day) - 1);
        auto* timeline = window.findChild<TimelinePane*>();
        timeline->showAround(monday + day, hour);

        constexpr int patience = 30'000;
        const QTableView* table = window.findChild<EventTable*>();
        const QSignalSpy reset(table->model(), &QAbstractItemModel::modelReset);
        QVERIFY(note("2026-03-02T02:00Z,car,two\n") && record(monday + 2 * day));
        QTRY_COMPARE_WITH_TIMEOUT(end(), endOf(monday + 2 * day), patience);
        QCOMPARE(moment(), endOf(monday + 2 * day) - 1);
        QVERIFY(timeline->view().end >= moment());
        QTRY_COMPARE(table->model()->rowCount(), 2);
        // Not under the user's hand.
        timeline->showAround(monday + day, hour);
        const CorvelGui::TimeSpan view = timeline->view();
        QVERIFY(note("\n") && record(monday + 3 * day)); // the same events in a new file
        QTRY_COMPARE_WITH_TIMEOUT(end(), endOf(monday + 3 * day), patience);
        QCOMPARE(timeline->view(), view);
        QVERIFY(reset.isEmpty() && table->currentIndex().row() == 0);
        window.findChild<QAction*>(u"newestRecording"_s)->trigger();
        QVERIFY(timeline->view().end >= endOf(monday + 3 * day) - 1);
        QVERIFY(timeline->isFollowing());
        // Played to the end, it goes on with what comes.
        window.play();
        QTRY_COMPARE(moment(), endOf(monday + 3 * day));
        QVERIFY(record(monday + 4 * day));
        QTRY_COMPARE_WITH_TIMEOUT(moment(), endOf(monday + 4 * day) - 1, patience);
    }
};

QTEST_MAIN(TestCameraTimes)
#include "tst_cameratimes.moc"
