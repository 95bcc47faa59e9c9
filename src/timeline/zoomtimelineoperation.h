// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QDateTime>
#include <QObject>

namespace CorvelGui {

/// What to do with the search range or the result range of a zoom timeline.
struct CORVELGUI_EXPORT ZoomTimelineOperation
{
    Q_GADGET

public:
    /// With a result range, flag A shows only the event markers inside it. The view zooms to a
    /// range that is set unless flag B is set.
    enum Code : int {
        setSearchRange = 1,
        clearSearchRange = 2,
        showSearchRange = 3,
        hideSearchRange = 4,
        setResultRange = 5,         ///< without marks
        setMarkedResultRange = 6,   ///< with marks at begin and end
        setResultRangeWithBegin = 7 ///< with a mark at its begin
    };
    Q_ENUM(Code)

    /// A Code; numbers beyond those do nothing.
    int code = 0;
    QDateTime from = {};
    QDateTime to = {};
    bool flagA = false;
    bool flagB = false;
};

} // namespace CorvelGui
