// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

#include <optional>

namespace Review {

/// How the times of a camera are corrected whose clock was wrong.
struct TimeCorrection
{
    /// The zone of its clock; empty for the one of the window.
    QString zone = {};
    /// Milliseconds by which it was slow; negative where it was fast.
    qint64 offset = 0;

    bool isNone() const { return zone.isEmpty() && offset == 0; }
    bool operator==(const TimeCorrection&) const = default;

    /// Such as "+1:00:00" or "-0:00:02.500".
    static QString offsetText(qint64 offset);
    /// Reads hours, minutes and seconds, or seconds alone, with a sign or without. None for
    /// anything else.
    static std::optional<qint64> parseOffset(const QString& text);
};

/// By the names of the cameras.
using TimeCorrections = QMap<QString, TimeCorrection>;

/// The corrections of folders, by their paths.
struct FolderCorrections
{
    QMap<QString, TimeCorrections> folders = {};

    bool operator==(const FolderCorrections&) const = default;

    QString toText() const;
    /// What makes no sense is left out.
    static FolderCorrections fromText(const QString& text);
};

} // namespace Review
