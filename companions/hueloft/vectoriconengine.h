#pragma once

#include "icongrid.h"
#include "iconink.h"

#include <QHash>
#include <QIconEngine>
#include <QPixmap>

namespace Hueloft {

/// The outline of an icon, in the pixels of @p grid, to be filled with Qt::WindingFill.
using IconShape = QPainterPath (*)(const IconGrid& grid);

struct VectorIcon
{
    IconShape shape;
    IconInk ink;
    int nominalSize;       ///< side in pixels; the first of the available sizes
    bool outlined = false; ///< with a dark rim, for icons that stand on coloured ground
};

/// Draws an icon from its outline at any size, in the colour of the look that is active at the time
/// of painting.
///
/// Pixmaps are square, as large as fits into the size asked for. A pixmap added for a mode and
/// state replaces the drawing there. Both states look alike.
class VectorIconEngine : public QIconEngine
{
public:
    explicit VectorIconEngine(const VectorIcon& icon);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override;
    QString key() const override;
    QIconEngine* clone() const override;

private:
    using Slot = std::pair<QIcon::Mode, QIcon::State>;

    const VectorIcon m_icon;
    QHash<Slot, QPixmap> m_replacements;
};

/// An icon that VectorIconEngine draws.
QIcon vectorIcon(const VectorIcon& icon);

} // namespace Hueloft
