// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QUrl>

namespace CorvelGui {

/// One of the news of a feed.
struct FeedEntry
{
    /// By which it is known again, whatever else of it changes. Never empty.
    QString id = {};
    QString title = {};       ///< plain text in one line; may be empty
    QUrl link = {};           ///< a web address, or empty
    QDateTime published = {}; ///< in UTC, or invalid
    QString text = {};        ///< HTML as the feed has it, and nothing to be shown without care
};

/// A feed of news, by RSS 2.0 or Atom, from wherever it came.
struct Feed
{
    enum class Fault {
        None,
        NoFeed,   ///< no XML, or of another kind
        Damaged,  ///< XML that is cut off, or breaks its own rules
        Entities, ///< declares entities, as no honest feed does: they can grow beyond all bounds
    };

    /// More entries than that are left out.
    static constexpr qsizetype mostEntries = 500;

    Fault fault = Fault::None; ///< when there is one, there is nothing else
    QString title = {};
    /// The newest first; those without a date stand behind the others, in the order of the feed.
    /// Each id comes once.
    QList<FeedEntry> entries = {};

    CORVELGUI_INTERNAL_EXPORT static Feed parse(const QByteArray& xml);
};

} // namespace CorvelGui
