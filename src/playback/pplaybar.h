// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QKeySequence>
#include <QList>
#include <QWidget>

#include <memory>

namespace CorvelGui {

/// The transport bar of a player of recorded video: nine buttons, and a label with the speed.
///
/// It keeps a playback state and a speed and moves between them on clicks, on the mouse wheel and
/// on right-clicks. It plays nothing itself: clients apply what its signals report to their player,
/// and mirror the player into the bar through the setters, which are silent.
///
/// The wheel steps the speed over any of the nine buttons, and steps frames while paused. A
/// right-click on the buttons of the direction that is played pauses. Live mode leaves the pause
/// button only.
class CORVELGUI_EXPORT PPlaybar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(CorvelGui::PPlaybar::PlaybackState playbackState READ playbackState WRITE
                   setPlaybackState NOTIFY playbackStateChanged)
    Q_PROPERTY(CorvelGui::PPlaybar::PlaybackSpeed playbackSpeed READ playbackSpeed WRITE
                   setPlaybackSpeed NOTIFY playbackSpeedChanged)
    Q_PROPERTY(bool live READ isLive WRITE setLive)
    Q_PROPERTY(
        bool reversePlaybackEnabled READ isReversePlaybackEnabled WRITE setReversePlaybackEnabled)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)
    Q_PROPERTY(bool speedVisible READ isSpeedVisible WRITE setSpeedVisible)

public:
    /// States below Pause run backwards in time.
    enum PlaybackState : int {
        FastBackward, ///< 2x to 1024x, 2x on entry
        Reverse,      ///< 1x
        SlowReverse,  ///< 1/8 to 1/2, 1/2 on entry
        Pause,
        SlowForward, ///< as SlowReverse
        Play,        ///< as Reverse
        FastForward  ///< as FastBackward
    };
    Q_ENUM(PlaybackState)

    enum PlaybackSpeed : int {
        SpeedZero,
        Speed1_8,
        Speed1_4,
        Speed1_2,
        Speed1,
        Speed2,
        Speed4,
        Speed8,
        Speed16,
        Speed32,
        Speed64,
        Speed128,
        Speed256,
        Speed512,
        Speed1024
    };
    Q_ENUM(PlaybackSpeed)

    /// Addresses a button. Backward and forward go by two names each.
    enum PlaybackButton : int {
        TrackStartButton,
        FastBackwardButton,
        ReverseButton,
        SlowReverseButton,
        FrameBackwardButton,
        PauseButton,
        FrameForwardButton,
        SlowForwardButton,
        PlayButton,
        FastForwardButton,
        TrackEndButton
    };
    Q_ENUM(PlaybackButton)

    explicit PPlaybar(QWidget* parent = nullptr);
    ~PPlaybar() override;

    PlaybackState playbackState() const;
    PlaybackSpeed playbackSpeed() const;

    /// The factor of @p speed, 0 for a value that is none. Always positive: the direction is in the
    /// state.
    static float playbackSpeedToFloat(PlaybackSpeed speed);
    /// The speed with that factor, to 1e-5; SpeedZero if there is none.
    static PlaybackSpeed playbackSpeedFromFloat(float factor);

    /// One value for each button, from left to right.
    static QList<PlaybackButton> buttons();
    /// What the button is called, in the language of the moment, such as "Frame Forward"; it is its
    /// tooltip as well. Empty for a value that addresses no button.
    static QString buttonName(PlaybackButton playbackButton);

    /// What setLiveMode() was told; not live, and with reverse playback at first.
    bool isLive() const;
    bool isReversePlaybackEnabled() const;
    /// The size of the icons in pixels, 24 by 24 at first.
    QSize iconSize() const;

    /// Whether the speed stands beside the buttons, as it does at first.
    bool isSpeedVisible() const;

    /// Does nothing for a value that addresses no button.
    void setShortcut(PlaybackButton playbackButton, const QKeySequence& shortcut);
    /// Empty for a value that addresses no button.
    QKeySequence shortcut(PlaybackButton playbackButton) const;

public Q_SLOTS:
    /// Takes the state of the player. The speed stays if the state allows it, and becomes that on
    /// entry otherwise. A value that is no state is kept, but changes neither speed nor buttons.
    void setPlaybackState(CorvelGui::PPlaybar::PlaybackState playbackState);
    /// Takes the speed of the player; ignored if the state does not allow it.
    void setPlaybackSpeed(CorvelGui::PPlaybar::PlaybackSpeed playbackSpeed);
    /// Live mode enters Play and leaves the pause button only, which then reports instead of
    /// pausing. Without @p enableReversePlayback the backward buttons stay disabled outside it too.
    void setLiveMode(bool liveMode, bool enableReversePlayback);
    /// Each is setLiveMode() with the other value as it is.
    void setLive(bool live);
    void setReversePlaybackEnabled(bool enabled);
    /// Lasts until the next change by setLiveMode(), which enables and disables all buttons.
    void setButtonEnabled(CorvelGui::PPlaybar::PlaybackButton playbackButton, bool enable);
    /// Sets the size of all icons in pixels, and the bar's minimum size to nine of them in a row.
    void setIconSize(QSize size);

    /// For a client that shows the speed elsewhere.
    void setSpeedVisible(bool visible);

    /// What a notch of the wheel away from the user does while something plays, with the signals of
    /// that: for keys and menus. Does nothing in pause and in live mode.
    void speedUp();
    /// The same for a notch to the user: from 1x on through the speeds below 1.
    void slowDown();

Q_SIGNALS:
    /// Emitted when the user changed the state by a click, the wheel or a right-click. The speed is
    /// then that on entry, without a signal of its own. Never emitted by the setters.
    void playbackStateChanged(CorvelGui::PPlaybar::PlaybackState playbackState);
    /// Emitted when the user stepped the speed within a state, also if it stayed at the same value.
    void playbackSpeedChanged(CorvelGui::PPlaybar::PlaybackSpeed playbackSpeed);
    /// Emitted on a click, after pausing.
    void trackStartClicked();
    /// Emitted on a click, after pausing.
    void trackEndClicked();
    /// Emitted on a click, after pausing, and when the wheel is turned away from the user in pause.
    void frameForwardClicked();
    /// Emitted on a click, after pausing, and when the wheel is turned to the user in pause.
    void frameBackwardClicked();
    /// Emitted on a click on pause in live mode, which changes nothing in the bar.
    void pauseClickedInLiveMode();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void onTrackStartClicked();
    void onFastBackwardClicked();
    void onReverseClicked();
    void onFrameBackwardClicked();
    void gotoPauseState();
    void onFrameForwardClicked();
    void onPlayClicked();
    void onFastForwardClicked();
    void onTrackEndClicked();

private:
    struct Private;

    void onPauseClicked();
    void enter(PlaybackState state);
    void changePlaybackState(PlaybackState state);
    void changeToFastState(PlaybackState state);
    void setNextPlaybackSpeed();
    void setPrevPlaybackSpeed();
    void stepPlaybackSpeed(PlaybackSpeed speed);
    void pauseAndReport(void (PPlaybar::*signal)());
    template <typename... Args>
    void report(void (PPlaybar::*signal)(Args...), Args... args);
    void pauseByRightClick(const QWidget& button, const QMouseEvent& release);
    bool stepByWheel(int delta);
    bool stepFastByWheel(bool up);
    bool stepSlowByWheel(bool up);
    void checkStateButton();
    void refreshLabel();
    void retranslate();

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
