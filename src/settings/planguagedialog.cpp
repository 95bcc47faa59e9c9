// SPDX-License-Identifier: MIT
#include "planguagedialog.h"

#include "base/logging.h"
#include "base/whilealive.h"
#include "planguage.h"
#include "ui_planguagedialog.h"

#include <QDir>
#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace CorvelGui {

struct PLanguageDialog::Private
{
    Ui::PLanguageDialog ui{};
    const bool applyOnAccept;
    const QString directory;
    const QString prefix;
    const QString currentKey;
    QStringList supportedKeys{};
};

PLanguageDialog::PLanguageDialog(QWidget* parent, const QString& prefix, const QString& directory,
                                 const QString& currentKey, bool applyOnAccept)
    : QDialog(parent, Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , d(new Private{.applyOnAccept = applyOnAccept,
                    .directory = directory,
                    .prefix = prefix,
                    .currentKey = currentKey})
{
    d->ui.setupUi(this);
    connect(d->ui.buttonBox, &QDialogButtonBox::accepted, this, &PLanguageDialog::slotAccept);
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    retranslate();
}

PLanguageDialog::~PLanguageDialog() = default;

void PLanguageDialog::addSupportedLanguageKey(const QString& key)
{
    d->supportedKeys.append(key);
}

QString PLanguageDialog::getCurrentKey() const
{
    return d->ui.CB_Language->currentData().toString();
}

void PLanguageDialog::showEvent(QShowEvent* event)
{
    constexpr int delay = 200; // ms
    QDialog::showEvent(event);
    QTimer::singleShot(delay, this, &PLanguageDialog::slotInitLanguages);
}

void PLanguageDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void PLanguageDialog::retranslate()
{
    d->ui.retranslateUi(this);
    d->ui.CB_Language->setAccessibleName(d->ui.groupBox->title());
    const int none = d->ui.CB_Language->findData(QVariant());
    if (none >= 0)
        d->ui.CB_Language->setItemText(none, tr("There are no translations available."));
}

void PLanguageDialog::slotInitLanguages()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });

    const QStringList files =
        QDir(d->directory).entryList({d->prefix + u"_*.qm"_s}, QDir::NoFilter, QDir::Name);
    if (files.isEmpty())
        showThatThereAreNone();
    for (const QString& file : files)
        addLanguage(file);
    const int current = d->ui.CB_Language->findData(d->currentKey);
    if (current >= 0)
        d->ui.CB_Language->setCurrentIndex(current);
}

void PLanguageDialog::showThatThereAreNone()
{
    QComboBox* languages = d->ui.CB_Language;
    if (languages->findData(QVariant()) < 0)
        languages->addItem(QString());
    retranslate();
    languages->setCurrentIndex(languages->findData(QVariant()));
    d->ui.buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
}

void PLanguageDialog::addLanguage(const QString& fileName)
{
    const qsizetype suffix = fileName.lastIndexOf(u'.');
    if (fileName.sliced(suffix + 1) != u"qm"_s)
        return;
    const QString name = fileName.first(suffix);
    // A key may hold an underscore itself (en_US), and so may what stands before it (app_extra_de).
    QString key = name.mid(d->prefix.size() + 1);
    if (!d->supportedKeys.contains(key))
        key = name.sliced(name.lastIndexOf(u'_') + 1);
    if (!d->supportedKeys.contains(key))
        return;

    const QString language = PLanguage::languageKeyToLanguage(key);
    if (d->ui.CB_Language->findText(language, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0)
        return;
    d->ui.CB_Language->addItem(language, key);
    qCDebug(settingsLog) << "Language=" << language << " key=" << key;
}

void PLanguageDialog::slotAccept()
{
    const auto apply = [this, key = getCurrentKey()] {
        // Without a choice the language stays.
        if (d->applyOnAccept && !key.isEmpty())
            PLanguage::SetLanguage(this, key, d->directory);
    };
    whileAlive(this, apply, [this] { accept(); });
}

} // namespace CorvelGui
