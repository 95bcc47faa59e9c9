// SPDX-License-Identifier: MIT
#include "followmenu.h"

#include <QActionGroup>

namespace Review {

FollowMenu::FollowMenu(QWidget* parent) : Translated(parent)
{
    auto* group = new QActionGroup(this);
    for (const Mode mode : {Mode::Off, Mode::Pages, Mode::Centered, Mode::Smooth}) {
        QAction* action = group->addAction(addAction(QString()));
        action->setCheckable(true);
        connect(action, &QAction::toggled, this, [this, mode](bool on) {
            if (on)
                Q_EMIT modeChanged(mode);
        });
        m_modes.insert(mode, action);
    }
    m_modes[Mode::Pages]->setChecked(true);
    connect(group, &QActionGroup::triggered, this, &FollowMenu::chosen);
    retranslate();
}

FollowMenu::Mode FollowMenu::mode() const
{
    for (const auto& [mode, action] : m_modes.asKeyValueRange()) {
        if (action->isChecked())
            return mode;
    }
    return Mode::Off;
}

void FollowMenu::setMode(Mode mode)
{
    m_modes[mode]->setChecked(true);
}

void FollowMenu::retranslate()
{
    setTitle(tr("&Follow"));
    m_modes[Mode::Off]->setText(tr("&Off"));
    m_modes[Mode::Pages]->setText(tr("By &pages"));
    m_modes[Mode::Centered]->setText(tr("&Centred"));
    m_modes[Mode::Smooth]->setText(tr("&Smoothly"));
}

} // namespace Review
