#include "installerpath.h"

#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr qsizetype longestFileName = 120;
constexpr qsizetype longestSuffix = 10;

bool isForbidden(QChar character)
{
    // Format characters can make "exe.txt" of "txt.exe"; surrogates are half a character.
    return !character.isPrint() || character.category() == QChar::Other_Format ||
           u"<>:\"|?*"_s.contains(character);
}

bool isReserved(const QString& name)
{
    static const QStringList devices{u"con"_s, u"prn"_s,    u"aux"_s,
                                     u"nul"_s, u"conin$"_s, u"conout$"_s};
    const QString base = name.left(name.indexOf(u'.')).trimmed().toLower();
    if (devices.contains(base))
        return true;
    return base.size() == 4 && (base.startsWith(u"com"_s) || base.startsWith(u"lpt"_s)) &&
           (base.back().isDigit() || u"\u00b9\u00b2\u00b3"_s.contains(base.back()));
}

QString shortenedName(const QString& name)
{
    if (name.size() <= longestFileName)
        return name;
    const QString suffix = name.mid(std::max(name.lastIndexOf(u'.'), qsizetype(0)));
    if (suffix.size() > longestSuffix)
        return name.left(longestFileName);
    return name.left(longestFileName - suffix.size()) + suffix;
}

} // namespace

QString safeFileName(const QString& serverName)
{
    const qsizetype folders =
        std::max(serverName.lastIndexOf(u'/'), serverName.lastIndexOf(u'\\')) + 1;
    QString name = serverName.mid(folders);
    name.removeIf(isForbidden);
    name = shortenedName(name.trimmed());
    // Windows drops blanks and dots at the end, elsewhere ".." is a folder.
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    if (name.isEmpty())
        return u"update"_s;
    return isReserved(name) ? u'_' + name : name;
}

QString suggestedInstallerPath(const QString& serverName)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    return QDir::toNativeSeparators(folder + u'/' + safeFileName(serverName));
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
