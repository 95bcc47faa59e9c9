// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QSet>
#include <QStringList>

class QUrl;

namespace CorvelGui {

/// Which news the user has read, of however many feeds: the 2000 that were read last.
class ReadMarks
{
public:
    static constexpr qsizetype most = 2'000;

    ReadMarks() = default;
    /// Takes what toStringList() gave, and of anything else what could be marks.
    CORVELGUI_INTERNAL_EXPORT explicit ReadMarks(const QStringList& marks);

    /// What stands for an entry: short, whatever the feed calls it.
    CORVELGUI_INTERNAL_EXPORT static QString markOf(const QUrl& feed, const QString& id);

    CORVELGUI_INTERNAL_EXPORT void add(const QString& mark);
    bool contains(const QString& mark) const { return m_known.contains(mark); }
    /// The mark that came last stands last.
    const QStringList& toStringList() const { return m_marks; }

private:
    QStringList m_marks;
    QSet<QString> m_known;
};

} // namespace CorvelGui
