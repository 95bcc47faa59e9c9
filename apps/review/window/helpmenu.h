// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <QMenu>

class QUrl;

namespace CorvelGui {
class RSSFeedDialog;
} // namespace CorvelGui

namespace Review {

/// The news of the maker, if there is an address of them, and what the client is.
class HelpMenu : public Translated<QMenu>
{
    Q_OBJECT

public:
    /// Dialogs stand over @p window.
    explicit HelpMenu(QWidget* window);

    /// Without an address there are no news in the menu.
    void setNewsAddress(const QUrl& address);
    /// Its state is part of the window's.
    CorvelGui::RSSFeedDialog* news() const { return m_newsDialog; }

protected:
    void retranslate() final;

private:
    void showAbout();

    QWidget* m_window;
    CorvelGui::RSSFeedDialog* m_newsDialog;
    QAction* m_news;
    QAction* m_about;
};

} // namespace Review
