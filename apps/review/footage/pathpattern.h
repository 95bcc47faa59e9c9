#pragma once

#include "walltime.h"

#include <QRegularExpression>
#include <QString>

namespace Review {

/// Finds in the path of a file when its recording began, and which camera made it.
class PathPattern
{
public:
    struct Match
    {
        WallTime begin = {};
        QString camera = {}; ///< empty where the pattern does not say
    };

    /// The common ways of recorders and cameras: date and time, together or over several folders,
    /// or seconds or milliseconds since 1970.
    PathPattern();
    /// One's own, such as "{camera}/{yyyy}-{MM}-{dd}/{HH}/{mm}.{ss}.mp4", for the end of the path.
    explicit PathPattern(const QString& pattern);

    /// A pattern of one's own needs a year, a month and a day.
    bool isValid() const;

    /// None where the path says nothing. @p path has slashes.
    std::optional<Match> match(const QString& path) const;

private:
    QRegularExpression m_expression;
    bool m_isOwn = false;
};

} // namespace Review
