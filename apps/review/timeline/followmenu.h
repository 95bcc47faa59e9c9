// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <CorvelGui/Ruler>

#include <QMap>
#include <QMenu>

namespace Review {

/// How the view of the timeline goes after the moment.
class FollowMenu : public Translated<QMenu>
{
    Q_OBJECT

public:
    using Mode = CorvelGui::Ruler::FollowMode;

    explicit FollowMenu(QWidget* parent = nullptr);

    Mode mode() const;
    void setMode(Mode mode);

Q_SIGNALS:
    /// Emitted when another mode is set or chosen.
    void modeChanged(CorvelGui::Ruler::FollowMode mode);
    /// Emitted after that when the user chose.
    void chosen();

protected:
    void retranslate() final;

private:
    QMap<Mode, QAction*> m_modes;
};

} // namespace Review
