// SPDX-License-Identifier: MIT
#pragma once

#include "translatorlist.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace CorvelGui {

/// Switches the language of the running application. A language key is the name of a locale, such
/// as "de" or "en_US"; a translation file is named prefix, "_", key, ".qm".
///
/// A key without files brings back the texts of the sources, which are English in the library.
class CORVELGUI_EXPORT PLanguage
{
public:
    /// Replaces the translators that it installed before by all files of that language in
    /// @p directory, whatever their prefix; the last in the order of names is asked first. Without
    /// such a file the application shows its untranslated texts. A program that uses it puts copies
    /// of the library's file (corvelgui_de.qm) and of Qt's (qtbase_de.qm) beside its own.
    ///
    /// A file that cannot be loaded is reported in a message box over @p parent, and the others are
    /// taken. If the language is switched again while such a box is open, the later switch holds.
    static void SetLanguage(QWidget* parent, const QString& key, const QString& directory);

    /// Switches to a language with all that the application says: the texts of Qt and of this
    /// library, which are found without a folder, and after them, so that they are asked first, the
    /// files of that language in each of @p directories, the last one before the others. Texts that
    /// nobody translates stay as they are in the sources, which is English here. QLocale(), by
    /// which dates and numbers are written, stays: a program that wants it to follow sets it
    /// before, and windows that have no locale of their own take it here.
    ///
    /// A key with a country takes the files of the language where there are none of the country.
    /// What the last call of this function or of SetLanguage() installed goes, and files that
    /// cannot be loaded are reported in the same way; before there is a QApplication, in the log.
    static void useLanguage(QWidget* parent, const QString& key,
                            const QStringList& directories = {});

    /// The English name of the key's language.
    static QString languageKeyToLanguage(const QString& key);

private:
    static void install(QWidget* parent, const QString& key, const QStringList& files);

    static TranslatorList m_translatorList;
};

} // namespace CorvelGui
