// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/IUserSettings>
#include <CorvelGui/corvelgui_export.h>

#include <QDialog>
#include <QPointer>

#include <memory>

class QModelIndex;

namespace CorvelGui {

struct Category;
class ISettingsPage;
class ISettingsPageProvider;

/// The one options dialog of an application, made of the pages and providers in SettingsManager: a
/// searchable list of categories, and a tab for each page of the chosen one.
///
/// Tabs stand in the order of the ids of their pages, pages of providers behind the others. A page
/// is built when its category is first shown, or when the user searches. It is applied on OK only
/// if the user has seen it, and not while a page says that its entries are not acceptable: the
/// dialog shows that page then. accept() and done() by themselves apply nothing. The dialog deletes
/// the providers that it found, and the widgets of the pages; pages themselves only go with their
/// providers.
class CORVELGUI_EXPORT OptionsDialog : public QDialog, public IUserSettings
{
    Q_OBJECT

public:
    ~OptionsDialog() override;

    /// The open dialog, or a new one with @p parent, showing that page. A category that does not
    /// exist changes nothing, an unknown page leaves the category's current one. A caller that does
    /// not run the dialog owns it.
    static OptionsDialog* getSettingsDialog(QWidget* parent, const QString& category,
                                            const QString& page);

    /// Runs the dialog and returns whether pages were applied. Afterwards the dialog deletes itself
    /// as soon as control returns to the event loop. Called while the dialog runs already, waits
    /// until it closes, and returns the same.
    bool execDialog();

    void done(int result) override;
    QSize sizeHint() const override;

    /// Stores category, page and size, in the group "UserSettings".
    void writeUserSettings(QSettings& settings) const override;
    /// Restores the size, and what was shown last unless a page was asked for. Centres the dialog
    /// over its parent.
    void readUserSettings(QSettings& settings) override;

protected:
    bool event(QEvent* event) override;

private Q_SLOTS:
    void currentChanged(const QModelIndex& proxyIndex);
    void currentTabChanged(int tab);
    void filter(const QString& text);
    void slotAccept();
    void slotReject();
    void slotApply();
    void ensureAllCategoryWidgets();

private:
    struct Private;

    OptionsDialog(QWidget* parent, const QString& category, const QString& page, bool showApply);

    void createGui(bool showApply);
    void showPage(const QString& category, const QString& page);
    void showCategory(int row);
    void ensureCategoryWidget(Category* category);
    void disconnectTabWidgets();
    void updateEnabledTabs(Category* category, const QString& text);
    Category* currentCategory() const;
    QList<QPointer<ISettingsPageProvider>> providers() const;
    void visit(const Category& category, int tab);
    void chooseFirstCategory();
    void waitForEnd();
    bool showsRefusedPage();
    void applyVisitedPages();
    void finishPages();
    void tellPages(QList<QPointer<ISettingsPage>> pages, void (ISettingsPage::*what)());
    void fitToScreen();
    void retranslate();

    static QPointer<OptionsDialog> m_instance;

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
