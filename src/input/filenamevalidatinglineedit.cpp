// SPDX-License-Identifier: MIT
#include "filenamevalidatinglineedit.h"

#include "filenamerules.h"
#include "typedfile.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace CorvelGui {

struct FileNameValidatingLineEdit::Private
{
    QString errorText;
    QStringList extensions;
};

FileNameValidatingLineEdit::FileNameValidatingLineEdit(QWidget* parent)
    : ValidateBaseLineEdit(parent), d(std::make_unique<Private>())
{}

FileNameValidatingLineEdit::~FileNameValidatingLineEdit() = default;

void FileNameValidatingLineEdit::addExtensionToCheck(const QString& extension)
{
    d->extensions.append(extension);
}

QString FileNameValidatingLineEdit::getErrorAsStrin() const
{
    return d->errorText;
}

void FileNameValidatingLineEdit::Validate()
{
    const QString path = text();
    if (!validateDirExist(path)) {
        setError(true);
        return;
    }
    const std::optional<QString> name = checkedNamePart(path, hasDriveLetters());
    setError(!name || !validateFileName(*name, true, d->errorText) ||
             !validateFileNameExtension(*name, d->extensions, d->errorText));
}

bool FileNameValidatingLineEdit::validateDirExist(const QString& name)
{
    const QFileInfo file = typedFile(name);
    return !file.filePath().isEmpty() && QDir(file.absolutePath()).exists();
}

bool FileNameValidatingLineEdit::validateFileName(const QString& name, bool strict,
                                                  QString& errorText)
{
    if (name.isEmpty()) {
        errorText = tr("Name is empty.");
        return false;
    }
    if (const std::optional<QChar> character = forbiddenCharacter(name, strict)) {
        errorText = character->isSpace() ? tr("Name contains white space.")
                                         : tr("Invalid character '%1'.").arg(*character);
        return false;
    }
    if (isDeviceName(name, strict)) {
        errorText = tr("Name matches MS Windows device. (%1).").arg(deviceNamesForDisplay());
        return false;
    }
    return true;
}

bool FileNameValidatingLineEdit::validateFileNameExtension(const QString& name,
                                                           const QStringList& extensions,
                                                           QString& errorText)
{
    if (hasExtension(name, extensions))
        return true;
    errorText = extensions.size() == 1
                    ? tr("File extension %1 is required:").arg(extensions.first())
                    : tr("File extensions %1 are required:").arg(extensions.join(", "_L1));
    return false;
}

} // namespace CorvelGui
