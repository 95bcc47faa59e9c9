// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace Review {

/// The kinds of events that the client tells apart.
enum class EventKind { Person, Vehicle, Animal, Alarm, Bookmark, Blank, Other };

/// Reads the kinds that events bring along, which can be any text.
class EventKinds
{
    Q_DECLARE_TR_FUNCTIONS(Review::EventKinds)

public:
    static constexpr int count = int(EventKind::Other) + 1;

    /// The kind that @p name stands for, in upper or lower case.
    static EventKind parse(const QString& name);
    /// What the user reads for @p name: a translation, or for an unknown name the name itself.
    static QString text(const QString& name);
};

} // namespace Review
