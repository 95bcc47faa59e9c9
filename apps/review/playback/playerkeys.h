// SPDX-License-Identifier: MIT
#pragma once

#include "shortcuts.h"

#include <QObject>

namespace Review {

/// The keys of a playbar.
///
/// A key that pause and play share does what applies: it pauses what plays, and plays otherwise.
/// The space bar stays with a widget that has the focus and needs it itself, such as a check box.
class PlayerKeys : public QObject
{
    Q_OBJECT

public:
    explicit PlayerKeys(CorvelGui::PPlaybar* bar, QObject* parent = nullptr);

    /// Buttons that are not in @p shortcuts get none.
    void setShortcuts(const Shortcuts& shortcuts);
    const Shortcuts& shortcuts() const { return m_shortcuts; }

    /// Gives pause and play their keys, after the bar's state changed.
    void followBar();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CorvelGui::PPlaybar* m_bar;
    Shortcuts m_shortcuts;
};

} // namespace Review
