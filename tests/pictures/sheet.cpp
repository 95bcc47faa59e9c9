// SPDX-License-Identifier: MIT
#include "sheet.h"

#include "pointer.h"

#include <QAbstractAnimation>
#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int gap = 4;

QImage emptyPicture(QSize size, double scale)
{
    QImage picture((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(QApplication::palette().color(QPalette::Window));
    return picture;
}

// Layouts and styles settle over several rounds.
void settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace

void Sheet::paint(const QString& name, QSize size, const std::function<void(QPainter&)>& draw,
                  double scale)
{
    QImage picture = emptyPicture(size, scale);
    QPainter painter(&picture);
    draw(painter);
    painter.end();
    m_tiles.append({name, picture});
}

void Sheet::grab(const QString& name, QWidget& window, double scale)
{
    for (auto* animation : window.findChildren<QAbstractAnimation*>())
        if (animation->totalDuration() > 0)
            animation->setCurrentTime(animation->totalDuration());
    settle();
    QImage picture = emptyPicture(window.size(), scale);
    window.render(&picture);
    m_tiles.append({name, picture});
}

void Sheet::showInWindow(const QString& name, QWidget& widget, QSize size,
                         const std::function<void()>& act, double scale)
{
    QWidget window;
    // Or the first child that takes it would have the focus.
    window.setFocusPolicy(Qt::StrongFocus);
    window.setFocus();
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    if (size.width() > 0)
        widget.setFixedWidth(size.width());
    if (size.height() > 0)
        widget.setFixedHeight(size.height());
    layout->addWidget(&widget);
    widget.show();
    window.show();
    window.activateWindow();
    QCoreApplication::processEvents();
    if (!window.isActiveWindow() && !QTest::qWaitForWindowActive(&window))
        qFatal("The window of a picture did not become active.");
    act();
    grab(name, window, scale);
}

QList<QRect> Sheet::places() const
{
    QList<QRect> places;
    QPoint next;
    int below = 0;
    for (const Tile& tile : m_tiles) {
        if (next.x() > 0 && next.x() + tile.picture.width() > m_width)
            next = QPoint(0, below);
        places.append(QRect(next, tile.picture.size()));
        below = std::max(below, places.last().bottom() + 1 + gap);
        next.rx() += tile.picture.width() + gap;
    }
    return places;
}

QImage Sheet::image() const
{
    const QList<QRect> all = places();
    QRect area(0, 0, m_width, 1);
    for (const QRect& place : all)
        area |= place;
    QImage sheet(area.size(), QImage::Format_RGB32);
    sheet.fill(ground);
    QPainter painter(&sheet);
    for (qsizetype i = 0; i < all.size(); ++i) {
        QImage picture = m_tiles[i].picture;
        picture.setDevicePixelRatio(1);
        painter.drawImage(all[i].topLeft(), picture);
    }
    return sheet;
}

void hover(QWidget& widget)
{
    widget.setAttribute(Qt::WA_UnderMouse);
    enterMouse(widget, widget.rect().center());
    widget.update();
}

void focus(QWidget& widget)
{
    widget.setFocus(Qt::TabFocusReason);
}

void disable(QWidget& widget)
{
    widget.setEnabled(false);
}

void mirror(QWidget& widget)
{
    widget.setLayoutDirection(Qt::RightToLeft);
}
