#include "data/trackhistory.h"
#include "lists/deviceitem.h"
#include "playback/player.h"
#include "playback/speedmenu.h"
#include "samplewindow.h"
#include "session/clock.h"
#include "session/selection.h"
#include "testsupport.h"
#include "timeline/timelinepane.h"
#include "times.h"
#include "video/camerafeed.h"

#include <CorvelGui/BusyIndicator>
#include <CorvelGui/Indicator>
#include <CorvelGui/TarvoDateTimeView>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
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
    void viewStaysWhereTheUserLooks();
    void handHoldsTheTime();
    void endsPause();
    void spaceBarIsShared();
    void loadingIsCovered();
    void visitorsComeAndGo();
    void speedsHaveKeys();
};

void TestReviewPlayback::viewStaysWhereTheUserLooks()
{
    Playing playing;
    playing.setSpeed(PPlaybar::FastForward, PPlaybar::Speed64);
    for (int i = 0; i < 5; ++i)
        playing.timeline.stepLater();
    const TimeSpan elsewhere = playing.timeline.view();
    const QSignalSpy views(&playing.timeline, &TimelinePane::viewChanged);
    for (int i = 0; i < 50; ++i) {
        playing.tick(1'000);
        QCOMPARE(playing.timeline.view(), elsewhere);
        QCOMPARE(playing.selection.moment(), monday + (i + 1) * 64'000);
    }
    QVERIFY(views.isEmpty());
    // It counts as followed again once it has come into view, and when the user starts to play.
    playing.tick(elsewhere.end - playing.selection.moment());
    QVERIFY(playing.timeline.view() == elsewhere);
    playing.player.pause();
    playing.setSpeed(PPlaybar::Play, PPlaybar::Speed1);
    QVERIFY(playing.timeline.view() != elsewhere);
}

void TestReviewPlayback::handHoldsTheTime()
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

void TestReviewPlayback::endsPause()
{
    struct Case
    {
        bool skip;
        PPlaybar::PlaybackState state;
        qint64 from;
        qint64 to;
    };
    using enum PPlaybar::PlaybackState;
    for (const Case& end :
         {Case{false, FastForward, 71 * hour, 72 * hour}, Case{false, FastBackward, 1 * hour, 0},
          Case{true, FastForward, 30 * hour + 1, 31 * hour},
          Case{true, FastBackward, 3 * hour - 1, 1 * hour}}) {
        Playing playing;
        playing.player.setSkippingGaps(end.skip);
        playing.selection.goTo(monday + end.from);
        const QSignalSpy states(&playing.bar, &PPlaybar::playbackStateChanged);
        const QSignalSpy ranOut(&playing.player, &Player::ranOutOfRecordings);
        playing.setSpeed(end.state, PPlaybar::Speed2);
        playing.tick(2 * hour);
        QCOMPARE(playing.selection.moment(), monday + end.to);
        QCOMPARE(playing.bar.playbackState(), Pause);
        QVERIFY(!playing.player.isPlaying());
        QCOMPARE(states.size(), 1); // the user's own
        QCOMPARE(ranOut.size(), end.skip ? 1 : 0);
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

void TestReviewPlayback::spaceBarIsShared()
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
    cameras->setCurrentItem(camera, DeviceItem::State);
    pressIn(cameras);
    QTRY_COMPARE(bar->playbackState(), PPlaybar::Pause);
    cameras->setCurrentItem(camera, DeviceItem::Name);
    pressIn(cameras);
    QCOMPARE(camera->checkState(DeviceItem::Name), Qt::Unchecked);
    QCOMPARE(bar->playbackState(), PPlaybar::Pause);
}

void TestReviewPlayback::loadingIsCovered()
{
    SampleWindow sample(u"UTC"_s);
    auto* bar = sample.window.findChild<PPlaybar*>();
    QTest::keyClick(sample.ruler(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(bar->playbackState(), PPlaybar::FastForward);
    const QSignalSpy loaded(&sample.window, &ReviewWindow::loaded);
    sample.window.load({});
    const QPointer busy = sample.window.findChild<CorvelGui::BusyIndicator*>();
    QVERIFY(busy && busy->isVisible());
    QCOMPARE(busy->geometry(), sample.window.centralWidget()->rect());
    QTRY_COMPARE(loaded.size(), 1);
    QTRY_VERIFY(!busy);
    QCOMPARE(bar->playbackState(), PPlaybar::Pause);
    QVERIFY(sample.showsTime(u"02 Mar 00:33:08"_s));
    QCOMPARE(sample.window.windowTitle(), u"Sample – Recording review"_s);
}

void TestReviewPlayback::visitorsComeAndGo()
{
    const CameraFeed feed(
        {u"a"_s, u"Gate"_s, monday, monday + day, {{monday, monday + hour}}},
        {{monday, u"car"_s, {}, u"a"_s}, {monday + 5'000, u"person"_s, {}, u"b"_s}},
        TimeTexts(u"Australia/Darwin"_s));
    const CameraScene scene = feed.sceneAt(monday + 5'000);
    QCOMPARE(scene.visitors, (QList<CameraScene::Visitor>{{EventKind::Vehicle, 0.75}}));
    QVERIFY(qAbs(scene.hour - 9.5) < 0.01);
    QCOMPARE(feed.sceneAt(monday + CameraFeed::visit + 1).visitors.size(), 0);
    QCOMPARE(feed.sceneAt(monday + 2 * hour).state, TrackState::Gap);
}

void TestReviewPlayback::speedsHaveKeys()
{
    Playing playing;
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

QTEST_MAIN(TestReviewPlayback)
#include "tst_reviewplayback.moc"
