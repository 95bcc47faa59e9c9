// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PPlaybar>
#include <CorvelGui/TarvoToolButton>

#include <QButtonGroup>
#include <QCursor>

using namespace CorvelGui;

namespace {

using Bar = PPlaybar;

class LoggedBar : public Bar
{
public:
    LoggedBar()
    {
        connect(this, &Bar::playbackStateChanged, this,
                [this](PlaybackState state) { log << u"state %1"_s.arg(state); });
        connect(this, &Bar::playbackSpeedChanged, this,
                [this](PlaybackSpeed speed) { log << u"speed %1"_s.arg(speed); });
        for (const auto& [signal, text] : {std::pair(&Bar::trackStartClicked, u"begin"_s),
                                           {&Bar::trackEndClicked, u"end"_s},
                                           {&Bar::frameForwardClicked, u"frame on"_s},
                                           {&Bar::frameBackwardClicked, u"frame back"_s},
                                           {&Bar::pauseClickedInLiveMode, u"live"_s}})
            connect(this, signal, this, [this, text = text] { log << text; });
        show();
    }

    TarvoToolButton* button(const QString& name) const
    {
        return findChild<TarvoToolButton*>(u"button"_s + name);
    }

    /// "click Play" and "right Play" press a mouse button, "up Play" and "down Play" turn the
    /// wheel, the others call slots.
    void act(const QString& action)
    {
        const QString way = action.section(u' ', 0, 0);
        const QString name = action.section(u' ', 1);
        const int number = name.toInt();
        if (way == u"state") {
            setPlaybackState(PlaybackState(number));
        } else if (way == u"speed") {
            setPlaybackSpeed(PlaybackSpeed(number));
        } else if (way == u"live") {
            setLiveMode(number / 10, number % 10);
        } else if (way == u"keys") {
            number > 0 ? speedUp() : slowDown();
        } else if (way == u"enable") {
            setEnabled(number);
        } else if (way == u"click" || way == u"right") {
            QTest::mouseClick(button(name), way == u"click" ? Qt::LeftButton : Qt::RightButton);
        } else {
            const QPointer<LoggedBar> alive(this);
            const int delta = way == u"up" ? 120 : way == u"down" ? -120 : 0;
            if (!turnWheel(button(name), {9, 9}, {120, delta}) && alive && isEnabled())
                log << u"unhandled"_s;
        }
    }

    /// What was emitted, the label, and the checked button.
    QString story()
    {
        log << findChild<QLabel*>(u"labelPlaybackSpeed"_s)->text()
            << findChild<QButtonGroup*>(u"buttonGroup"_s)->checkedButton()->objectName().mid(6);
        return std::exchange(log, {}).join(u", "_s);
    }
    QString enabledButtons() const
    {
        QString marks;
        for (const auto* button : findChildren<TarvoToolButton*>())
            marks += button->isEnabled() ? u'x' : u'-';
        return marks;
    }

    QStringList log;
};

} // namespace

class TestPlaybar : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void form()
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
        QCOMPARE(row.join(u' '),
                 u"TrackStart|Track Begin FastReverse|Fast Backward Reverse|Backward "
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

    void journeys()
    {
        // Actions, each with the signals that follow, the label and the checked button.
        const auto journeys = uR"(
buttons > click TrackStart: begin, x 0, Pause > click FrameBack: frame back, x 0, Pause
  > click Pause: x 0, Pause > click Play: state 5, x 1, Play > click Play: x 1, Play
  > click FrameForward: state 3, frame on, x 0, Pause > click Reverse: state 1, x -1, Reverse
  > click Reverse: x -1, Reverse > click FrameBack: state 3, frame back, x 0, Pause
  > click FastForward: state 6, x 2, FastForward > click FastForward: speed 6, x 4, FastForward
  > click FastForward: speed 7, x 8, FastForward > click TrackEnd: state 3, end, x 0, Pause
  > click FastReverse: state 0, x -2, FastReverse > click FastReverse: speed 6, x -4, FastReverse
  > click FastForward: state 6, x 2, FastForward > click Pause: state 3, x 0, Pause
fast buttons go round > state 6: x 2, FastForward > speed 14: x 1024, FastForward
  > click FastForward: speed 5, x 2, FastForward > click TrackStart: state 3, begin, x 0, Pause
slow states count as others > state 4: x 1/2, Play > click Play: state 5, x 1, Play
  > state 2: x -1/2, Reverse > click Reverse: state 1, x -1, Reverse
right-clicks > state 5: x 1, Play > right Reverse: x 1, Play > right Pause: x 1, Play
  > right FastForward: state 3, x 0, Pause > state 6: x 2, FastForward > right Play: state 3, x 0, Pause
  > state 2: x -1/2, Reverse > right FastForward: x -1/2, Reverse > right FastReverse: state 3, x 0, Pause
wheel forwards > state 4: x 1/2, Play > speed 1: x 1/8, Play > down Play: unhandled, x 1/8, Play
  > up Play: speed 2, x 1/4, Play > up Pause: speed 3, x 1/2, Play > up Play: speed 4, x 1, Play
  > down Play: speed 3, x 1/2, Play > up Play: speed 4, x 1, Play > sideways Play: unhandled, x 1, Play
  > up TrackStart: state 6, x 2, FastForward > up TrackEnd: speed 6, x 4, FastForward
  > down FrameBack: speed 5, x 2, FastForward > down FastForward: state 5, x 1, Play
  > state 6: x 2, FastForward > speed 13: x 512, FastForward > up Play: speed 14, x 1024, FastForward
  > up Play: unhandled, x 1024, FastForward > down Play: speed 13, x 512, FastForward
wheel backwards > state 2: x -1/2, Reverse > up Reverse: speed 4, x -1, Reverse
  > up Play: state 0, x -2, FastReverse > down Play: state 1, x -1, Reverse
wheel in pause > up FastReverse: frame on, x 0, Pause > down FastForward: frame back, x 0, Pause
  > sideways Pause: unhandled, x 0, Pause
the sign follows > state 1: x -1, Reverse > state 5: x 1, Play > state 0: x -2, FastReverse
  > speed 8: x -16, FastReverse > state 6: x 16, FastForward > state 2: x -1/2, Reverse > state 3: x 0, Pause
unknown state > state 0: x -2, FastReverse > state 9: x 2, FastReverse > speed 8: x 2, FastReverse
  > click Pause: state 3, x 0, Pause
live > live 11: x 1, Play > click Pause: live, x 1, Play > right Play: x 1, Play
  > up Pause: unhandled, x 1, Play > click FastForward: x 1, Play > live 1: x 1, Play
  > click Pause: state 3, x 0, Pause > live 0: x 0, Pause > click FastReverse: x 0, Pause
keys > keys -1: x 0, Pause > state 5: x 1, Play > keys -1: speed 3, x 1/2, Play
  > keys 1: speed 4, x 1, Play > keys 1: state 6, x 2, FastForward > live 11: x 1, Play > keys -1: x 1, Play
disabled > state 5: x 1, Play > enable 0: x 1, Play > up Play: x 1, Play > right Play: x 1, Play)"_s;
        for (const QString& journey :
             QString(journeys).replace(u"\n  "_s, u" "_s).trimmed().split(u'\n')) {
            LoggedBar bar;
            for (const QString& step : journey.split(u" > "_s).sliced(1)) {
                const QString action = step.section(u": "_s, 0, 0);
                bar.act(action);
                QCOMPARE(action + u": "_s + bar.story(), step);
            }
        }
    }

    void allowedSpeeds()
    {
        LoggedBar bar;
        const QStringList allowed{u"-----xxxxxxxxxx"_s, u"----x----------"_s, u"-xxx-----------"_s,
                                  u"x--------------"_s};
        for (int state = Bar::FastBackward; state <= Bar::FastForward; ++state) {
            QString taken;
            for (int speed = Bar::SpeedZero; speed <= Bar::Speed1024; ++speed) {
                bar.setPlaybackState(Bar::PlaybackState(state));
                bar.setPlaybackSpeed(Bar::PlaybackSpeed(speed));
                taken += bar.playbackSpeed() == speed ? u'x' : u'-';
            }
            QCOMPARE(taken, allowed.at(state <= Bar::Pause ? state : 6 - state));
        }
        for (int speed = Bar::Speed1_8; speed <= Bar::Speed1024; ++speed) {
            const float factor = 0.125F * float(1 << (speed - 1));
            QCOMPARE(Bar::playbackSpeedToFloat(Bar::PlaybackSpeed(speed)), factor);
            QCOMPARE(Bar::playbackSpeedFromFloat(factor), Bar::PlaybackSpeed(speed));
        }
        QCOMPARE(Bar::playbackSpeedToFloat(Bar::PlaybackSpeed(15)), 0.0F);
        for (const float none : {3.0F, -1.0F, std::nanf("")})
            QCOMPARE(Bar::playbackSpeedFromFloat(none), Bar::SpeedZero);
    }

    void enabledButtons()
    {
        LoggedBar bar;
        TarvoToolButton* pause = bar.button(u"Pause"_s);
        pause->setFocus();
        QTest::mousePress(pause, Qt::LeftButton);
        for (const auto& [mode, marks] : {std::pair(u"live 11"_s, u"----x----"_s),
                                          {u"live 0"_s, u"x---xxxxx"_s},
                                          {u"live 1"_s, u"xxxxxxxxx"_s}}) {
            bar.act(mode);
            QCOMPARE(bar.enabledButtons(), marks);
            QVERIFY(pause->isDown() && bar.focusWidget() == pause);
        }
        bar.setButtonEnabled(Bar::SlowForwardButton, false);
        bar.setButtonEnabled(Bar::PlaybackButton(11), false);
        bar.setShortcut(Bar::PlaybackButton(-1), Qt::Key_A);
        QVERIFY(bar.shortcut(Bar::PlaybackButton(11)).isEmpty());
        QCOMPARE(bar.enabledButtons(), u"xxxxxx-xx"_s);
    }

    void hover()
    {
        LoggedBar bar;
        TarvoToolButton* button = bar.button(u"Play"_s);
        const auto looks = [](const QIcon& icon, QIcon::Mode mode = QIcon::Normal) {
            return icon.pixmap(QSize(1000, 1000), 1.0, mode).toImage();
        };
        const QIcon normal = button->icon();
        QVERIFY(looks(normal, QIcon::Active) != looks(normal));

        enterMouse(*button, {5, 5});

        QCOMPARE(looks(button->icon()), looks(normal, QIcon::Active));
        QCursor::setPos(button->mapToGlobal(QPoint(5, 5)));
        bar.setPlaybackState(Bar::Play);
        QCOMPARE(looks(button->icon()), looks(normal, QIcon::Selected));
        button->setIcon(bar.button(u"Pause"_s)->icon());
        leaveMouse(*button);

        QCOMPARE(looks(button->icon()), looks(normal));
    }

    void deletionInAnySlot()
    {
        for (const auto& action :
             {u"click TrackStart"_s, u"click TrackEnd"_s, u"click FrameForward"_s,
              u"click FrameBack"_s, u"click FastForward"_s, u"click Pause"_s, u"right Play"_s,
              u"up Play"_s, u"down Play"_s}) {
            for (int way = 0; way < 4; ++way) {
                QPointer<LoggedBar> bar = new LoggedBar;
                bar->setPlaybackState(Bar::Play);
                // Qt touches the button after its signal.
                const QPointer<QWidget> button = bar->button(action.section(u' ', 1));
                bool outlives = true;
                int left = 1 + way / 2; // in the first emission or the second
                const auto receive = [&] {
                    if (--left != 0)
                        return;
                    deleteWithin(bar, way % 2);
                    outlives = button;
                };
                connect(bar.data(), &Bar::playbackStateChanged, this, receive);
                connect(bar.data(), &Bar::playbackSpeedChanged, this, receive);
                for (const auto signal : {&Bar::trackStartClicked, &Bar::trackEndClicked,
                                          &Bar::frameForwardClicked, &Bar::frameBackwardClicked})
                    connect(bar.data(), signal, this, receive);
                bar->act(action);
                QVERIFY(outlives);
                QCOMPARE(bar.isNull(), left <= 0);
                delete bar.data();
            }
        }
    }
};

QTEST_MAIN(TestPlaybar)
#include "tst_playbar.moc"
