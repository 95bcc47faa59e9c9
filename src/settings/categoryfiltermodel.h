// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QSortFilterProxyModel>

namespace CorvelGui {

/// Leaves the categories whose caption, or one of whose pages, contains what is searched for.
class CORVELGUI_INTERNAL_EXPORT CategoryFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
};

/// Whether the page's captions or the texts on it contain @p text, in whatever case.
bool isFound(const class ISettingsPage& page, const QString& text);

} // namespace CorvelGui
