#include "testsupport.h"

#include <CorvelGui/PPlaybar>
#include <CorvelGui/TarvoToolButton>

#include <QButtonGroup>
#include <QCursor>
#include <QEventLoop>
#include <QLabel>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

class LoggedBar : public PPlaybar
{
public:
    LoggedBar()
    {
        const auto logs = [this](const QString& text) {
            return [=, this] {
                log << text;
            };
        };
        connect(this, &PPlaybar::playbackStateChanged, this,
                [this](PlaybackState state) { log << u"state %1"_s.arg(state); });
        connect(this, &PPlaybar::playbackSpeedChanged, this,
                [this](PlaybackSpeed speed) { log << u"speed %1"_s.arg(speed); });
        connect(this, &PPlaybar::trackStartClicked, this, logs(u"begin"_s));
        connect(this, &PPlaybar::trackEndClicked, this, logs(u"end"_s));
        connect(this, &PPlaybar::frameForwardClicked, this, logs(u"frame on"_s));
        connect(this, &PPlaybar::frameBackwardClicked, this, logs(u"frame back"_s));
        connect(this, &PPlaybar::pauseClickedInLiveMode, this, logs(u"live"_s));
        show();
    }

    TarvoToolButton* button(const QString& name) const
    {
        return findChild<TarvoToolButton*>(u"button"_s + name);
    }

    /// "click Play" and "right Play" press a mouse button, "up Play" and "down Play" turn the
    /// wheel.
    void act(const QString& action)
    {
        TarvoToolButton* target = button(action.section(u' ', 1));
        const QString way = action.section(u' ', 0, 0);
        if (way == u"click" || way == u"right") {
            QTest::mouseClick(target, way == u"click" ? Qt::LeftButton : Qt::RightButton);
            return;
        }
        const QPointF center = QRectF(target->rect()).center();
        const int delta = way == u"up" ? 120 : way == u"down" ? -120 : 0;
        QWheelEvent wheel(center, target->mapToGlobal(center), {}, {120, delta}, {}, {},
                          Qt::NoScrollPhase, false);
        const QPointer<LoggedBar> alive(this);
        QCoreApplication::sendEvent(target, &wheel);
        if (alive && !wheel.isAccepted())
            log << u"unhandled"_s;
    }

    /// What was emitted, the label, and the checked button.
    QString story()
    {
        const QAbstractButton* checked =
            findChild<QButtonGroup*>(u"buttonGroup"_s)->checkedButton();
        log << findChild<QLabel*>(u"labelPlaybackSpeed"_s)->text() << checked->objectName().mid(6);
        return std::exchange(log, {}).join(u", "_s);
    }

    QStringList log;
};

using Bar = PPlaybar;

} // namespace

class TestPlaybar : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void form();
    void userActions_data();
    void userActions();
    void silentSetters();
    void liveMode();
    void disabled();
    void strangeValues();
    void hover();
    void deletionInAnySlot();
};

void TestPlaybar::form()
{
    LoggedBar bar;
    QCOMPARE(bar.objectName(), u"CorvelGui__PPlaybar"_s);
    QVERIFY(bar.findChild<QFrame*>(u"framePlaybackControls"_s)->property("tarvo").toBool());
    QCOMPARE(bar.story(), u"x 0, Pause"_s);
    QStringList row;
    for (const auto* button : bar.findChildren<TarvoToolButton*>()) {
        row << button->objectName().mid(6) + u'|' + button->toolTip();
        QCOMPARE(button->accessibleName(), button->toolTip());
        QVERIFY(!button->icon().isNull() && button->property("TarvoPlayback").toBool());
    }
    QCOMPARE(row.join(u' '), u"TrackStart|Track Begin FastReverse|Fast Backward Reverse|Backward "
                             "FrameBack|Frame Backward Pause|Pause FrameForward|Frame Forward "
                             "Play|Forward FastForward|Fast Forward TrackEnd|Track End"_s);
    bar.setIconSize(QSize(32, 32));
    QCOMPARE(bar.minimumSize(), QSize(288, 32));
    bar.setShortcut(Bar::SlowReverseButton, Qt::Key_R);
    QCOMPARE(bar.shortcut(Bar::ReverseButton), QKeySequence(Qt::Key_R));
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    QTest::keyClick(&bar, Qt::Key_R);
    QTRY_COMPARE(bar.playbackState(), Bar::Reverse);
}

void TestPlaybar::userActions_data()
{
    QTest::addColumn<Bar::PlaybackState>("state");
    QTest::addColumn<Bar::PlaybackSpeed>("speed");
    QTest::addColumn<QString>("story");
    const struct
    {
        Bar::PlaybackState state;
        Bar::PlaybackSpeed speed;
        const char* action;
        const char* story;
    } rows[]{
        {Bar::Pause, Bar::SpeedZero, "click TrackStart", "begin, x 0, Pause"},
        {Bar::FastBackward, Bar::Speed8, "click TrackStart", "state 3, begin, x 0, Pause"},
        {Bar::SlowForward, Bar::Speed1_8, "click TrackEnd", "state 3, end, x 0, Pause"},
        {Bar::Play, Bar::Speed1, "click FrameForward", "state 3, frame on, x 0, Pause"},
        {Bar::Reverse, Bar::Speed1, "click FrameBack", "state 3, frame back, x 0, Pause"},
        {Bar::Pause, Bar::SpeedZero, "click FrameBack", "frame back, x 0, Pause"},
        {Bar::Play, Bar::Speed1, "click Pause", "state 3, x 0, Pause"},
        {Bar::Pause, Bar::SpeedZero, "click Pause", "x 0, Pause"},
        {Bar::Pause, Bar::SpeedZero, "click Play", "state 5, x 1, Play"},
        {Bar::SlowForward, Bar::Speed1_4, "click Play", "state 5, x 1, Play"},
        {Bar::Play, Bar::Speed1, "click Play", "x 1, Play"},
        {Bar::SlowReverse, Bar::Speed1_2, "click Reverse", "state 1, x -1, Reverse"},
        {Bar::Reverse, Bar::Speed1, "click Reverse", "x -1, Reverse"},
        {Bar::Play, Bar::Speed1, "click FastReverse", "state 0, x -2, FastReverse"},
        {Bar::FastBackward, Bar::Speed512, "click FastReverse", "speed 14, x -1024, FastReverse"},
        {Bar::FastForward, Bar::Speed1024, "click FastForward", "speed 5, x 2, FastForward"},
        {Bar::FastBackward, Bar::Speed16, "click FastForward", "state 6, x 2, FastForward"},

        {Bar::Play, Bar::Speed1, "right FastForward", "state 3, x 0, Pause"},
        {Bar::FastForward, Bar::Speed4, "right Play", "state 3, x 0, Pause"},
        {Bar::SlowReverse, Bar::Speed1_2, "right FastReverse", "state 3, x 0, Pause"},
        {Bar::FastBackward, Bar::Speed2, "right Reverse", "state 3, x 0, Pause"},
        {Bar::Play, Bar::Speed1, "right Reverse", "x 1, Play"},
        {Bar::Play, Bar::Speed1, "right Pause", "x 1, Play"},
        {Bar::Reverse, Bar::Speed1, "right Play", "x -1, Reverse"},

        {Bar::FastForward, Bar::Speed1024, "up Pause", "unhandled, x 1024, FastForward"},
        {Bar::FastForward, Bar::Speed512, "up TrackEnd", "speed 14, x 1024, FastForward"},
        {Bar::FastForward, Bar::Speed4, "down FrameBack", "speed 5, x 2, FastForward"},
        {Bar::FastForward, Bar::Speed2, "down FastForward", "state 5, x 1, Play"},
        {Bar::FastBackward, Bar::Speed1024, "up Play", "unhandled, x -1024, FastReverse"},
        {Bar::FastBackward, Bar::Speed2, "down Play", "state 1, x -1, Reverse"},
        {Bar::Play, Bar::Speed1, "up TrackStart", "state 6, x 2, FastForward"},
        {Bar::SlowForward, Bar::Speed1_2, "up Play", "speed 4, x 1, Play"},
        {Bar::Play, Bar::Speed1, "down Play", "speed 3, x 1/2, Play"},
        {Bar::SlowForward, Bar::Speed1_4, "down Play", "speed 1, x 1/8, Play"},
        {Bar::SlowForward, Bar::Speed1_8, "down Play", "unhandled, x 1/8, Play"},
        {Bar::Reverse, Bar::Speed1, "up FrameForward", "state 0, x -2, FastReverse"},
        {Bar::SlowReverse, Bar::Speed1_8, "up Reverse", "speed 2, x -1/4, Reverse"},
        {Bar::SlowReverse, Bar::Speed1_8, "down Reverse", "unhandled, x -1/8, Reverse"},
        {Bar::Pause, Bar::SpeedZero, "up FastReverse", "frame on, x 0, Pause"},
        {Bar::Pause, Bar::SpeedZero, "down FastForward", "frame back, x 0, Pause"},
        {Bar::Pause, Bar::SpeedZero, "sideways Pause", "unhandled, x 0, Pause"},
        {Bar::Play, Bar::Speed1, "sideways Play", "unhandled, x 1, Play"},
    };
    for (const auto& row : rows) {
        QTest::addRow("%d %d|%s", row.state, row.speed, row.action)
            << row.state << row.speed << QString::fromLatin1(row.story);
    }
}

void TestPlaybar::userActions()
{
    QFETCH(const Bar::PlaybackState, state);
    QFETCH(const Bar::PlaybackSpeed, speed);
    LoggedBar bar;
    bar.setPlaybackState(state);
    bar.setPlaybackSpeed(speed);
    QCOMPARE(bar.log, QStringList());
    bar.act(QString::fromLatin1(QTest::currentDataTag()).section(u'|', 1));
    QTEST(bar.story(), "story");
}

void TestPlaybar::silentSetters()
{
    // Speeds that a state allows stay, others give way to that on entry; the sign always follows.
    LoggedBar bar;
    for (const auto& [state, story] : {std::pair(Bar::Reverse, "x -1, Reverse"),
                                       {Bar::Play, "x 1, Play"},
                                       {Bar::FastForward, "x 2, FastForward"},
                                       {Bar::FastBackward, "x -2, FastReverse"},
                                       {Bar::SlowForward, "x 1/2, Play"},
                                       {Bar::SlowReverse, "x -1/2, Reverse"},
                                       {Bar::Pause, "x 0, Pause"}}) {
        bar.setPlaybackState(state);
        QCOMPARE(bar.story(), QString::fromLatin1(story));
    }
    for (int state = Bar::FastBackward; state <= Bar::FastForward; ++state) {
        QString taken;
        for (int speed = Bar::SpeedZero; speed <= Bar::Speed1024; ++speed) {
            bar.setPlaybackState(Bar::PlaybackState(state));
            bar.setPlaybackSpeed(Bar::PlaybackSpeed(speed));
            taken += bar.playbackSpeed() == speed ? u'x' : u'-';
        }
        const QStringList allowed{u"-----xxxxxxxxxx"_s, u"----x----------"_s, u"-xxx-----------"_s,
                                  u"x--------------"_s};
        QCOMPARE(taken, allowed.at(state <= Bar::Pause ? state : 6 - state));
    }
    QCOMPARE(bar.log, QStringList());
}

void TestPlaybar::liveMode()
{
    LoggedBar bar;
    const auto enabled = [&bar] {
        QString marks;
        for (const auto* button : bar.findChildren<TarvoToolButton*>())
            marks += button->isEnabled() ? u'x' : u'-';
        return marks;
    };
    bar.setLiveMode(true, true);
    QCOMPARE(enabled(), u"----x----"_s);
    QCOMPARE(bar.story(), u"x 1, Play"_s);
    for (const auto& [action, story] : {std::pair(u"click Pause"_s, u"live, x 1, Play"_s),
                                        {u"right Play"_s, u"x 1, Play"_s},
                                        {u"up Pause"_s, u"unhandled, x 1, Play"_s}}) {
        bar.act(action);
        QCOMPARE(bar.story(), story);
    }
    bar.setLiveMode(false, false);
    QCOMPARE(enabled(), u"x---xxxxx"_s);
    bar.setLiveMode(false, true);
    QCOMPARE(enabled(), u"xxxxxxxxx"_s);
    bar.setButtonEnabled(Bar::SlowForwardButton, false);
    QCOMPARE(enabled(), u"xxxxxx-xx"_s);
    QCOMPARE(bar.story(), u"x 1, Play"_s);
}

void TestPlaybar::disabled()
{
    LoggedBar bar;
    bar.setPlaybackState(Bar::Play);
    bar.setEnabled(false);
    for (const QString& action : {u"up Play"_s, u"right Play"_s, u"click Pause"_s})
        bar.act(action);
    QCOMPARE(bar.story(), u"x 1, Play"_s);
}

void TestPlaybar::strangeValues()
{
    LoggedBar bar;
    bar.setPlaybackState(Bar::FastBackward);
    bar.setPlaybackState(Bar::PlaybackState(9));
    bar.setPlaybackSpeed(Bar::Speed16);
    QCOMPARE(bar.playbackState(), Bar::PlaybackState(9));
    QCOMPARE(bar.story(), u"x 2, FastReverse"_s);
    bar.act(u"click Pause"_s);
    QCOMPARE(bar.story(), u"state 3, x 0, Pause"_s);
    bar.setButtonEnabled(Bar::PlaybackButton(11), false);
    bar.setShortcut(Bar::PlaybackButton(-1), Qt::Key_A);
    QVERIFY(bar.shortcut(Bar::PlaybackButton(11)).isEmpty());
    QCOMPARE(Bar::playbackSpeedToFloat(Bar::PlaybackSpeed(15)), 0.0F);
    for (int speed = Bar::Speed1_8; speed <= Bar::Speed1024; ++speed) {
        const float factor = 0.125F * float(1 << (speed - 1));
        QCOMPARE(Bar::playbackSpeedToFloat(Bar::PlaybackSpeed(speed)), factor);
        QCOMPARE(Bar::playbackSpeedFromFloat(factor), Bar::PlaybackSpeed(speed));
    }
    for (const float none : {3.0F, -1.0F, std::nanf("")})
        QCOMPARE(Bar::playbackSpeedFromFloat(none), Bar::SpeedZero);
}

void TestPlaybar::hover()
{
    LoggedBar bar;
    TarvoToolButton* button = bar.button(u"Play"_s);
    const QIcon normal = button->icon();
    const auto shown = [button] {
        return button->icon().pixmap(QSize(1000, 1000), 1.0, QIcon::Normal).toImage();
    };
    const auto looks = [&normal](QIcon::Mode mode) {
        return normal.pixmap(QSize(1000, 1000), 1.0, mode).toImage();
    };
    QVERIFY(looks(QIcon::Active) != looks(QIcon::Normal));
    const QPointF inside(5, 5);
    QEnterEvent enter(inside, inside, button->mapToGlobal(inside));
    QCoreApplication::sendEvent(button, &enter);
    QCOMPARE(shown(), looks(QIcon::Active));
    QCursor::setPos(button->mapToGlobal(inside.toPoint()));
    bar.setPlaybackState(Bar::Play);
    QCOMPARE(shown(), looks(QIcon::Selected));
    button->setIcon(bar.button(u"Pause"_s)->icon());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(button, &leave);
    QCOMPARE(shown(), looks(QIcon::Normal));
}

void TestPlaybar::deletionInAnySlot()
{
    const QStringList actions{
        u"click TrackStart"_s, u"click TrackEnd"_s,    u"click FrameForward"_s,
        u"click FrameBack"_s,  u"click FastForward"_s, u"click Pause"_s,
        u"right Play"_s,       u"up Play"_s,           u"down Play"_s};
    for (const QString& action : actions) {
        for (int emission = 1; emission <= 2; ++emission) {
            for (const bool inNestedLoop : {false, true}) {
                QPointer<LoggedBar> bar = new LoggedBar;
                bar->setPlaybackState(Bar::Play);
                int left = emission;
                const auto receive = [&] {
                    if (--left != 0)
                        return;
                    if (!inNestedLoop) {
                        delete bar.data();
                        return;
                    }
                    QEventLoop loop;
                    QTimer::singleShot(0, this, [&] {
                        delete bar.data();
                        QTimer::singleShot(0, &loop, &QEventLoop::quit);
                    });
                    loop.exec();
                };
                connect(bar.data(), &Bar::playbackStateChanged, this, receive);
                connect(bar.data(), &Bar::playbackSpeedChanged, this, receive);
                for (const auto signal : {&Bar::trackStartClicked, &Bar::trackEndClicked,
                                          &Bar::frameForwardClicked, &Bar::frameBackwardClicked})
                    connect(bar.data(), signal, this, receive);
                bar->act(action);
                QCOMPARE(bar.isNull(), left <= 0);
                delete bar.data();
            }
        }
    }
}

QTEST_MAIN(TestPlaybar)
#include "tst_playbar.moc"
