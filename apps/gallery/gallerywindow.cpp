#include "gallerywindow.h"

#include "pages.h"

#include <Hueloft/PIconHelper>

#include <QAction>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolBar>

#include <algorithm>

namespace Gallery {

GalleryWindow::GalleryWindow()
    : PMainWindow(nullptr), m_list(new QListWidget), m_stack(new QStackedWidget)
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

    createDarkFusionStyle(false);
    m_list->setCurrentRow(0);
    resize(1240, 860);
}

void GalleryWindow::showPage(int index)
{
    m_list->setCurrentRow(index);
}

void GalleryWindow::growToPage()
{
    const auto* scroll = static_cast<QScrollArea*>(m_stack->currentWidget());
    const QWidget* page = scroll->widget();
    const QSize missing = page->minimumSizeHint().expandedTo(page->minimumSize()) - scroll->size();
    resize(size() + missing.expandedTo(QSize(0, 0)));
}

void GalleryWindow::setDark(bool dark)
{
    m_darkAction->setChecked(dark);
}

} // namespace Gallery
