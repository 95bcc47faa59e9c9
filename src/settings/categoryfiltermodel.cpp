// SPDX-License-Identifier: MIT
#include "categoryfiltermodel.h"

#include "categorymodel.h"

#include <QRegularExpression>

#include <algorithm>

namespace CorvelGui {

bool CategoryFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent))
        return true;
    const auto* categories = qobject_cast<const CategoryModel*>(sourceModel());
    if (!categories)
        return false;
    // The escaped form of what was typed: characters that mean something in a regular expression
    // are found in captions of categories only.
    const QString pattern = filterRegularExpression().pattern();
    return std::ranges::any_of(categories->category(sourceRow).pages,
                               [&pattern](const QPointer<ISettingsPage>& page) {
                                   return page && isFound(*page, pattern);
                               });
}

bool isFound(const ISettingsPage& page, const QString& text)
{
    return page.displayCategory().contains(text, Qt::CaseInsensitive) ||
           page.displayName().contains(text, Qt::CaseInsensitive) || page.matches(text);
}

} // namespace CorvelGui
