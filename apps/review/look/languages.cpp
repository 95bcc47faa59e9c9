// SPDX-License-Identifier: MIT
#include "languages.h"

#include <CorvelGui/PLanguage>

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

using CorvelGui::PLanguage;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

const QString english = u"en"_s;

// The user's country decides how numbers are written, if the language is spoken there.
QLocale localeFor(const QString& key)
{
    const QLocale wanted(key);
    const QLocale system = QLocale::system();
    return system.language() == wanted.language() ? system : wanted;
}

} // namespace

QString Languages::prefix()
{
    return u"review"_s;
}

QStringList Languages::keys()
{
    return {u"de"_s, english};
}

QString Languages::folder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           u"/../share/corvel-review/translations"_s);
}

QString Languages::keyFor(const QString& wanted)
{
    if (keys().contains(wanted))
        return wanted;
    const QString system = QLocale::system().name().section(u'_', 0, 0);
    return keys().contains(system) ? system : english;
}

void Languages::useForPrinting()
{
    const QString key = keyFor({});
    QLocale::setDefault(localeFor(key));
    PLanguage::useLanguage(nullptr, key, {folder()});
}

void Languages::use(QWidget* parent, const QString& key)
{
    QLocale::setDefault(localeFor(key));
    PLanguage::useLanguage(parent, key, {folder()});
}

} // namespace Review
