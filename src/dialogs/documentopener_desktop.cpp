#include "documentopener.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace CorvelGui {

bool openWithSystem(const QString& fileName)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(fileName).absoluteFilePath()));
}

} // namespace CorvelGui
