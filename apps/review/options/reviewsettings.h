// SPDX-License-Identifier: MIT
#pragma once

#include "footage/timecorrection.h"
#include "look/timetexts.h"
#include "playback/shortcuts.h"
#include "updateservers.h"

#include <Corvel/ProxyUserSettings>
#include <CorvelGui/Ruler>

#include <QString>

class QSettings;

namespace Review {

/// What the user has set. Each value has a default that makes the program usable.
struct ReviewSettings
{
    bool dark = true;
    /// One of Languages::keys(); empty for the language of the operating system.
    QString language = {};
    /// Empty for the zone of this machine.
    QString zone = {};
    TimeFormat timeFormat = {};
    bool skipGaps = true;
    /// Whether the overview of the timeline shows recordings and how much happens.
    bool activity = true;
    /// Whether the timeline has a lane for each camera.
    bool lanes = true;
    /// Whether it counts the events of a symbol and shows how bad they are.
    bool eventDetails = true;
    /// Whether the timeline shows views of any length, and not only those of the zoom levels.
    bool freeZoom = true;
    /// Whether a drag on the timeline selects a range, and only one with Shift moves the view.
    bool dragSelects = false;
    /// How the timeline goes after the moment.
    CorvelGui::Ruler::FollowMode followMode = CorvelGui::Ruler::FollowMode::Pages;
    Shortcuts shortcuts = defaultShortcuts();
    FolderCorrections corrections = {};

    UpdateServers servers = {};
    Corvel::ProxyUserSettings proxy = {};
    /// Whether the password of the proxy is kept in the password store of the computer. The file
    /// never has it.
    bool rememberPassword = false;

    bool operator==(const ReviewSettings&) const = default;

    /// What is missing or makes no sense in @p file has its default.
    static ReviewSettings read(const QSettings& file);
    /// Writes what differs from @p before, and leaves everything else in @p file as it is.
    void write(QSettings& file, const ReviewSettings& before) const;
};

} // namespace Review
