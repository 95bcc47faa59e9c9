// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace Review {

/// The languages that the program speaks, and where their files are.
class Languages
{
public:
    Languages() = delete;

    /// The prefix of the program's own files.
    static QString prefix();
    /// The keys of all languages.
    static QStringList keys();
    /// The folder with the files, in the build tree and in an installation.
    static QString folder();

    /// The key that is used for @p wanted: for an empty or unknown one that of the operating
    /// system's language, or English.
    static QString keyFor(const QString& wanted);

    /// For what a program prints before it has a display: the language of the operating system.
    static void useForPrinting();
    /// Switches all texts and the way numbers and dates are written. Widgets hear of it as
    /// QEvent::LanguageChange. A file that cannot be loaded is told in a box over @p parent.
    static void use(QWidget* parent, const QString& key);
};

} // namespace Review
