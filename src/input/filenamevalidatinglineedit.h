// SPDX-License-Identifier: MIT
#pragma once

#include "validatebaselineedit.h"

#include <QString>
#include <QStringList>

namespace CorvelGui {

/// A field for the path of a file to write, with a name that Windows can store.
///
/// The directory must exist, and the path must begin with a drive, as in `D:\data\report.csv`, or
/// be that of a server's share; on systems without drive letters it may begin with a slash. What
/// follows the drive must be free of forbidden characters and must not be a device of Windows. The
/// file itself need not exist. The file system is asked on every judgement.
class CORVELGUI_EXPORT FileNameValidatingLineEdit : public ValidateBaseLineEdit
{
    Q_OBJECT

public:
    explicit FileNameValidatingLineEdit(QWidget* parent = nullptr);
    ~FileNameValidatingLineEdit() override;

    /// Asks for names with @p extension, given without its dot, or with one added before; upper and
    /// lower case differ. The text is not judged again before the next edit or show.
    void addExtensionToCheck(const QString& extension);

    /// Why the name was refused, for the user. Never cleared: it means something only while
    /// isValid() is false, and for a text without a name, drive or directory it is that of an
    /// earlier fault.
    QString getErrorAsStrin() const;

    void Validate() override;

private:
    static bool validateDirExist(const QString& name);
    static bool validateFileName(const QString& name, bool strict, QString& errorText);
    static bool validateFileNameExtension(const QString& name, const QStringList& extensions,
                                          QString& errorText);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
