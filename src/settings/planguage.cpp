#include "planguage.h"

#include "base/logging.h"

#include <Hueloft/PMessageBox>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

std::unique_ptr<QTranslator> load(const QString& path, const QString& directory)
{
    qCDebug(settingsLog) << "Loading translation file:" << path;
    auto translator = std::make_unique<QTranslator>();
    // Without delimiters and suffix: this file, and none with a shorter name.
    return translator->load(path, directory, u""_s, u""_s) ? std::move(translator) : nullptr;
}

void reportUnloadable(QWidget* parent, const QString& language, const QString& path)
{
    const QString text =
        QObject::tr("Can not load %1 translations from file\n\"%2\"").arg(language, path);
    qCDebug(settingsLog) << "Warning:" << text;
    Hueloft::PMessageBox::Warning(parent, QObject::tr("Warning"), text, QMessageBox::Ok,
                                  QMessageBox::Ok);
}

} // namespace

TranslatorList PLanguage::m_translatorList;

void PLanguage::SetLanguage(QWidget* parent, const QString& key, const QString& directory)
{
    static int switches = 0;
    const int thisSwitch = ++switches;

    for (QTranslator* translator : std::as_const(m_translatorList.getList()))
        QCoreApplication::removeTranslator(translator);
    m_translatorList.cleanUpList();

    const QPointer<QWidget> box(parent);
    const QFileInfoList files =
        QDir(directory).entryInfoList({u"*_%1.qm"_s.arg(key)}, QDir::NoFilter, QDir::Name);
    for (const QFileInfo& file : files) {
        const QString path = file.absoluteFilePath();
        if (std::unique_ptr<QTranslator> translator = load(path, directory)) {
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
