// SPDX-License-Identifier: MIT
#include "printpreview.h"

#include <QAction>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QToolButton>

namespace CorvelGui {

namespace {

/// In the same hues, with dark and light exchanged.
QImage exchanged(const QImage& picture)
{
    constexpr int lightest = 255;
    QImage result = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            const QColor color = result.pixelColor(x, y).toHsl();
            result.setPixelColor(x, y,
                                 QColor::fromHsl(color.hslHue(), color.hslSaturation(),
                                                 lightest - color.lightness(), color.alpha()));
        }
    }
    return result;
}

} // namespace

void adaptPrintPreview(QWidget& preview)
{
    for (QToolButton* button : preview.findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::TabFocus);
    const QPalette palette = preview.palette();
    if (palette.color(QPalette::Window).lightness() > palette.color(QPalette::Text).lightness())
        return;
    for (QAction* action : preview.findChildren<QAction*>()) {
        const QIcon dark = action->icon();
        QIcon light;
        for (const QSize& size : dark.availableSizes())
            light.addPixmap(QPixmap::fromImage(exchanged(dark.pixmap(size, 1.0).toImage())));
        action->setIcon(light);
    }
}

} // namespace CorvelGui
