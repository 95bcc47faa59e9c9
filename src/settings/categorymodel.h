// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"
#include "category.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace CorvelGui {

/// The categories of the options dialog with their captions and icons.
class CORVELGUI_INTERNAL_EXPORT CategoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit CategoryModel(QObject* parent = nullptr);
    ~CategoryModel() override;

    /// Sorts the pages and the providers into categories: in the order of @p pages, then those that
    /// have providers only. Null and repeated pages and providers are left out.
    void fill(const QList<QPointer<ISettingsPage>>& pages,
              const QList<ISettingsPageProvider*>& providers);
    /// Takes the captions again from pages and providers, after a change of language.
    void updateNames();

    Category& category(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    Category& provideCategory(const QString& id);

    std::vector<std::unique_ptr<Category>> m_categories;
    QIcon m_emptyIcon;
};

} // namespace CorvelGui
