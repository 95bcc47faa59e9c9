// SPDX-License-Identifier: MIT
#pragma once

#include <Hueloft/hueloft_export.h>

#include <QIconEngine>

#include <functional>
#include <memory>

namespace Hueloft {

/// Draws an icon at any size when it is painted, so that it can be in the colours of the look of
/// that moment and sharp at every scale. Hand it to a QIcon, which owns it.
///
/// Pixmaps are square, as large as fits into the size asked for. A pixmap added for a mode and
/// state replaces the drawing there. Both states look alike.
class HUELOFT_EXPORT VectorIconEngine : public QIconEngine
{
public:
    /// Draws into @p square, antialiased. The painter is restored afterwards.
    using Draw = std::function<void(QPainter& painter, const QRect& square, QIcon::Mode mode)>;

    /// @p nominalSize is the side of the first available size, in pixels.
    explicit VectorIconEngine(const Draw& draw, int nominalSize = 16);
    ~VectorIconEngine() override;

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
    struct Private;
    explicit VectorIconEngine(const Private& other);
    const std::unique_ptr<Private> d;
};

} // namespace Hueloft
