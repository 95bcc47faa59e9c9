// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

namespace CorvelGui {

/// What to do with the search range or the result range of a zoom timeline. Codes beyond those
/// listed do nothing.
struct ZoomTimelineOperation
{
    static constexpr int setSearchRange = 1; ///< zooms to it unless flag B is set
    static constexpr int clearSearchRange = 2;
    static constexpr int showSearchRange = 3;
    static constexpr int hideSearchRange = 4;
    // Flag A shows only the event markers inside the range; the view zooms to it unless flag B is
    // set.
    static constexpr int setResultRange = 5;          ///< without marks
    static constexpr int setMarkedResultRange = 6;    ///< with marks at begin and end
    static constexpr int setResultRangeWithBegin = 7; ///< with a mark at its begin

    int code = 0;
    QDateTime from = {};
    QDateTime to = {};
    bool flagA = false;
    bool flagB = false;
};

} // namespace CorvelGui
