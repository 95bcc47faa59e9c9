// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <CorvelGui/PPlaybar>

#include <QKeySequence>
#include <QMenu>

namespace Review {

class Player;

/// All speeds of a player, and its next slower and faster one with a key each. While it is paused,
/// these two play at half and at double speed.
class SpeedMenu : public Translated<QMenu>
{
    Q_OBJECT

public:
    /// @p player must live longer.
    explicit SpeedMenu(Player& player, QWidget* parent = nullptr);

    /// As in "× 1/2".
    static QString textOf(CorvelGui::PPlaybar::PlaybackSpeed speed);
    static QKeySequence slowerKeys();
    static QKeySequence fasterKeys();

protected:
    void retranslate() final;

private:
    void step(int by);
    void showSpeed();

    Player& m_player;
    QAction* m_slower;
    QAction* m_faster;
    QMap<CorvelGui::PPlaybar::PlaybackSpeed, QAction*> m_speeds;
};

} // namespace Review
