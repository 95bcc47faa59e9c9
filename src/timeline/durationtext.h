#pragma once

#include "base/internalexport.h"

#include <QCoreApplication>
#include <QString>

namespace CorvelGui {

/// How long something lasts, in words of the language and numbers of the locale.
class CORVELGUI_INTERNAL_EXPORT DurationText
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::DurationText)

public:
    DurationText() = delete;

    /// "1 d 2 h 3 min 4 s" without the parts that are 0; below a minute with milliseconds. A day
    /// has 24 hours. Negative lengths count as 0.
    static QString of(qint64 msecs);
};

} // namespace CorvelGui
