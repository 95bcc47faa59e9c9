// SPDX-License-Identifier: MIT
#include "helpmenu.h"

#include "aboutdialog.h"

#include <CorvelGui/RSSFeedDialog>

#include <QGuiApplication>
#include <QUrl>

using CorvelGui::RSSFeedDialog;

namespace Review {

HelpMenu::HelpMenu(QWidget* window)
    : Translated(window)
    , m_window(window)
    , m_newsDialog(new RSSFeedDialog(window))
    , m_news(addAction(QString()))
    , m_about(addAction(QString()))
{
    m_about->setMenuRole(QAction::AboutRole);
    connect(m_news, &QAction::triggered, m_newsDialog, [this] {
        m_newsDialog->show();
        m_newsDialog->raise();
        m_newsDialog->activateWindow();
    });
    connect(m_about, &QAction::triggered, this, &HelpMenu::showAbout);
    setNewsAddress({});
    retranslate();
}

void HelpMenu::setNewsAddress(const QUrl& address)
{
    m_newsDialog->setAddress(address);
    m_news->setVisible(!address.isEmpty());
}

void HelpMenu::showAbout()
{
    auto* dialog = new AboutDialog(m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void HelpMenu::retranslate()
{
    setTitle(tr("&Help"));
    m_news->setText(tr("&News…"));
    m_about->setText(tr("&About %1…").arg(QGuiApplication::applicationDisplayName()));
}

} // namespace Review
