#pragma once

#include <CorvelGui/PMainWindow>

class QAction;
class QListWidget;
class QStackedWidget;

namespace Gallery {

/// The list of pages at the left, the current page beside it, and the switch of the look in the
/// tool bar.
class GalleryWindow : public CorvelGui::PMainWindow
{
    Q_OBJECT

public:
    GalleryWindow();

    void showPage(int index);
    /// Makes the window as large as the current page needs to show without scroll bars.
    void growToPage();
    void setDark(bool dark);

Q_SIGNALS:
    /// Emitted after the application has taken on the other look.
    void lookChanged(bool dark);

private:
    QListWidget* m_list;
    QStackedWidget* m_stack;
    QAction* m_darkAction;
};

} // namespace Gallery
