// SPDX-License-Identifier: MIT
#pragma once

#include "isettingspage.h"
#include "isettingspageprovider.h"

#include <QHash>
#include <QIcon>
#include <QList>
#include <QPointer>
#include <QString>

class QTabWidget;

namespace CorvelGui {

/// What the options dialog knows of one category. Pages and providers are guarded, since nothing
/// keeps applications from deleting theirs while the dialog is open.
struct Category
{
    QString id;
    QString displayName;
    QIcon icon;
    QList<QPointer<ISettingsPage>> pages;
    int registeredPages = 0; // the first of them; the others came from the providers
    QList<QPointer<ISettingsPageProvider>> providers;
    int index = -1; // in the page stack, once there is a tab widget
    QTabWidget* tabWidget = nullptr;
    /// Found by the widget, since a tab goes away with its widget and the others move up.
    QHash<const QWidget*, QPointer<ISettingsPage>> pageOfWidget;
};

} // namespace CorvelGui
