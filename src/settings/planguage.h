#pragma once

#include "translatorlist.h"

#include <QString>

class QWidget;

namespace CorvelGui {

/// Switches the language of the running application. A language key is the name of a locale, such
/// as "de" or "en_US"; a translation file is named prefix, "_", key, ".qm".
///
/// All files come from one folder. A program with texts of its own puts them there together with
/// copies of the library's (corvelgui_de.qm) and of Qt's (qtbase_de.qm). A key without files brings
/// back the texts of the sources, which are English in the library.
class CORVELGUI_EXPORT PLanguage
{
public:
    /// Replaces the translators that it installed before by all files of that language in
    /// @p directory, whatever their prefix; the last in the order of names is asked first. Without
    /// such a file the application shows its untranslated texts.
    ///
    /// A file that cannot be loaded is reported in a message box over @p parent, and the others are
    /// taken. If the language is switched again while such a box is open, the later switch holds.
    static void SetLanguage(QWidget* parent, const QString& key, const QString& directory);

    /// The English name of the key's language.
    static QString languageKeyToLanguage(const QString& key);

private:
    static TranslatorList m_translatorList;
};

} // namespace CorvelGui
