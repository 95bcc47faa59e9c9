// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PMainWindow>

class QAction;
class QDockWidget;
class QListWidget;
class QStackedWidget;

namespace Gallery {

class Inspector;

/// The list of pages at the left, the current page beside it, the inspector at the right, and the
/// switch of the look in the tool bar.
class GalleryWindow : public CorvelGui::PMainWindow
{
    Q_OBJECT

public:
    GalleryWindow();

    void showPage(int index);
    /// Makes the window as large as the current page needs to show without scroll bars.
    void growToPage();
    void setDark(bool dark);
    /// Makes the window wider for it.
    void showInspector();
    /// Shows the first widget of a class of the current page in the inspector. Returns false if
    /// there is none.
    bool inspect(const QString& className);

Q_SIGNALS:
    /// Emitted after the application has taken on the other look.
    void lookChanged(bool dark);

private:
    QWidget* currentPage() const;
    void showPageInInspector();

    QListWidget* m_list;
    QStackedWidget* m_stack;
    QAction* m_darkAction;
    Inspector* m_inspector;
    QDockWidget* m_dock;
};

} // namespace Gallery
