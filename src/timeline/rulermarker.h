// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QDateTime>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QString>
#include <QUuid>

#include <cstddef>

namespace CorvelGui {

struct RulerMarker;

/// Gives the icons of markers. Markers of a ruler with the same key share one icon,
/// whichever provider gave it.
class CORVELGUI_EXPORT IRulerMarkerIconProvider
{
public:
    virtual ~IRulerMarkerIconProvider();

    /// The key of the icon for an index; any number but -1, which is the ruler's own icon.
    virtual int iconKey(int iconIndex) = 0;
    /// The icon for an index. Every ruler asks once for every key; those that get copies of one
    /// QIcon share its pictures. It is shown at 16 by 16 pixels unless Ruler::setIconSize() says
    /// otherwise, and filled with a colour of the theme while the mouse is on it.
    virtual QIcon icon(int iconIndex) = 0;
    /// The text of a marker that was added without one, asked for when it is needed: a client with
    /// millions of markers keeps their texts in its own way. Empty unless overridden.
    virtual QString text(const RulerMarker& marker) const;
};

/// A labelled instant on the ruler, such as an event or a bookmark.
struct CORVELGUI_EXPORT RulerMarker
{
    Q_GADGET

public:
    /// The kind of markers whose icon comes from their provider. All others have the ruler's own
    /// icon.
    static constexpr int providedIconKind = 3;

    /// How bad it is, from harmless to worst. It has a colour where the timeline shows severities:
    /// in the strip while its activity is visible, and on the ruler with its markerDetails.
    enum class Severity : quint8 { None, Information, Warning, Alarm };
    Q_ENUM(Severity)
    static constexpr std::size_t severityCount = 4;

    QUuid identifier = {};
    /// Also the key by which markers are removed. A marker without a valid time is not added.
    QDateTime time = {};
    int kind = 0;
    /// What the provider is asked for, which says what it means.
    int iconIndex = -1;
    /// Shown as the tooltip, as plain text. Of an empty one the provider is asked.
    QString text = {};
    /// Not owned; must live as long as the marker is on a ruler.
    IRulerMarkerIconProvider* iconProvider = nullptr;
    /// Milliseconds from its time to its end; 0 or less for an instant.
    qint64 duration = 0;
    Severity severity = Severity::None;

    bool operator==(const RulerMarker&) const = default;
};

/// What to do with the markers of a ruler.
struct CORVELGUI_EXPORT RulerMarkerOperation
{
    Q_GADGET

public:
    enum Code : int { show = 1, hide = 2, clear = 3, add = 4, remove = 5 };
    Q_ENUM(Code)

    QList<RulerMarker> markers = {};
    /// A Code; numbers beyond those do nothing.
    int code = 0;
};

} // namespace CorvelGui
