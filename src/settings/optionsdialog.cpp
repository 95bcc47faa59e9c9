// SPDX-License-Identifier: MIT
#include "optionsdialog.h"

#include "base/whilealive.h"
#include "categoryfiltermodel.h"
#include "categorylistview.h"
#include "categorylistviewdelegate.h"
#include "categorymodel.h"
#include "input/filterlineedit.h"
#include "settingsmanager.h"

#include <Hueloft/PIconHelper>

#include <QDialogButtonBox>
#include <QEvent>
#include <QEventLoop>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStackedLayout>
#include <QStyle>
#include <QTabWidget>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr QSize initialSize(900, 550);
constexpr QSize defaultLastSize(1000, 600);
constexpr QSize categoryIconSize(24, 24);

const QString settingsGroup = u"UserSettings"_s;
const QString lastCategoryKey = u"LastCategory"_s;
const QString lastPageKey = u"LastPage"_s;
const QString lastSizeKey = u"LastSize"_s;

QList<QPointer<ISettingsPage>> sortedPages()
{
    QList<QPointer<ISettingsPage>> pages;
    for (ISettingsPage* page : SettingsManager::GetPages()) {
        if (page && !pages.contains(page))
            pages.append(page);
    }
    std::ranges::stable_sort(pages, {}, [](const QPointer<ISettingsPage>& page) {
        return std::tuple(page->category(), page->id());
    });
    return pages;
}

} // namespace

struct OptionsDialog::Private
{
    QList<QPointer<ISettingsPage>> pages;
    QList<QPointer<ISettingsPage>> visitedPages;
    CategoryFilterModel* filterModel = nullptr;
    CategoryModel* categoryModel = nullptr;
    QString currentCategory;
    QString currentPage;
    QStackedLayout* pageStack = nullptr;
    FilterLineEdit* filterLineEdit = nullptr;
    CategoryListView* categoryList = nullptr;
    QLabel* headerLabel = nullptr;
    bool running = false;
    // Shared with the callers that wait: they return it even if the dialog is gone.
    std::shared_ptr<bool> applied = std::make_shared<bool>(false);
    bool finished = false;
    bool closed = false;
    QList<QEventLoop*> waitingLoops;
};

QPointer<OptionsDialog> OptionsDialog::m_instance;

OptionsDialog::OptionsDialog(QWidget* parent, const QString& category, const QString& page,
                             bool showApply)
    : QDialog(parent), d(std::make_unique<Private>())
{
    d->currentCategory = category;
    d->currentPage = page;
    d->filterModel = new CategoryFilterModel(this);
    d->categoryModel = new CategoryModel(this);
    d->pageStack = new QStackedLayout;
    d->filterLineEdit = new FilterLineEdit(this);
    d->categoryList = new CategoryListView(this);
    d->categoryList->setItemDelegate(new CategoryListViewDelegate(d->categoryList));
    d->headerLabel = new QLabel(this);
    d->pages = sortedPages();

    createGui(showApply);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setSizeGripEnabled(true);
    setWindowIcon(Hueloft::PIconHelper::GetSettingsIconOriginal_32x32(true));

    d->categoryModel->fill(d->pages, SettingsManager::GetProvider());
    d->filterModel->setSourceModel(d->categoryModel);
    d->filterModel->setFilterCaseSensitivity(Qt::CaseInsensitive);
    d->categoryList->setIconSize(categoryIconSize);
    d->categoryList->setModel(d->filterModel);
    d->categoryList->setSelectionMode(QAbstractItemView::SingleSelection);
    d->categoryList->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);

    connect(d->categoryList->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &OptionsDialog::currentChanged);
    // In this order: the filter looks at the widgets of the pages.
    connect(d->filterLineEdit, &FilterLineEdit::filterChanged, this,
            &OptionsDialog::ensureAllCategoryWidgets);
    connect(d->filterLineEdit, &FilterLineEdit::filterChanged, d->filterModel,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(d->filterLineEdit, &FilterLineEdit::filterChanged, this, &OptionsDialog::filter);
    d->categoryList->setFocus();
    retranslate();
}

OptionsDialog::~OptionsDialog()
{
    // The children go one by one, and must not report it to what is no options dialog any more.
    disconnectTabWidgets();
    disconnect(d->categoryList->selectionModel(), nullptr, this, nullptr);
    disconnect(d->filterLineEdit, nullptr, this, nullptr);
    // Their callers, deeper in the stack, still need them and delete them.
    for (auto loop = d->waitingLoops.crbegin(); loop != d->waitingLoops.crend(); ++loop) {
        (*loop)->setParent(nullptr);
        (*loop)->quit();
    }
    for (const QPointer<ISettingsPageProvider>& provider : providers())
        delete provider;
}

QList<QPointer<ISettingsPageProvider>> OptionsDialog::providers() const
{
    QList<QPointer<ISettingsPageProvider>> all;
    for (int row = 0; row < d->categoryModel->rowCount(); ++row)
        all += d->categoryModel->category(row).providers;
    return all;
}

OptionsDialog* OptionsDialog::getSettingsDialog(QWidget* parent, const QString& category,
                                                const QString& page)
{
    if (!m_instance)
        m_instance = new OptionsDialog(parent, category, page, false);
    m_instance->showPage(category, page);
    return m_instance;
}

void OptionsDialog::createGui(bool showApply)
{
    QFont headerFont = d->headerLabel->font();
    headerFont.setBold(true);
    if (headerFont.pointSize() > 0)
        headerFont.setPointSize(headerFont.pointSize() + 2);
    d->headerLabel->setFont(headerFont);

    auto* headerRow = new QHBoxLayout;
    headerRow->addSpacerItem(new QSpacerItem(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0,
                                             QSizePolicy::Fixed, QSizePolicy::Ignored));
    headerRow->addWidget(d->headerLabel);
    d->pageStack->setContentsMargins(0, 0, 0, 0);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &OptionsDialog::slotAccept);
    connect(buttons, &QDialogButtonBox::rejected, this, &OptionsDialog::slotReject);
    if (showApply) {
        connect(buttons->addButton(QDialogButtonBox::Apply), &QPushButton::clicked, this,
                &OptionsDialog::slotApply);
    }

    auto* grid = new QGridLayout(this);
    grid->addWidget(d->filterLineEdit, 0, 0);
    grid->addLayout(headerRow, 0, 1);
    grid->addWidget(d->categoryList, 1, 0);
    grid->addLayout(d->pageStack, 1, 1);
    grid->addWidget(buttons, 2, 0, 1, 2);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 13);
    resize(initialSize);
}

void OptionsDialog::ensureCategoryWidget(Category* category)
{
    if (category->tabWidget)
        return;
    for (const QPointer<ISettingsPageProvider>& provider : std::as_const(category->providers)) {
        if (!provider)
            continue;
        for (ISettingsPage* page : provider->pages()) {
            if (page && !category->pages.contains(page))
                category->pages.append(page);
        }
    }
    category->tabWidget = new QTabWidget(this);
    for (const QPointer<ISettingsPage>& page : std::as_const(category->pages)) {
        if (!page)
            continue;
        QWidget* widget = page->createWidget(nullptr);
        if (!widget)
            widget = new QWidget;
        category->pageOfWidget.insert(widget, page);
        category->tabWidget->addTab(widget, page->displayName());
    }
    connect(category->tabWidget, &QTabWidget::currentChanged, this,
            &OptionsDialog::currentTabChanged);
    category->index = d->pageStack->addWidget(category->tabWidget);
}

void OptionsDialog::ensureAllCategoryWidgets()
{
    for (int row = 0; row < d->categoryModel->rowCount(); ++row)
        ensureCategoryWidget(&d->categoryModel->category(row));
}

void OptionsDialog::showCategory(int row)
{
    Category& category = d->categoryModel->category(row);
    ensureCategoryWidget(&category);
    d->currentCategory = category.id;
    visit(category, category.tabWidget->currentIndex());
    d->pageStack->setCurrentIndex(category.index);
    d->headerLabel->setText(category.displayName);
    updateEnabledTabs(&category, d->filterLineEdit->text());
}

void OptionsDialog::visit(const Category& category, int tab)
{
    const QPointer<ISettingsPage> page =
        category.pageOfWidget.value(category.tabWidget->widget(tab));
    if (!page)
        return;
    d->currentPage = page->id();
    if (!d->visitedPages.contains(page))
        d->visitedPages.append(page);
}

Category* OptionsDialog::currentCategory() const
{
    const QModelIndex source = d->filterModel->mapToSource(d->categoryList->currentIndex());
    return source.isValid() ? &d->categoryModel->category(source.row()) : nullptr;
}

void OptionsDialog::currentChanged(const QModelIndex& proxyIndex)
{
    if (proxyIndex.isValid())
        showCategory(d->filterModel->mapToSource(proxyIndex).row());
}

void OptionsDialog::currentTabChanged(int tab)
{
    const Category* category = currentCategory();
    if (tab != -1 && category && category->tabWidget)
        visit(*category, tab);
}

void OptionsDialog::showPage(const QString& category, const QString& page)
{
    int row = d->categoryModel->rowCount() - 1;
    while (row >= 0 && d->categoryModel->category(row).id != category)
        --row;
    if (row < 0)
        return;

    Category& shown = d->categoryModel->category(row);
    // Only now a provider's pages are known.
    ensureCategoryWidget(&shown);
    int tab = shown.tabWidget->count() - 1;
    for (; tab >= 0; --tab) {
        const ISettingsPage* candidate = shown.pageOfWidget.value(shown.tabWidget->widget(tab));
        if (candidate && candidate->id() == page)
            break;
    }

    const auto place = [this, row] {
        return d->filterModel->mapFromSource(d->categoryModel->index(row));
    };
    // What was asked for must not stay hidden behind a search.
    if (!place().isValid() || (tab >= 0 && !shown.tabWidget->isTabEnabled(tab)))
        d->filterLineEdit->clear();
    d->categoryList->setCurrentIndex(place());
    if (tab >= 0)
        shown.tabWidget->setCurrentIndex(tab);
}

void OptionsDialog::filter(const QString& text)
{
    chooseFirstCategory();
    if (Category* category = currentCategory())
        updateEnabledTabs(category, text);
}

void OptionsDialog::chooseFirstCategory()
{
    if (!d->categoryList->currentIndex().isValid() && d->filterModel->rowCount() > 0)
        d->categoryList->setCurrentIndex(d->filterModel->index(0, 0));
}

void OptionsDialog::updateEnabledTabs(Category* category, const QString& text)
{
    for (int tab = 0; tab < category->tabWidget->count(); ++tab) {
        const ISettingsPage* page = category->pageOfWidget.value(category->tabWidget->widget(tab));
        category->tabWidget->setTabEnabled(tab, text.isEmpty() || (page && isFound(*page, text)));
    }
}

void OptionsDialog::disconnectTabWidgets()
{
    for (int row = 0; row < d->categoryModel->rowCount(); ++row) {
        if (const QTabWidget* tabs = d->categoryModel->category(row).tabWidget)
            disconnect(tabs, &QTabWidget::currentChanged, this, nullptr);
    }
}

bool OptionsDialog::execDialog()
{
    const std::shared_ptr<bool> applied = d->applied;
    if (d->running) {
        waitForEnd();
        return *applied;
    }

    d->running = true;
    d->finished = false;
    d->closed = false;
    chooseFirstCategory();
    fitToScreen();
    if (whileAlive(this, [this] { exec(); })) {
        d->running = false;
        m_instance.clear();
        // They go with this dialog; the next one must not find them.
        for (const QPointer<ISettingsPageProvider>& provider : providers())
            SettingsManager::m_listProvider.removeAll(provider);
        deleteLater();
    }
    return *applied;
}

void OptionsDialog::waitForEnd()
{
    // Nothing would end the waiting any more.
    if (d->finished || d->closed)
        return;
    const auto loop = std::make_unique<QEventLoop>(this);
    d->waitingLoops.append(loop.get());
    whileAlive(
        this, [&] { loop->exec(); }, [&] { d->waitingLoops.removeOne(loop.get()); });
}

void OptionsDialog::done(int result)
{
    d->closed = true;
    for (auto loop = d->waitingLoops.crbegin(); loop != d->waitingLoops.crend(); ++loop)
        (*loop)->quit();
    QDialog::done(result);
}

// Whether a page that the user has seen cannot be applied, which then is the one that is shown.
bool OptionsDialog::showsRefusedPage()
{
    for (const QPointer<ISettingsPage>& page : std::as_const(d->visitedPages)) {
        if (page && !page->isAcceptable()) {
            showPage(page->category(), page->id());
            return true;
        }
    }
    return false;
}

void OptionsDialog::slotAccept()
{
    if (d->finished || showsRefusedPage())
        return;
    d->finished = true;
    disconnectTabWidgets();
    *d->applied = true;
    whileAlive(
        this, [this] { applyVisitedPages(); }, [this] { finishPages(); },
        [this] { done(Accepted); });
}

void OptionsDialog::slotReject()
{
    if (d->finished)
        return;
    d->finished = true;
    disconnectTabWidgets();
    whileAlive(
        this, [this] { finishPages(); }, [this] { done(Rejected); });
}

void OptionsDialog::slotApply()
{
    if (showsRefusedPage())
        return;
    *d->applied = true;
    applyVisitedPages();
}

void OptionsDialog::applyVisitedPages()
{
    tellPages(d->visitedPages, &ISettingsPage::apply);
}

void OptionsDialog::finishPages()
{
    tellPages(d->pages, &ISettingsPage::finish);
}

// Only as long as the dialog lives, which a page may delete.
void OptionsDialog::tellPages(QList<QPointer<ISettingsPage>> pages, void (ISettingsPage::*what)())
{
    for (const QPointer<ISettingsPage>& page : std::as_const(pages)) {
        if (page && !whileAlive(this, [&] { (page->*what)(); }))
            return;
    }
}

QSize OptionsDialog::sizeHint() const
{
    return minimumSize();
}

void OptionsDialog::writeUserSettings(QSettings& settings) const
{
    settings.beginGroup(settingsGroup);
    settings.setValue(lastCategoryKey, d->currentCategory);
    settings.setValue(lastPageKey, d->currentPage);
    settings.setValue(lastSizeKey, size());
    settings.endGroup();
}

void OptionsDialog::readUserSettings(QSettings& settings)
{
    settings.beginGroup(settingsGroup);
    const QString lastCategory = settings.value(lastCategoryKey).toString();
    const QString lastPage = settings.value(lastPageKey).toString();
    const QSize lastSize = settings.value(lastSizeKey, defaultLastSize).toSize();
    settings.endGroup();

    const bool restored = d->currentCategory.isEmpty() || d->currentPage.isEmpty();
    if (d->currentCategory.isEmpty())
        d->currentCategory = lastCategory;
    if (d->currentPage.isEmpty())
        d->currentPage = lastPage;
    if (restored)
        showPage(d->currentCategory, d->currentPage);

    resize(lastSize.isEmpty() ? defaultLastSize : lastSize);
    if (const QWidget* parent = parentWidget())
        move(parent->window()->geometry().center() - rect().center());
}

// A size that was stored on a larger screen must not leave the buttons out of reach.
void OptionsDialog::fitToScreen()
{
    const QRect available = screen()->availableGeometry();
    resize(size().boundedTo(available.size().expandedTo(defaultLastSize)));
    if (!testAttribute(Qt::WA_Moved))
        return;
    QRect place = geometry();
    place.moveRight(std::min(place.right(), available.right()));
    place.moveBottom(std::min(place.bottom(), available.bottom()));
    place.moveLeft(std::max(place.left(), available.left()));
    place.moveTop(std::max(place.top(), available.top()));
    move(place.topLeft());
}

bool OptionsDialog::event(QEvent* event)
{
    const bool handled = QDialog::event(event);
    // The pages' widgets, and so the pages, have heard of it by now.
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return handled;
}

void OptionsDialog::retranslate()
{
    setWindowTitle(tr("Options"));
    d->categoryList->setAccessibleName(tr("Categories"));
    d->filterLineEdit->setAccessibleName(tr("Search options"));
    d->categoryModel->updateNames();
    for (int row = 0; row < d->categoryModel->rowCount(); ++row) {
        const Category& category = d->categoryModel->category(row);
        for (int tab = 0; category.tabWidget && tab < category.tabWidget->count(); ++tab) {
            if (const ISettingsPage* page =
                    category.pageOfWidget.value(category.tabWidget->widget(tab)))
                category.tabWidget->setTabText(tab, page->displayName());
        }
    }
    if (const Category* category = currentCategory())
        d->headerLabel->setText(category->displayName);
}

} // namespace CorvelGui
