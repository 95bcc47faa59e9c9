// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QList>
#include <QString>
#include <QtGlobal>

namespace CorvelGui {

/// A stretch of time, in milliseconds since the Unix epoch, before it negative: begin belongs to
/// it, end does not.
struct CORVELGUI_EXPORT TimeSpan
{
    qint64 begin = 0;
    qint64 end = 0;

    bool isEmpty() const { return end <= begin; }
    /// All that @p spans cover, in order, none empty, with a gap between any two. Spans that are so
    /// already are shared.
    static QList<TimeSpan> joined(const QList<TimeSpan>& spans);

    bool operator==(const TimeSpan&) const = default;
};

/// What is known of one track: the period in which it is described, and what was recorded in it.
///
/// Outside [begin, end) nothing is known. Inside it, what no recorded span covers is known to be
/// without recording.
struct TrackDescription
{
    QString identifier = {};
    QString name = {};
    qint64 begin = 0;
    qint64 end = 0;
    /// In any order; spans may overlap, and may reach beyond the described period, which they then
    /// extend.
    QList<TimeSpan> recorded = {};
    /// Of which it is not known yet whether it is recorded. What is recorded all the same counts as
    /// that.
    QList<TimeSpan> loading = {};
};

} // namespace CorvelGui
