// SPDX-License-Identifier: MIT
#include "planguage.h"

#include "base/logging.h"

#include <Hueloft/PMessageBox>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

std::unique_ptr<QTranslator> load(const QString& path)
{
    qCDebug(settingsLog) << "Loading translation file:" << path;
    auto translator = std::make_unique<QTranslator>();
    // Without delimiters and suffix: this file, and none with a shorter name.
    const QString folder = QFileInfo(path).path();
    return translator->load(path, folder, u""_s, u""_s) ? std::move(translator) : nullptr;
}

void reportUnloadable(QWidget* parent, const QString& language, const QString& path)
{
    const QString text =
        QObject::tr("Can not load %1 translations from file\n\"%2\"").arg(language, path);
    qCDebug(settingsLog) << "Warning:" << text;
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        Hueloft::PMessageBox::Warning(parent, QObject::tr("Warning"), text, QMessageBox::Ok,
                                      QMessageBox::Ok);
}

/// The files of a language in a folder, in the order of their names.
QStringList filesIn(const QString& directory, const QString& key)
{
    QStringList paths;
    const QFileInfoList files =
        QDir(directory).entryInfoList({u"*_%1.qm"_s.arg(key)}, QDir::NoFilter, QDir::Name);
    for (const QFileInfo& file : files)
        paths.append(file.absoluteFilePath());
    return paths;
}

/// The first of the files that exists.
QStringList firstOf(const QStringList& folders, const QString& name)
{
    for (const QString& folder : folders) {
        const QString path = QDir(folder).filePath(name);
        if (QFileInfo::exists(path))
            return {path};
    }
    return {};
}

/// Where Qt is, or beside the program.
QStringList filesOfQt(const QString& key)
{
    return firstOf({QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                    QCoreApplication::applicationDirPath() + u"/translations"_s},
                   u"qtbase_%1.qm"_s.arg(key));
}

QStringList filesOfLibrary(const QString& key)
{
    return firstOf({u":/CorvelGui/translations"_s}, u"corvelgui_%1.qm"_s.arg(key));
}

/// A window keeps the locale of the time when it was made until it is asked to take another one.
void adoptLocale()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->testAttribute(Qt::WA_SetLocale))
            window->unsetLocale();
    }
}

} // namespace

TranslatorList PLanguage::m_translatorList;

void PLanguage::SetLanguage(QWidget* parent, const QString& key, const QString& directory)
{
    install(parent, key, filesIn(directory, key));
}

void PLanguage::useLanguage(QWidget* parent, const QString& key, const QStringList& directories)
{
    const QString language = key.section(u'_', 0, 0);
    const auto ofKeyOrLanguage = [&](const auto& find) {
        const QStringList files = find(key);
        return files.isEmpty() ? find(language) : files;
    };
    QStringList files = ofKeyOrLanguage(filesOfQt) + ofKeyOrLanguage(filesOfLibrary);
    for (const QString& directory : directories)
        files += ofKeyOrLanguage([&](const QString& name) { return filesIn(directory, name); });
    adoptLocale();
    install(parent, key, files);
}

void PLanguage::install(QWidget* parent, const QString& key, const QStringList& files)
{
    static int switches = 0;
    const int thisSwitch = ++switches;

    m_translatorList.cleanUpList(); // which takes them from the application as well

    const QPointer<QWidget> box(parent);
    for (const QString& path : files) {
        if (std::unique_ptr<QTranslator> translator = load(path)) {
            m_translatorList.getList().append(translator.release());
            continue;
        }
        reportUnloadable(box, languageKeyToLanguage(key), path);
        if (thisSwitch != switches)
            return;
    }

    for (QTranslator* translator : QList(m_translatorList.getList())) {
        if (translator->isEmpty())
            continue;
        if (!QCoreApplication::installTranslator(translator))
            qCDebug(settingsLog) << "Language: Can not install Translator Key:" << key;
    }
}

QString PLanguage::languageKeyToLanguage(const QString& key)
{
    return QLocale::languageToString(QLocale(key).language());
}

} // namespace CorvelGui
