// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>

namespace CorvelGui {

/// One page of the options dialog. An application derives from it, describes the page by the
/// setters, and registers it in SettingsManager::m_listPages or hands it over through an
/// ISettingsPageProvider.
///
/// The library never deletes a page, except through the provider that owns it. A page that is
/// deleted takes itself out of SettingsManager::m_listPages; an open dialog gets along without it.
///
/// It is the page's widget that hears of another language, by QEvent::LanguageChange; names and
/// captions are read once by each dialog.
class CORVELGUI_EXPORT ISettingsPage : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString id READ id)
    Q_PROPERTY(QString displayName READ displayName)
    Q_PROPERTY(QString category READ category)
    Q_PROPERTY(QString displayCategory READ displayCategory)
    Q_PROPERTY(QIcon categoryIcon READ categoryIcon)
    Q_PROPERTY(bool acceptable READ isAcceptable)

public:
    explicit ISettingsPage(QObject* parent = nullptr);
    ~ISettingsPage() override;

    /// Builds the page's widget. A dialog calls it at most once, when the page's category is first
    /// shown or searched, and owns the widget from then on: the widget dies with the dialog.
    virtual QWidget* createWidget(QWidget* parent) = 0;
    /// Writes the edited values to wherever they are kept. Called on OK, and only if the user has
    /// seen the page.
    virtual void apply() = 0;
    /// The dialog closes, on OK after everything was applied, or on Cancel. Pages of providers are
    /// not told, nor is anyone when the dialog is closed with Escape or by its title bar.
    virtual void finish() = 0;

    /// Unique within the category; stored to find the page again.
    QString id() const;
    /// The caption of the page's tab.
    QString displayName() const;
    /// The key of the category; pages with equal keys share one.
    QString category() const;
    /// The caption of the category.
    QString displayCategory() const;
    /// Made from the path on each call; null if there is no such picture.
    QIcon categoryIcon() const;

    /// Whether a text on the page contains @p text, in whatever case: labels, check boxes, push
    /// buttons and the titles of group boxes, without their "&", but not radio buttons. False as
    /// long as there is no widget. The texts are collected once, at the first call that finds a
    /// widget.
    bool matches(const QString& text) const;

    /// What setAcceptable() said of the present widget; true without one.
    bool isAcceptable() const;

protected:
    void setId(const QString& id);
    void setDisplayName(const QString& displayName);
    void setCategory(const QString& category);
    void setDisplayCategory(const QString& displayCategory);
    /// @p path is the path of a picture, in the file system or among the resources.
    void setCategoryIcon(const QString& path);

    /// Says whether what is entered can be applied. On OK a dialog shows the first page seen that
    /// cannot be, and stays open, with nothing applied. It holds for m_widget as it is now: a new
    /// widget counts as acceptable.
    void setAcceptable(bool acceptable);
    /// Lets matches() collect the texts anew, such as when createWidget() has made them in another
    /// language.
    void forgetTexts();

    /// To be set by createWidget(); not owned. Guarded, since the widget dies with the dialog.
    QPointer<QWidget> m_widget;

private:
    void collectKeywords() const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
