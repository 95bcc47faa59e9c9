#include "previewicons.h"

#include <QAction>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QWidget>

namespace CorvelGui {

void lightenPreviewIcons(QWidget& preview)
{
    const QPalette palette = preview.palette();
    if (palette.color(QPalette::Window).lightness() > palette.color(QPalette::Text).lightness())
        return;
    for (QAction* action : preview.findChildren<QAction*>()) {
        const QIcon dark = action->icon();
        QIcon light;
        for (const QSize& size : dark.availableSizes()) {
            QImage picture =
                dark.pixmap(size, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
            picture.invertPixels();
            light.addPixmap(QPixmap::fromImage(picture));
        }
        action->setIcon(light);
    }
}

} // namespace CorvelGui
