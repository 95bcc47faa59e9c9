#include "picture.h"

#include <QPixmap>
#include <QSaveFile>
#include <QWidget>

namespace Review {

QString writePicture(QWidget& widget, const QString& path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && widget.grab().save(&file, "PNG") && file.flush() &&
        file.commit())
        return {};
    return file.errorString();
}

} // namespace Review
