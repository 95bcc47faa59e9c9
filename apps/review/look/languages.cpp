#include "languages.h"

#include <CorvelGui/PLanguage>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QWidget>

#include <memory>

using CorvelGui::PLanguage;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

const QString english = u"en"_s;

// On Windows, Qt's files are beside the program.
QString toolkitFile(const QString& key)
{
    const QString name = u"qtbase_%1.qm"_s.arg(key);
    for (const QString& folder : {QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                                  QCoreApplication::applicationDirPath() + u"/translations"_s}) {
        if (QFileInfo::exists(QDir(folder).filePath(name)))
            return QDir(folder).filePath(name);
    }
    return {};
}

// Before the program's own files, which are asked first that way.
void useToolkitFile(const QString& path)
{
    static std::unique_ptr<QTranslator> current;
    current.reset();
    auto translator = std::make_unique<QTranslator>();
    if (path.isEmpty() || !translator->load(path))
        return;
    current = std::move(translator);
    QCoreApplication::installTranslator(current.get());
}

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
                           u"/../share/CorvelGui/translations"_s);
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
    useToolkitFile(toolkitFile(key));
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(prefix() + u'_' + key, folder()))
        QCoreApplication::installTranslator(translator);
}

void Languages::use(QWidget* parent, const QString& key)
{
    QLocale::setDefault(localeFor(key));
    useToolkitFile(toolkitFile(key));
    PLanguage::SetLanguage(parent, key, folder());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        window->unsetLocale();
}

} // namespace Review
