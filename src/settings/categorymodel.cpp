// SPDX-License-Identifier: MIT
#include "categorymodel.h"

#include <algorithm>

namespace CorvelGui {

namespace {

constexpr QSize emptyIconSize(24, 24);

// From a page or a provider, unless an earlier one gave it.
template <typename Source>
void takeCaption(Category& category, const Source& source)
{
    if (category.displayName.isEmpty())
        category.displayName = source.displayCategory();
}

template <typename Source>
void takeIcon(Category& category, const Source& source)
{
    if (category.icon.isNull())
        category.icon = source.categoryIcon();
}

} // namespace

CategoryModel::CategoryModel(QObject* parent) : QAbstractListModel(parent)
{
    QPixmap empty(emptyIconSize);
    empty.fill(Qt::transparent);
    m_emptyIcon = QIcon(empty);
}

CategoryModel::~CategoryModel() = default;

void CategoryModel::fill(const QList<QPointer<ISettingsPage>>& pages,
                         const QList<ISettingsPageProvider*>& providers)
{
    beginResetModel();
    for (const QPointer<ISettingsPage>& page : pages) {
        if (!page)
            continue;
        Category& category = provideCategory(page->category());
        if (category.pages.contains(page))
            continue;
        takeCaption(category, *page);
        takeIcon(category, *page);
        category.pages.append(page);
        ++category.registeredPages;
    }
    for (ISettingsPageProvider* provider : providers) {
        if (!provider)
            continue;
        Category& category = provideCategory(provider->category());
        if (category.providers.contains(provider))
            continue;
        takeCaption(category, *provider);
        takeIcon(category, *provider);
        category.providers.append(provider);
    }
    endResetModel();
}

void CategoryModel::updateNames()
{
    for (const std::unique_ptr<Category>& category : m_categories) {
        category->displayName.clear();
        for (qsizetype i = 0; i < category->registeredPages; ++i) {
            if (ISettingsPage* page = category->pages.value(i))
                takeCaption(*category, *page);
        }
        for (const QPointer<ISettingsPageProvider>& provider : std::as_const(category->providers)) {
            if (provider)
                takeCaption(*category, *provider);
        }
    }
    if (!m_categories.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::DisplayRole});
}

Category& CategoryModel::category(int row) const
{
    return *m_categories.at(size_t(row));
}

Category& CategoryModel::provideCategory(const QString& id)
{
    const auto known = std::ranges::find(m_categories, id, &Category::id);
    if (known != m_categories.end())
        return **known;
    m_categories.push_back(std::make_unique<Category>());
    m_categories.back()->id = id;
    return *m_categories.back();
}

int CategoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_categories.size());
}

QVariant CategoryModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Category& shown = category(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return shown.displayName;
    case Qt::DecorationRole:
        return shown.icon.isNull() ? m_emptyIcon : shown.icon;
    default:
        return {};
    }
}

} // namespace CorvelGui
