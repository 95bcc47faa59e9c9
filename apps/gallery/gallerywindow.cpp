// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include "inspector/inspector.h"
#include "inspector/knownwidgets.h"
#include "pages.h"

#include <Hueloft/PIconHelper>

#include <QAction>
#include <QDockWidget>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolBar>

#include <algorithm>

namespace Gallery {

GalleryWindow::GalleryWindow()
    : PMainWindow(nullptr)
    , m_list(new QListWidget)
    , m_stack(new QStackedWidget)
    , m_inspector(new Inspector)
    , m_dock(new QDockWidget(tr("Inspector"), this))
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setWindowIcon(Hueloft::PIconHelper::GetSettingsIconOriginal_32x32(false));

    for (const Page& page : pages()) {
        m_list->addItem(page.title);
        auto* scroll = new QScrollArea;
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidgetResizable(true);
        scroll->setWidget(page.create(nullptr));
        m_stack->addWidget(scroll);
    }
    m_list->setSpacing(3);
    constexpr int scrollBarWidth = 20;
    m_list->setFixedWidth(std::max(200, m_list->sizeHintForColumn(0) + scrollBarWidth));
    m_list->setAccessibleName(tr("Pages"));
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);

    auto* center = new QWidget;
    auto* layout = new QHBoxLayout(center);
    layout->addWidget(m_list);
    layout->addWidget(m_stack, 1);
    setCentralWidget(center);

    QToolBar* bar = addToolBar(tr("Look"));
    m_darkAction = bar->addAction(tr("&Dark look"));
    m_darkAction->setCheckable(true);
    connect(m_darkAction, &QAction::toggled, this, [this](bool dark) {
        createDarkFusionStyle(dark);
        Q_EMIT lookChanged(dark);
    });

    m_dock->setObjectName(QLatin1StringView("Inspector"));
    m_dock->setWidget(m_inspector);
    m_dock->hide();
    addDockWidget(Qt::RightDockWidgetArea, m_dock);
    bar->addAction(m_dock->toggleViewAction());
    connect(m_stack, &QStackedWidget::currentChanged, this, &GalleryWindow::showPageInInspector);

    createDarkFusionStyle(false);
    m_list->setCurrentRow(0);
    showPageInInspector();
    resize(1240, 860);
}

void GalleryWindow::showPage(int index)
{
    m_list->setCurrentRow(index);
}

QWidget* GalleryWindow::currentPage() const
{
    return static_cast<QScrollArea*>(m_stack->currentWidget())->widget();
}

void GalleryWindow::growToPage()
{
    const QWidget* page = currentPage();
    const QSize missing =
        page->minimumSizeHint().expandedTo(page->minimumSize()) - m_stack->currentWidget()->size();
    resize(size() + missing.expandedTo(QSize(0, 0)));
}

void GalleryWindow::showInspector()
{
    if (!m_dock->isHidden())
        return;
    constexpr int width = 420;
    m_dock->show();
    resizeDocks({m_dock}, {width}, Qt::Horizontal);
    resize(this->width() + width, height());
}

bool GalleryWindow::inspect(const QString& className)
{
    showInspector();
    for (const QWidget* widget : m_inspector->widgets()) {
        if (knownWidget(*widget)->name() == className) {
            m_inspector->inspect(widget);
            return true;
        }
    }
    return false;
}

void GalleryWindow::showPageInInspector()
{
    m_inspector->setPage(currentPage());
}

void GalleryWindow::setDark(bool dark)
{
    m_darkAction->setChecked(dark);
}

} // namespace Gallery
