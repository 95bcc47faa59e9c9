// SPDX-License-Identifier: MIT
#include "playerkeys.h"

#include <CorvelGui/TarvoDateTimeView>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

using CorvelGui::PPlaybar;
using CorvelGui::TarvoDateTimeView;

namespace Review {

namespace {

bool needsSpaceBar(const QObject* widget)
{
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget))
        return view->currentIndex().data(Qt::CheckStateRole).isValid();
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const TarvoDateTimeView*>(widget);
}

} // namespace

PlayerKeys::PlayerKeys(PPlaybar* bar, QObject* parent) : QObject(parent), m_bar(bar)
{
    qApp->installEventFilter(this);
    setShortcuts(defaultShortcuts());
}

void PlayerKeys::setShortcuts(const Shortcuts& shortcuts)
{
    m_shortcuts = shortcuts;
    for (const auto button :
         {PPlaybar::TrackStartButton, PPlaybar::FastBackwardButton, PPlaybar::ReverseButton,
          PPlaybar::FrameBackwardButton, PPlaybar::FrameForwardButton, PPlaybar::FastForwardButton,
          PPlaybar::TrackEndButton})
        m_bar->setShortcut(button, m_shortcuts.value(button));
    followBar();
}

void PlayerKeys::followBar()
{
    const QKeySequence pause = m_shortcuts.value(PPlaybar::PauseButton);
    const QKeySequence play = m_shortcuts.value(PPlaybar::PlayButton);
    const bool shared = pause == play;
    const bool playing = m_bar->playbackState() != PPlaybar::Pause;
    m_bar->setShortcut(PPlaybar::PauseButton, shared && !playing ? QKeySequence() : pause);
    m_bar->setShortcut(PPlaybar::PlayButton, shared && playing ? QKeySequence() : play);
}

bool PlayerKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Space && key->modifiers() == Qt::NoModifier &&
            needsSpaceBar(watched)) {
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Review
