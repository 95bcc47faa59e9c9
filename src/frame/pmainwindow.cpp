// SPDX-License-Identifier: MIT
#include "pmainwindow.h"

#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace CorvelGui {

struct PMainWindow::Private
{
    const QPalette initialPalette = QGuiApplication::palette();
};

PMainWindow::PMainWindow(QWidget* parent) : QMainWindow(parent), d(std::make_unique<Private>()) {}

PMainWindow::~PMainWindow() = default;

void PMainWindow::setCenterPosAndResize()
{
    constexpr int screenMargin = 100;
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    resize(screen.width() - 2 * screenMargin, screen.height() - 2 * screenMargin);
    move(screenMargin, screenMargin);
}

void PMainWindow::createDarkFusionStyle(bool dark)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    POrvGuiTheme::bPantherTheme = dark;

    const QString tabRule = u"QTabBar::tab {width:150px;}"_s;
    const auto fusion = [] {
        return QStyleFactory::create(u"Fusion"_s);
    };
    // The order differs on purpose: the light palette is the standard one of the style that is
    // active before the switch, the dark one starts from the palette at construction.
    if (dark) {
        QApplication::setStyle(fusion());
        QPalette palette = d->initialPalette;
        POrvGuiTheme::SetDarkPalette(palette);
        QApplication::setPalette(palette);
        qApp->setStyleSheet(POrvGuiTheme::darkTheme() + tabRule);
    } else {
        QApplication::setPalette(QApplication::style()->standardPalette());
        QApplication::setStyle(fusion());
        qApp->setStyleSheet(POrvGuiTheme::whiteTheme() + tabRule);
    }

    repaint();
    QApplication::restoreOverrideCursor();
}

} // namespace CorvelGui
