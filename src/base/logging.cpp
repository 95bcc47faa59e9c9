// SPDX-License-Identifier: MIT
#include "logging.h"

namespace CorvelGui {

Q_LOGGING_CATEGORY(dialogsLog, "corvelgui.dialogs")
Q_LOGGING_CATEGORY(itemViewsLog, "corvelgui.itemviews")
Q_LOGGING_CATEGORY(progressLog, "corvelgui.progress")
Q_LOGGING_CATEGORY(settingsLog, "corvelgui.settings")
Q_LOGGING_CATEGORY(updateLog, "corvelgui.update")

} // namespace CorvelGui
