// SPDX-License-Identifier: MIT
#include "installerpath.h"

#include "frame/stringhelper.h"

#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

QString installerName(const QString& serverName)
{
    const qsizetype folders =
        std::max(serverName.lastIndexOf(u'/'), serverName.lastIndexOf(u'\\')) + 1;
    return StringHelper::safeFileName(serverName.mid(folders), u"update"_s);
}

QString suggestedInstallerPath(const QString& serverName)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    return QDir::toNativeSeparators(folder + u'/' + installerName(serverName));
}

QString askForInstallerPath(QWidget* parent, const QString& caption, const QString& filter,
                            const QString& serverName)
{
    // Qt's own functions for this cannot bear the loss of the parent.
    const QPointer<QFileDialog> dialog(
        new QFileDialog(parent, caption, suggestedInstallerPath(serverName), filter));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    const bool isChosen = dialog->exec() == QDialog::Accepted && dialog;
    const QString path = isChosen ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return path;
}

} // namespace CorvelGui
