// SPDX-License-Identifier: MIT
#include "eventmarkers.h"

#include "data/eventkind.h"

using namespace Qt::StringLiterals;

namespace Review {

namespace {

// Identifiers of events differ from this one in their first field, which is the event's number.
constexpr QUuid firstEvent(0, 0x5e7e, 0x4a61, 0x9c, 0x2b, 0x63, 0x6f, 0x72, 0x76, 0x65, 0x6c);

} // namespace

QString EventMarkers::textOf(const Event& event)
{
    const QString kind = EventKinds::text(event.kind);
    if (event.text.isEmpty() || event.text.compare(kind, Qt::CaseInsensitive) == 0)
        return kind;
    return kind + u": "_s + event.text;
}

QUuid EventMarkers::identifierOf(qsizetype index)
{
    QUuid identifier = firstEvent;
    identifier.data1 = uint(index);
    return identifier;
}

qsizetype EventMarkers::indexOf(const QUuid& identifier)
{
    QUuid rest = identifier;
    rest.data1 = firstEvent.data1;
    return rest == firstEvent ? qsizetype(identifier.data1) : -1;
}

} // namespace Review
