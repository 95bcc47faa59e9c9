// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PPlaybar>

#include <QKeySequence>
#include <QMap>

namespace Review {

/// The keys of a playbar's buttons.
using Shortcuts = QMap<CorvelGui::PPlaybar::PlaybackButton, QKeySequence>;

/// Keys that neither timeline, tool bar nor menus use.
Shortcuts defaultShortcuts();

} // namespace Review
