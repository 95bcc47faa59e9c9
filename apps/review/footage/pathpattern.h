// SPDX-License-Identifier: MIT
#pragma once

#include "walltime.h"

#include <QList>
#include <QString>

namespace Review {

/// Of a pattern: a placeholder, or a text that stands there as it is.
struct PathPart
{
    QString literal = {};
    int field = -1;
};

/// Finds in the path of a file when its recording began, and which camera made it.
class PathPattern
{
public:
    struct Match
    {
        WallTime begin = {};
        QString camera = {}; ///< empty where the pattern does not say
    };

    /// One's own, such as "{camera}/{yyyy}-{MM}-{dd}/{HH}/{mm}.{ss}.mp4", for the end of the path.
    /// An empty one stands for the common ways of recorders and cameras, see timeInPath().
    explicit PathPattern(const QString& pattern = {});

    /// A pattern of one's own needs a year, a month and a day, and tells the camera once at most.
    bool isValid() const;

    /// None where the path says nothing. @p path has slashes.
    std::optional<Match> match(const QString& path) const;

private:
    QList<PathPart> m_parts;
};

} // namespace Review
