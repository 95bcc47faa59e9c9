// SPDX-License-Identifier: MIT
#include "speedmenu.h"

#include "player.h"

#include <QActionGroup>

#include <algorithm>

using CorvelGui::PPlaybar;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int slowest = PPlaybar::Speed1_8;
constexpr int fastest = PPlaybar::Speed1024;

} // namespace

SpeedMenu::SpeedMenu(Player& player, QWidget* parent)
    : Translated(parent)
    , m_player(player)
    , m_slower(addAction(QString()))
    , m_faster(addAction(QString()))
{
    m_slower->setShortcut(slowerKeys());
    m_faster->setShortcut(fasterKeys());
    connect(m_slower, &QAction::triggered, this, [this] { step(-1); });
    connect(m_faster, &QAction::triggered, this, [this] { step(1); });
    addSeparator();
    auto* group = new QActionGroup(this);
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (int i = slowest; i <= fastest; ++i) {
        const auto speed = PPlaybar::PlaybackSpeed(i);
        QAction* action = group->addAction(addAction(textOf(speed)));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, speed] { m_player.setSpeed(speed); });
        m_speeds.insert(speed, action);
    }
    connect(this, &QMenu::aboutToShow, this, &SpeedMenu::showSpeed);
    retranslate();
}

QString SpeedMenu::textOf(PPlaybar::PlaybackSpeed speed)
{
    const float factor = PPlaybar::playbackSpeedToFloat(speed);
    return factor > 0 && factor < 1 ? u"× 1/%1"_s.arg(qRound(1 / factor))
                                    : u"× %1"_s.arg(qRound(factor));
}

QKeySequence SpeedMenu::slowerKeys()
{
    return Qt::CTRL | Qt::Key_Down;
}

QKeySequence SpeedMenu::fasterKeys()
{
    return Qt::CTRL | Qt::Key_Up;
}

void SpeedMenu::step(int by)
{
    const int speed = m_player.isPlaying() ? m_player.speed() : PPlaybar::Speed1;
    m_player.setSpeed(PPlaybar::PlaybackSpeed(std::clamp(speed + by, slowest, fastest)));
}

void SpeedMenu::showSpeed()
{
    for (const auto& [speed, action] : m_speeds.asKeyValueRange())
        action->setChecked(speed == m_player.speed());
}

void SpeedMenu::retranslate()
{
    setTitle(tr("&Playback"));
    m_slower->setText(tr("&Slower"));
    m_faster->setText(tr("&Faster"));
}

} // namespace Review
