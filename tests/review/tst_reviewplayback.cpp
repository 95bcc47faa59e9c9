// SPDX-License-Identifier: MIT
#include "data/trackhistory.h"
#include "lists/deviceitem.h"
#include "numberedclip.h"
#include "playback/cameraview.h"
#include "playback/playbackpane.h"
#include "playback/player.h"
#include "playback/playerclock.h"
#include "playback/speedmenu.h"
#include "samplewindow.h"
#include "session/clock.h"
#include "session/selection.h"
#include "timeline/timelinepane.h"
#include "times.h"

#include <CorvelGui/BusyIndicator>
#include <CorvelGui/Indicator>
#include <CorvelGui/PopupSliderToolButton>
#include <CorvelGui/TarvoDateTimeView>
#include <CorvelGui/VideoSlider>

#include <QStatusBar>

using Review::PlayerClock;
using namespace Review;
using CorvelGui::PPlaybar;
using CorvelGui::Ruler;
using CorvelGui::TimeSpan;

namespace {

/// A player in the hand of a test, at the begin of three days of which hours 1, 2 and 30 are
/// recorded.
struct Playing
{
    Playing() : player(selection, &bar, nullptr, [this] { return now; })
    {
        timeline.resize(1000, 120);
        timeline.show();
        player.setPeriod(period);
        player.setTrack(&history);
        timeline.setPeriod(period);
        selection.setMoment(monday);
        timeline.showAround(monday, hour);
    }
    /// As the user does, with as many clicks as it takes.
    void setSpeed(PPlaybar::PlaybackState state, PPlaybar::PlaybackSpeed speed)
    {
        bar.setPlaybackState(state);
        bar.setPlaybackSpeed(speed);
        Q_EMIT bar.playbackStateChanged(state);
    }
    void tick(qint64 msecs)
    {
        now += msecs;
        player.advance();
    }

    const TimeSpan period{monday, monday + 3 * day};
    const TrackHistory history{{u"a"_s,
                                u"Gate"_s,
                                monday,
                                monday + 2 * day,
                                {{monday + hour, monday + 2 * hour},
                                 {monday + 2 * hour, monday + 3 * hour},
                                 {monday + 30 * hour, monday + 31 * hour}}}};
    qint64 now = 500;
    Clock clock{u"UTC"_s};
    Selection selection;
    TimelinePane timeline{clock, selection};
    PPlaybar bar;
    Player player;
};

} // namespace

class TestReviewPlayback : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void viewStaysWhereTheUserLooks()
    {
        Playing playing;
        playing.setSpeed(PPlaybar::FastForward, PPlaybar::Speed64);
        for (int i = 0; i < 5; ++i)
            playing.timeline.stepLater();
        const TimeSpan elsewhere = playing.timeline.view();
        playing.tick(50'000);
        QCOMPARE(playing.timeline.view(), elsewhere);
        QCOMPARE(playing.selection.moment(), monday + 50 * 64'000);
        // It counts as followed again once it has come into view, and when the user starts to play.
        playing.tick(elsewhere.end - playing.selection.moment());
        QVERIFY(playing.timeline.view() == elsewhere);
        playing.player.pause();
        playing.setSpeed(PPlaybar::Play, PPlaybar::Speed1);
        QVERIFY(playing.timeline.view() != elsewhere);
    }

    void handHoldsTheTime()
    {
        Playing playing;
        playing.selection.goTo(monday + 10 * minute);
        playing.setSpeed(PPlaybar::Play, PPlaybar::Speed1);
        playing.tick(1'000);
        auto* ruler = playing.timeline.findChild<Ruler*>();
        auto* indicator = ruler->findChild<CorvelGui::Indicator*>();
        const QPoint grip(indicator->hotSpot(), 10);
        QTest::mousePress(indicator, Qt::LeftButton, {}, grip);
        playing.tick(60'000);
        QCOMPARE(playing.selection.moment(), monday + 10 * minute + 1'000);

        QTest::mouseMove(indicator, grip + QPoint(200, 0));
        const qint64 dragged = playing.selection.moment();
        QVERIFY(dragged > monday + 20 * minute);
        playing.tick(60'000);
        QCOMPARE(playing.selection.moment(), dragged);
        QTest::mouseRelease(indicator, Qt::LeftButton, {}, QPoint(indicator->hotSpot(), 10));
        playing.tick(2'000);
        QCOMPARE(playing.selection.moment(), dragged + 2'000);

        // Dragging the scale moves the view only; the release goes to a dialog.
        const TimeSpan view = playing.timeline.view();
        QTest::mousePress(ruler, Qt::LeftButton, {}, QPoint(700, 50));
        playing.tick(60'000);
        QCOMPARE(playing.selection.moment(), dragged + 2'000);
        QCOMPARE(playing.timeline.view(), view);
        QEvent deactivate(QEvent::WindowDeactivate);
        QApplication::sendEvent(ruler, &deactivate);
        QTRY_VERIFY(!playing.selection.isHeld());
        playing.tick(3'000);
        QCOMPARE(playing.selection.moment(), dragged + 5'000);
    }

    void endsPause()
    {
        using enum PPlaybar::PlaybackState;
        for (const auto& [skip, state, from, to] :
             {std::tuple(false, FastForward, 71 * hour, 72 * hour),
              {false, FastBackward, hour, 0},
              {true, FastForward, 30 * hour + 1, 31 * hour},
              {true, FastBackward, 3 * hour - 1, hour}}) {
            Playing playing;
            playing.player.setSkippingGaps(skip);
            playing.selection.goTo(monday + from);

            const QSignalSpy states(&playing.bar, &PPlaybar::playbackStateChanged);
            const QSignalSpy ranOut(&playing.player, &Player::ranOutOfRecordings);
            playing.setSpeed(state, PPlaybar::Speed2);
            playing.tick(2 * hour);
            QCOMPARE(playing.selection.moment(), monday + to);
            QCOMPARE(playing.bar.playbackState(), Pause);
            QVERIFY(!playing.player.isPlaying());
            QCOMPARE(states.size(), 1); // the user's own
            QCOMPARE(ranOut.size(), skip ? 1 : 0);
        }

        Playing playing;
        playing.player.setSkippingGaps(true);
        playing.setSpeed(SlowForward, PPlaybar::Speed1_8);
        playing.tick(8);
        QCOMPARE(playing.selection.moment(), monday + hour);
        playing.tick(8'001);
        Q_EMIT playing.bar.frameForwardClicked();
        QCOMPARE(playing.selection.moment(), monday + hour + 1'040);
        Q_EMIT playing.bar.trackEndClicked();
        QCOMPARE(playing.selection.moment(), monday + 2 * day);
    }

    void spaceBarIsShared()
    {
        const SampleWindow sample(u"UTC"_s);
        auto* bar = sample.window.findChild<PPlaybar*>();
        auto* view = sample.window.findChild<CorvelGui::TarvoDateTimeView*>();
        sample.ruler()->setFocus();
        QTest::keyClick(sample.ruler(), Qt::Key_Space);
        QTRY_COMPARE(bar->playbackState(), PPlaybar::Play);
        QTRY_VERIFY(sample.ruler()->getIndicatorMSecs() >= monday);
        QTest::keyClick(sample.ruler(), Qt::Key_Space);
        QTRY_COMPARE(bar->playbackState(), PPlaybar::Pause);
        QCOMPARE(view->shownText().left(6), u"02 Mar"_s);

        // Rows leave it, but for their check boxes.
        QTreeWidget* cameras = sample.devices();
        QTreeWidgetItem* camera = cameras->topLevelItem(0)->child(1);
        const auto pressIn = [&](QAbstractItemView* list) {
            list->setFocus();
            QTest::keyClick(list, Qt::Key_Space);
        };
        pressIn(sample.events());
        QTRY_COMPARE(bar->playbackState(), PPlaybar::Play);
        auto* speed = sample.window.findChild<CorvelGui::PopupSliderToolButton*>();
        QCOMPARE(speed->text(), u"× 1"_s);
        QTest::keyClick(speed, Qt::Key_Up);
        QCOMPARE(bar->playbackSpeed(), PPlaybar::Speed2);
        speed->setValue(PPlaybar::SpeedZero);
        QCOMPARE(bar->playbackState(), PPlaybar::Pause);
        pressIn(sample.events());
        QTRY_COMPARE(speed->value(), int(PPlaybar::Speed1));
        cameras->setCurrentItem(camera, DeviceItem::State);
        pressIn(cameras);
        QTRY_COMPARE(bar->playbackState(), PPlaybar::Pause);
        cameras->setCurrentItem(camera, DeviceItem::Name);
        pressIn(cameras);
        QCOMPARE(camera->checkState(DeviceItem::Name), Qt::Unchecked);
        QCOMPARE(bar->playbackState(), PPlaybar::Pause);
    }

    void loadingIsCovered()
    {
        SampleWindow sample(u"UTC"_s);
        auto* bar = sample.window.findChild<PPlaybar*>();
        QTest::keyClick(sample.ruler(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(bar->playbackState(), PPlaybar::FastForward);
        const QSignalSpy loaded(&sample.window, &ReviewWindow::loaded);
        QVERIFY(!sample.window.findChild<CameraView*>()->viewport()->acceptDrops()); // the window
        sample.window.statusBar()->showMessage(u"Of what was loaded before"_s);
        sample.window.load({});
        const QPointer busy = sample.window.findChild<CorvelGui::BusyIndicator*>();
        QVERIFY(busy && busy->isVisible());
        QCOMPARE(busy->geometry(), sample.window.centralWidget()->rect());
        QTRY_COMPARE(loaded.size(), 1);
        QTRY_VERIFY(!busy);
        QCOMPARE(sample.window.statusBar()->currentMessage(), QString());
        QCOMPARE(bar->playbackState(), PPlaybar::Pause);
        QVERIFY(sample.showsTime(u"02 Mar 00:33:08"_s));
        QCOMPARE(sample.window.windowTitle(), u"Sample – Recording review"_s);
    }

    void picturesAreShown()
    {
        const QTemporaryDir folder;
        const QString clip = folder.filePath(u"clip.mp4"_s);
        QCOMPARE(NumberedClip::write(clip, 200, {.keyFrameDistance = 50}), QString()); // 8 seconds
        const auto track = [](const QString& name, qint64 end) {
            return CorvelGui::TrackDescription{name, name, monday, monday + hour, {{monday, end}}};
        };
        const ReviewData review{
            .tracks = {track(u"Gate"_s, monday + 20'000), track(u"Yard"_s, monday + minute)},
            .events = {},
            .files = {{u"Gate"_s,
                       {{clip, monday, monday + 8'000, 0},
                        {folder.filePath(u"gone.mp4"_s), monday + 8'000, monday + 10'000, 0}}}}};
        const SampleWindow sample(u"UTC"_s, {}, review);
        auto* pane = sample.window.findChild<PlaybackPane*>();
        auto* view = pane->views().first();
        const auto shownAt = [&](qint64 after) {
            Q_EMIT sample.ruler()->indicatorPositionChanged(quint64(monday + after), 0);
            if (!QTest::qWaitFor([&] { return !pane->isBusy(); }))
                return u"busy"_s;
            const CameraPicture& shown = view->picture();
            const QString number = shown.image.isNull()
                                       ? QString()
                                       : QString::number(NumberedClip::numberOf(shown.image));
            return QStringList{number, shown.time.section(u' ', 2, 2), shown.message}.join(u'|');
        };
        // The time is that of the picture, not the moment.
        QCOMPARE(shownAt(3'050), u"76|00:00:03.040|"_s);
        QCOMPARE(shownAt(9'000), u"|00:00:09.000|No picture: The file is missing."_s);
        QCOMPARE(shownAt(15'000), u"|00:00:15.000|No picture"_s);
        QCOMPARE(shownAt(25'000), u"|00:00:25.000|No recording at this time"_s);
        QCOMPARE(shownAt(-1'000), u"|23:59:59.000|Nothing is known of this time"_s);
        pane->setOnlyKeyFrames(true);
        QCOMPARE(shownAt(7'050), u"150|00:00:06.000|"_s);
        pane->setOnlyKeyFrames(false);
        QTRY_COMPARE(NumberedClip::numberOf(view->picture().image), 176);

        // The bar goes through the recording that the moment is in, a picture at a time.
        auto* recording = sample.window.findChild<CorvelGui::VideoSlider*>();
        const std::tuple<Qt::Key, qint64, int> seeks[] = {{Qt::Key_Left, 6'050, 151},
                                                          {Qt::Key_Home, 0, 0}};
        for (const auto& [key, position, number] : seeks) {
            QTest::keyClick(recording, key);
            QTRY_VERIFY(!recording->isSeeking());
            QCOMPARE(recording->position(), position);
            QCOMPARE(NumberedClip::numberOf(view->picture().image), number);
        }
        QCOMPARE(recording->duration(), 20'000);
        shownAt(25'000);
        QVERIFY(!recording->isEnabled());

        // Side by side, and one of them enlarged.
        QTest::mouseDClick(view->viewport(), Qt::LeftButton);
        QTRY_COMPARE(pane->shownCameras(), 4);
        QCOMPARE(pane->views()[1]->picture().camera, u"Yard"_s);
        QTest::mouseClick(pane->views()[1]->viewport(), Qt::LeftButton);
        QCOMPARE(pane->camera()->name, u"Yard"_s);
        QTRY_COMPARE(pane->views()[1]->picture().message, u"No picture"_s);
        QVERIFY(!pane->views()[2]->camera());
        QTest::mouseDClick(pane->views()[1]->viewport(), Qt::LeftButton);
        QTRY_COMPARE(pane->shownCameras(), 1);
        QCOMPARE(pane->views()[0]->camera()->name, u"Yard"_s);
    }

    void speedsHaveKeys()
    {
        Playing playing;
        const QSignalSpy fast(&playing.player, &Player::fastChanged);

        playing.setSpeed(PPlaybar::FastForward, PPlaybar::Speed4);
        QVERIFY(!playing.player.isFast());
        playing.setSpeed(PPlaybar::FastBackward, PPlaybar::Speed8);
        QVERIFY(playing.player.isFast());
        playing.player.pause();
        QVERIFY(!playing.player.isFast());
        QCOMPARE(fast.size(), 2);

        SpeedMenu menu(playing.player);
        QAction* slower = menu.actions()[0];
        QAction* faster = menu.actions()[1];
        const auto speedsAfter = [&](QAction* action, int times) {
            for (int i = 0; i < times; ++i)
                action->trigger();
            return playing.bar.playbackSpeed();
        };
        QCOMPARE(speedsAfter(slower, 1), PPlaybar::Speed1_2);
        QCOMPARE(playing.bar.playbackState(), PPlaybar::SlowForward);
        playing.tick(1'000);
        QCOMPARE(playing.selection.moment(), monday + 500);
        QCOMPARE(speedsAfter(slower, 3), PPlaybar::Speed1_8);
        QCOMPARE(speedsAfter(faster, 20), PPlaybar::Speed1024);
        playing.player.pause();
        QCOMPARE(speedsAfter(faster, 1), PPlaybar::Speed2);
        playing.setSpeed(PPlaybar::Reverse, PPlaybar::Speed1);
        QCOMPARE(speedsAfter(slower, 1), PPlaybar::Speed1_2);
        QCOMPARE(playing.bar.playbackState(), PPlaybar::SlowReverse);
        speedsAfter(faster, 1);
        QCOMPARE(playing.bar.playbackState(), PPlaybar::Reverse);
    }

    void aDayWithoutDrift()
    {
        QRandomGenerator random(7);
        for (int speed = 1; speed <= PlayerClock::fastest; speed *= 2) {
            for (const int eighths : {speed, -speed}) {
                PlayerClock clock;
                clock.setLimits({monday - 2 * day, monday + 2 * day});
                clock.seek(monday, 500);
                clock.setSpeed(eighths, 500);
                const qint64 duration = day * 8 / speed;
                for (qint64 elapsed = 0; elapsed < duration;) {
                    elapsed = std::min(elapsed + random.bounded(1, int(duration / 1000)), duration);
                    QCOMPARE(clock.advance(500 + elapsed), PlayerClock::Stop::None);
                    QCOMPARE(clock.position(), (monday * 8 + eighths * elapsed) >> 3);
                }
                QCOMPARE(clock.position(), monday + (eighths > 0 ? day : -day));
            }
        }
    }

    void speedChangesKeepFractions()
    {
        PlayerClock clock;
        clock.setLimits({0, day});
        clock.seek(hour, 0);
        for (int now = 0; now <= 8000; ++now)
            clock.setSpeed(now % 2 ? 1 : 3, now); // three eighths and one, in turn
        QCOMPARE(clock.position(), hour + 2000);
        clock.advance(10); // the past
        QCOMPARE(clock.position(), hour + 2000);
    }

    void gapsAndLimits()
    {
        // From where, how far, to where, and why no further. Frames are 40 each.
        const auto cases =
            u"playing 0 500 500|playing 500 1000 1050 end|playing 50 -50 0 begin|"
            "frames 500 2 580|frames 50 -2 0 begin|frames 1000 2 1050 end|"
            "skipping 0 1 100|skipping 150 49 199|skipping 150 400 300|"
            "skipping 300 10 500|skipping 900 -1 600|skipping 600 -99 501|"
            "skipping 600 -100 310|skipping 310 -500 200|skipping 250 -1 200|"
            "skipping 550 50 1000|skipping 1020 90 1050 end|skipping 1050 1 1050 end|"
            "skipping 150 -50 100 none|skipping 50 -1 50 none"_s;
        for (const QString& line : cases.split(u'|')) {
            const QStringList words = line.split(u' ');
            const int distance = words.at(2).toInt();
            PlayerClock clock;
            clock.setLimits({0, 1050});
            clock.setRecorded({{100, 200}, {300, 310}, {500, 600}, {1000, 1100}});
            clock.setSkippingGaps(words.at(0) == u"skipping");
            clock.seek(words.at(1).toInt(), 0);
            clock.setSpeed(8 * distance, 0);
            const auto stop = words.at(0) == u"frames" ? clock.step(distance, 0) : clock.advance(1);
            QCOMPARE(clock.position(), words.at(3).toInt());
            QCOMPARE(
                int(stop),
                (QStringList{QString(), u"begin"_s, u"end"_s, u"none"_s}).indexOf(words.value(4)));
            QCOMPARE(clock.speed() == 0, words.at(0) == u"frames" || words.size() > 4);
        }
    }
};

QTEST_MAIN(TestReviewPlayback)
#include "tst_reviewplayback.moc"
