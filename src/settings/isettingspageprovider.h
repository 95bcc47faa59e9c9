// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QIcon>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

namespace CorvelGui {

class ISettingsPage;

/// Hands over the pages of one category when the options dialog first needs them, for pages that
/// are cheap to describe but expensive to build.
///
/// The dialog that finds a provider in SettingsManager::m_listProvider deletes it at its own end. A
/// provider that is deleted takes itself out of that list.
class CORVELGUI_EXPORT ISettingsPageProvider : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString category READ category)
    Q_PROPERTY(QString displayCategory READ displayCategory)
    Q_PROPERTY(QIcon categoryIcon READ categoryIcon)

public:
    explicit ISettingsPageProvider(QObject* parent = nullptr);
    ~ISettingsPageProvider() override;

    /// The pages stay the provider's; each call may return the same ones.
    virtual QList<ISettingsPage*> pages() = 0;

    /// The key of the category that the pages belong to, whatever they say themselves.
    QString category() const;
    QString displayCategory() const;
    QIcon categoryIcon() const;

protected:
    void setCategory(const QString& category);
    void setDisplayCategory(const QString& displayCategory);
    void setCategoryIcon(const QIcon& icon);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
