// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace CorvelGui {

/// What a family of classes says to whoever looks for a fault, such as "corvelgui.update".
Q_DECLARE_LOGGING_CATEGORY(dialogsLog)
Q_DECLARE_LOGGING_CATEGORY(itemViewsLog)
Q_DECLARE_LOGGING_CATEGORY(progressLog)
Q_DECLARE_LOGGING_CATEGORY(settingsLog)
Q_DECLARE_LOGGING_CATEGORY(updateLog)

} // namespace CorvelGui
