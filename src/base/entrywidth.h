// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace CorvelGui {

/// Keeps @p box as wide as its widest entry when other entries come, as with another language.
inline void keepRoomForEntries(QComboBox& box)
{
    box.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // Once it was asked for, QComboBox::minimumSizeHint() is that of the first entries.
    QSizePolicy policy = box.sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Minimum);
    box.setSizePolicy(policy);
}

} // namespace CorvelGui
