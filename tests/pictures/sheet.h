// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>
#include <QWidget>

#include <functional>

class QPainter;

/// Small pictures beside and below each other, each with a name.
class Sheet
{
public:
    struct Tile
    {
        QString name;
        QImage picture;
    };

    /// Around the tiles.
    static constexpr QColor ground{128, 128, 128};

    /// @p width is the most that tiles beside each other take, where they can.
    explicit Sheet(int width) : m_width(width) {}

    /// A tile of what @p draw draws in the size, on the window colour of the look.
    void paint(const QString& name, QSize size, const std::function<void(QPainter&)>& draw,
               double scale = 1);

    /// A tile of a new widget, which this deletes: in an active window, where it has @p size or,
    /// for lengths of 0, that of its hint. @p acts bring it into its state there.
    template <typename Widget, typename... Acts>
    void show(const QString& name, Widget* widget, QSize size = {}, const Acts&... acts)
    {
        showAt(1, name, widget, size, acts...);
    }
    template <typename Widget, typename... Acts>
    void showAt(double scale, const QString& name, Widget* widget, QSize size, const Acts&... acts)
    {
        showInWindow(
            name, *widget, size, [&] { (acts(*widget), ...); }, scale);
    }

    /// A tile of a window as it stands.
    void grab(const QString& name, QWidget& window, double scale = 1);

    const QList<Tile>& tiles() const { return m_tiles; }
    /// Where the tiles stand on the sheet.
    QList<QRect> places() const;
    QImage image() const;

private:
    void showInWindow(const QString& name, QWidget& widget, QSize size,
                      const std::function<void()>& act, double scale);

    const int m_width;
    QList<Tile> m_tiles;
};

/// Lets @p widget look as if the mouse were over it.
void hover(QWidget& widget);

/// Focus as if it came from the keyboard.
void focus(QWidget& widget);
void disable(QWidget& widget);
void mirror(QWidget& widget);
