// SPDX-License-Identifier: MIT
#include "isettingspage.h"

#include "settingsmanager.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace CorvelGui {

struct ISettingsPage::Private
{
    QString id;
    QString displayName;
    QString category;
    QString displayCategory;
    QString categoryIcon;
    bool keywordsReady = false;
    QStringList keywords;
    QPointer<QWidget> refused; ///< what is entered in it cannot be applied
};

ISettingsPage::ISettingsPage(QObject* parent) : QObject(parent), d(std::make_unique<Private>()) {}

ISettingsPage::~ISettingsPage()
{
    SettingsManager::m_listPages.removeAll(this);
}

QString ISettingsPage::id() const
{
    return d->id;
}

QString ISettingsPage::displayName() const
{
    return d->displayName;
}

QString ISettingsPage::category() const
{
    return d->category;
}

QString ISettingsPage::displayCategory() const
{
    return d->displayCategory;
}

QIcon ISettingsPage::categoryIcon() const
{
    // The icon of a missing or broken picture can be empty without being null.
    const QIcon icon(d->categoryIcon);
    return icon.pixmap(QSize(16, 16)).isNull() ? QIcon() : icon;
}

void ISettingsPage::setId(const QString& id)
{
    d->id = id;
}

void ISettingsPage::setDisplayName(const QString& displayName)
{
    d->displayName = displayName;
}

void ISettingsPage::setCategory(const QString& category)
{
    d->category = category;
}

void ISettingsPage::setDisplayCategory(const QString& displayCategory)
{
    d->displayCategory = displayCategory;
}

void ISettingsPage::setCategoryIcon(const QString& path)
{
    d->categoryIcon = path;
}

bool ISettingsPage::matches(const QString& text) const
{
    if (!d->keywordsReady) {
        if (!m_widget)
            return false;
        collectKeywords();
        d->keywordsReady = true;
    }
    return std::ranges::any_of(d->keywords, [&text](const QString& keyword) {
        return keyword.contains(text, Qt::CaseInsensitive);
    });
}

bool ISettingsPage::isAcceptable() const
{
    return !m_widget || d->refused != m_widget;
}

void ISettingsPage::setAcceptable(bool acceptable)
{
    d->refused = acceptable ? nullptr : m_widget.data();
}

void ISettingsPage::forgetTexts()
{
    d->keywords.clear();
    d->keywordsReady = false;
}

void ISettingsPage::collectKeywords() const
{
    for (const auto* label : m_widget->findChildren<QLabel*>())
        d->keywords << label->text();
    for (const auto* box : m_widget->findChildren<QCheckBox*>())
        d->keywords << box->text();
    for (const auto* button : m_widget->findChildren<QPushButton*>())
        d->keywords << button->text();
    for (const auto* group : m_widget->findChildren<QGroupBox*>())
        d->keywords << group->title();
    for (QString& keyword : d->keywords)
        keyword.remove(u'&');
}

} // namespace CorvelGui
