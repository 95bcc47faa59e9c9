// SPDX-License-Identifier: MIT
#include "pplaybar.h"

#include "base/controlemissions.h"
#include "base/whilealive.h"
#include "playbackrules.h"
#include "ui_pplaybar.h"

#include <Hueloft/PTarvoPlayerIconHelper>

#include <QCoreApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <array>
#include <cmath>

using Hueloft::PTarvoPlayerIconHelper;

namespace CorvelGui {

struct PPlaybar::Private
{
    TarvoToolButton* button(PlaybackButton which) const
    {
        const std::array<TarvoToolButton*, 11> buttons{
            ui.buttonTrackStart, ui.buttonFastReverse, ui.buttonReverse,      ui.buttonReverse,
            ui.buttonFrameBack,  ui.buttonPause,       ui.buttonFrameForward, ui.buttonPlay,
            ui.buttonPlay,       ui.buttonFastForward, ui.buttonTrackEnd};
        TarvoToolButton* const* const found = entryAt(buttons, which);
        return found ? *found : nullptr;
    }

    std::array<TarvoToolButton*, 9> buttons() const
    {
        return {ui.buttonTrackStart, ui.buttonFastReverse, ui.buttonReverse,
                ui.buttonFrameBack,  ui.buttonPause,       ui.buttonFrameForward,
                ui.buttonPlay,       ui.buttonFastForward, ui.buttonTrackEnd};
    }

    bool backwardChecked() const
    {
        return ui.buttonFastReverse->isChecked() || ui.buttonReverse->isChecked();
    }
    bool forwardChecked() const
    {
        return ui.buttonFastForward->isChecked() || ui.buttonPlay->isChecked();
    }

    Ui::PPlaybar ui;
    PlaybackState state = Pause;
    PlaybackSpeed speed = SpeedZero;
    bool liveMode = false;
    bool reverseEnabled = true;
    ControlEmissions emissions;
};

PPlaybar::PPlaybar(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>())
{
    d->ui.setupUi(this);
    const auto prepare = [this](TarvoToolButton* button, const QIcon& icon,
                                void (PPlaybar::*slot)()) {
        button->setIcon(icon);
        button->installEventFilter(this);
        connect(button, &TarvoToolButton::clicked, this, slot);
    };
    using Icons = PTarvoPlayerIconHelper;
    const Ui::PPlaybar& ui = d->ui;
    prepare(ui.buttonTrackStart, Icons::GetStartDouble_32x32(), &PPlaybar::onTrackStartClicked);
    prepare(ui.buttonFastReverse, Icons::GetFastRewind_32x32(), &PPlaybar::onFastBackwardClicked);
    prepare(ui.buttonReverse, Icons::GetPlayReverse_32x32(), &PPlaybar::onReverseClicked);
    prepare(ui.buttonFrameBack, Icons::GetStartSingle_32x32(), &PPlaybar::onFrameBackwardClicked);
    prepare(ui.buttonPause, Icons::GetPause_32x32(), &PPlaybar::onPauseClicked);
    prepare(ui.buttonFrameForward, Icons::GetEndSingle_32x32(), &PPlaybar::onFrameForwardClicked);
    prepare(ui.buttonPlay, Icons::GetPlay_32x32(), &PPlaybar::onPlayClicked);
    prepare(ui.buttonFastForward, Icons::GetFastForward_32x32(), &PPlaybar::onFastForwardClicked);
    prepare(ui.buttonTrackEnd, Icons::GetEndDoubleIcon_32x32(), &PPlaybar::onTrackEndClicked);
    retranslate();
    checkStateButton();
}

PPlaybar::~PPlaybar()
{
    const auto buttons = d->buttons();
    d->emissions.release({buttons.begin(), buttons.end()});
}

PPlaybar::PlaybackState PPlaybar::playbackState() const
{
    return d->state;
}

PPlaybar::PlaybackSpeed PPlaybar::playbackSpeed() const
{
    return d->speed;
}

float PPlaybar::playbackSpeedToFloat(PlaybackSpeed speed)
{
    const SpeedRule* rule = entryAt(speedRules, speed);
    return rule ? rule->factor : 0.0F;
}

PPlaybar::PlaybackSpeed PPlaybar::playbackSpeedFromFloat(float factor)
{
    for (size_t speed = 0; speed < speedRules.size(); ++speed) {
        if (std::abs(speedRules[speed].factor - factor) < 1e-5F)
            return PlaybackSpeed(speed);
    }
    return SpeedZero;
}

QList<PPlaybar::PlaybackButton> PPlaybar::buttons()
{
    return {TrackStartButton,    FastBackwardButton, ReverseButton,
            FrameBackwardButton, PauseButton,        FrameForwardButton,
            PlayButton,          FastForwardButton,  TrackEndButton};
}

QString PPlaybar::buttonName(PlaybackButton playbackButton)
{
    switch (playbackButton) {
    case TrackStartButton:
        return tr("Track Begin");
    case FastBackwardButton:
        return tr("Fast Backward");
    case ReverseButton:
    case SlowReverseButton:
        return tr("Backward");
    case FrameBackwardButton:
        return tr("Frame Backward");
    case PauseButton:
        return tr("Pause");
    case FrameForwardButton:
        return tr("Frame Forward");
    case SlowForwardButton:
    case PlayButton:
        return tr("Forward");
    case FastForwardButton:
        return tr("Fast Forward");
    case TrackEndButton:
        return tr("Track End");
    }
    return {};
}

void PPlaybar::setShortcut(PlaybackButton playbackButton, const QKeySequence& shortcut)
{
    if (TarvoToolButton* button = d->button(playbackButton))
        button->setShortcut(shortcut);
}

QKeySequence PPlaybar::shortcut(PlaybackButton playbackButton) const
{
    const TarvoToolButton* button = d->button(playbackButton);
    return button ? button->shortcut() : QKeySequence();
}

void PPlaybar::setPlaybackState(PlaybackState playbackState)
{
    if (playbackState == d->state)
        return;
    d->state = playbackState;
    const StateRule* rule = entryAt(stateRules, playbackState);
    if (rule && (d->speed < rule->slowest || d->speed > rule->fastest))
        d->speed = rule->onEntry;
    // Also when the speed stays: the sign belongs to the state.
    refreshLabel();
    checkStateButton();
}

void PPlaybar::setPlaybackSpeed(PlaybackSpeed playbackSpeed)
{
    const StateRule* rule = entryAt(stateRules, d->state);
    if (playbackSpeed == d->speed || !rule || playbackSpeed < rule->slowest ||
        playbackSpeed > rule->fastest)
        return;
    d->speed = playbackSpeed;
    refreshLabel();
}

void PPlaybar::setLiveMode(bool liveMode, bool enableReversePlayback)
{
    if (liveMode == d->liveMode && enableReversePlayback == d->reverseEnabled)
        return;
    d->liveMode = liveMode;
    d->reverseEnabled = enableReversePlayback;

    const Ui::PPlaybar& ui = d->ui;
    ui.buttonPause->setEnabled(true);
    for (TarvoToolButton* button : {ui.buttonFastReverse, ui.buttonReverse, ui.buttonFrameBack})
        button->setEnabled(!liveMode && enableReversePlayback);
    for (TarvoToolButton* button : {ui.buttonTrackStart, ui.buttonFrameForward, ui.buttonPlay,
                                    ui.buttonFastForward, ui.buttonTrackEnd})
        button->setEnabled(!liveMode);

    if (liveMode && d->state != Play)
        enter(Play);
}

bool PPlaybar::isLive() const
{
    return d->liveMode;
}

void PPlaybar::setLive(bool live)
{
    setLiveMode(live, d->reverseEnabled);
}

bool PPlaybar::isReversePlaybackEnabled() const
{
    return d->reverseEnabled;
}

void PPlaybar::setReversePlaybackEnabled(bool enabled)
{
    setLiveMode(d->liveMode, enabled);
}

void PPlaybar::setButtonEnabled(PlaybackButton playbackButton, bool enable)
{
    if (TarvoToolButton* button = d->button(playbackButton))
        button->setEnabled(enable);
}

QSize PPlaybar::iconSize() const
{
    return d->ui.buttonPause->iconSize();
}

void PPlaybar::setIconSize(QSize size)
{
    const auto buttons = d->buttons();
    for (TarvoToolButton* button : buttons)
        button->setIconSize(size);
    setMinimumSize(int(buttons.size()) * size.width(), size.height());
}

void PPlaybar::speedUp()
{
    if (!d->liveMode && d->state != Pause)
        stepByWheel(1);
}

void PPlaybar::slowDown()
{
    if (!d->liveMode && d->state != Pause)
        stepByWheel(-1);
}

bool PPlaybar::eventFilter(QObject* watched, QEvent* event)
{
    bool handled = false;
    const bool lives = whileAlive(this, [&] {
        if (event->type() == QEvent::MouseButtonRelease)
            pauseByRightClick(*static_cast<QWidget*>(watched), *static_cast<QMouseEvent*>(event));
        else if (event->type() == QEvent::Wheel && !d->liveMode && isEnabled())
            handled = stepByWheel(static_cast<QWheelEvent*>(event)->angleDelta().y());
    });
    if (handled)
        event->accept();
    return handled || !lives || QWidget::eventFilter(watched, event);
}

void PPlaybar::pauseByRightClick(const QWidget& button, const QMouseEvent& release)
{
    // Disabled buttons get here too.
    if (release.button() != Qt::RightButton || !button.isEnabled() ||
        !button.rect().contains(release.position().toPoint()))
        return;
    const Ui::PPlaybar& ui = d->ui;
    const bool backward = &button == ui.buttonFastReverse || &button == ui.buttonReverse;
    const bool forward = &button == ui.buttonFastForward || &button == ui.buttonPlay;
    if ((backward && d->backwardChecked()) || (forward && d->forwardChecked()))
        gotoPauseState();
}

void PPlaybar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void PPlaybar::retranslate()
{
    d->ui.retranslateUi(this);
    for (const PlaybackButton which : buttons()) {
        d->button(which)->setToolTip(buttonName(which));
        d->button(which)->setAccessibleName(buttonName(which));
    }
    refreshLabel();
}

void PPlaybar::onTrackStartClicked()
{
    pauseAndReport(&PPlaybar::trackStartClicked);
}

void PPlaybar::onFastBackwardClicked()
{
    changeToFastState(FastBackward);
}

void PPlaybar::onReverseClicked()
{
    changePlaybackState(Reverse);
}

void PPlaybar::onFrameBackwardClicked()
{
    pauseAndReport(&PPlaybar::frameBackwardClicked);
}

void PPlaybar::onPauseClicked()
{
    if (!d->liveMode) {
        gotoPauseState();
        return;
    }
    // The click has checked the pause button.
    checkStateButton();
    report(&PPlaybar::pauseClickedInLiveMode);
}

void PPlaybar::gotoPauseState()
{
    changePlaybackState(Pause);
}

void PPlaybar::onFrameForwardClicked()
{
    pauseAndReport(&PPlaybar::frameForwardClicked);
}

void PPlaybar::onPlayClicked()
{
    changePlaybackState(Play);
}

void PPlaybar::onFastForwardClicked()
{
    changeToFastState(FastForward);
}

void PPlaybar::onTrackEndClicked()
{
    pauseAndReport(&PPlaybar::trackEndClicked);
}

void PPlaybar::enter(PlaybackState state)
{
    d->state = state;
    d->speed = stateRules[size_t(state)].onEntry;
    refreshLabel();
    checkStateButton();
}

void PPlaybar::changePlaybackState(PlaybackState state)
{
    if (state == d->state)
        return;
    enter(state);
    report(&PPlaybar::playbackStateChanged, state);
}

void PPlaybar::changeToFastState(PlaybackState state)
{
    if (state == d->state)
        setNextPlaybackSpeed();
    else
        changePlaybackState(state);
}

void PPlaybar::setNextPlaybackSpeed()
{
    stepPlaybackSpeed(speedRules[size_t(d->speed)].next);
}

void PPlaybar::setPrevPlaybackSpeed()
{
    stepPlaybackSpeed(speedRules[size_t(d->speed)].previous);
}

void PPlaybar::stepPlaybackSpeed(PlaybackSpeed speed)
{
    // The state stays, so that the wheel slows down without leaving Play.
    d->speed = speed;
    refreshLabel();
    report(&PPlaybar::playbackSpeedChanged, speed);
}

void PPlaybar::pauseAndReport(void (PPlaybar::*signal)())
{
    whileAlive(
        this, [this] { gotoPauseState(); }, [this, signal] { report(signal); });
}

template <typename... Args>
void PPlaybar::report(void (PPlaybar::*signal)(Args...), Args... args)
{
    d->emissions.run([&] { Q_EMIT(this->*signal)(args...); });
}

bool PPlaybar::stepByWheel(int delta)
{
    if (delta == 0)
        return false;
    const bool up = delta > 0;
    const Ui::PPlaybar& ui = d->ui;
    if (ui.buttonFastReverse->isChecked() || ui.buttonFastForward->isChecked())
        return stepFastByWheel(up);
    if (ui.buttonReverse->isChecked() || ui.buttonPlay->isChecked())
        return stepSlowByWheel(up);
    if (d->state != Pause)
        return false;
    report(up ? &PPlaybar::frameForwardClicked : &PPlaybar::frameBackwardClicked);
    return true;
}

bool PPlaybar::stepFastByWheel(bool up)
{
    if (up) {
        if (d->speed == Speed1024)
            return false;
        setNextPlaybackSpeed();
    } else if (d->speed != Speed2) {
        setPrevPlaybackSpeed();
    } else if (d->ui.buttonFastReverse->isChecked()) {
        changePlaybackState(Reverse);
    } else {
        onPlayClicked();
    }
    return true;
}

bool PPlaybar::stepSlowByWheel(bool up)
{
    if (!up) {
        if (d->speed == Speed1_8)
            return false;
        setPrevPlaybackSpeed();
    } else if (d->speed == Speed1) {
        changeToFastState(d->ui.buttonReverse->isChecked() ? FastBackward : FastForward);
    } else {
        setNextPlaybackSpeed();
    }
    return true;
}

bool PPlaybar::isSpeedVisible() const
{
    return !d->ui.labelPlaybackSpeed->isHidden();
}

void PPlaybar::setSpeedVisible(bool visible)
{
    d->ui.labelPlaybackSpeed->setVisible(visible);
}

void PPlaybar::checkStateButton()
{
    const StateRule* rule = entryAt(stateRules, d->state);
    if (rule)
        d->button(rule->button)->setChecked(true);
}

void PPlaybar::refreshLabel()
{
    const QString sign(d->state < Pause ? QStringLiteral("-") : QString());
    const QString speed = QCoreApplication::translate("QObject", speedRules[size_t(d->speed)].text);
    d->ui.labelPlaybackSpeed->setText(tr("x %1%2").arg(sign, speed));
}

} // namespace CorvelGui
