// SPDX-License-Identifier: MIT
#include "tabwidgetpage.h"

#include <CorvelGui/PTabWidget>

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

PTabWidget* createTabs(QVBoxLayout* layout, const QString& title, bool closable = true)
{
    auto* tabs = new PTabWidget;
    tabs->setTabsClosable(closable);
    for (const QString& name : {u"Overview"_s, u"Car park"_s, u"R&&D entrance"_s, u"Roof"_s}) {
        auto* page = new QLabel(title);
        page->setMargin(16);
        page->setAlignment(Qt::AlignTop);
        tabs->addTab(page, name);
    }
    tabs->setCurrentIndex(1);
    tabs->setMinimumSize(600, 110);
    layout->addWidget(tabs);
    return tabs;
}

} // namespace

TabWidgetPage::TabWidgetPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    createTabs(layout, tr("Tabs that can be closed, moved and renamed"));
    m_renamed = createTabs(layout, tr("A tab that is being renamed"));
    PTabWidget* fixed = createTabs(layout, tr("Tabs that can only be moved"), false);
    fixed->setTabsRenamable(false);
    fixed->setTabEnabled(3, false);
    createTabs(layout, tr("From right to left"))->setLayoutDirection(Qt::RightToLeft);
    layout->addStretch();
}

void TabWidgetPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_renamed->editTabName(1);
}

} // namespace Gallery
