#include "planguagedialog.h"

#include "planguage.h"
#include "ui_planguagedialog.h"

#include <QDebug>
#include <QDir>
#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace CorvelGui {

PLanguageDialog::PLanguageDialog(QWidget* parent, const QString& prefix, const QString& directory,
                                 const QString& currentKey, bool applyOnAccept)
    : QDialog(parent, Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_form(std::make_unique<Ui::PLanguageDialog>())
    , m_applyOnAccept(applyOnAccept)
    , m_directory(directory)
    , m_prefix(prefix)
    , m_currentKey(currentKey)
{
    m_form->setupUi(this);
    connect(m_form->buttonBox, &QDialogButtonBox::accepted, this, &PLanguageDialog::slotAccept);
    connect(m_form->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    updateTexts();
}

PLanguageDialog::~PLanguageDialog() = default;

void PLanguageDialog::addSupportedLanguageKey(const QString& key)
{
    m_supportedKeys.append(key);
}

QString PLanguageDialog::getCurrentKey() const
{
    return m_form->CB_Language->currentData().toString();
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
        updateTexts();
    QDialog::changeEvent(event);
}

void PLanguageDialog::updateTexts()
{
    m_form->retranslateUi(this);
    m_form->CB_Language->setAccessibleName(m_form->groupBox->title());
    const int none = m_form->CB_Language->findData(QVariant());
    if (none >= 0)
        m_form->CB_Language->setItemText(none, tr("There are no translations available."));
}

void PLanguageDialog::slotInitLanguages()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });

    const QStringList files =
        QDir(m_directory).entryList({m_prefix + u"_*.qm"_s}, QDir::NoFilter, QDir::Name);
    if (files.isEmpty()) {
        showThatThereAreNone();
        return;
    }
    for (const QString& file : files)
        addLanguage(file);
    const int current = m_form->CB_Language->findData(m_currentKey);
    if (current >= 0)
        m_form->CB_Language->setCurrentIndex(current);
}

void PLanguageDialog::showThatThereAreNone()
{
    QComboBox* languages = m_form->CB_Language;
    if (languages->findData(QVariant()) < 0)
        languages->addItem(QString());
    updateTexts();
    languages->setCurrentIndex(languages->findData(QVariant()));
    m_form->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
}

void PLanguageDialog::addLanguage(const QString& fileName)
{
    const qsizetype suffix = fileName.lastIndexOf(u'.');
    if (fileName.sliced(suffix + 1) != u"qm"_s)
        return;
    const QString name = fileName.first(suffix);
    // A key may hold an underscore itself (en_US), and so may what stands before it (app_extra_de).
    QString key = name.mid(m_prefix.size() + 1);
    if (!m_supportedKeys.contains(key))
        key = name.sliced(name.lastIndexOf(u'_') + 1);
    if (!m_supportedKeys.contains(key))
        return;

    const QString language = PLanguage::languageKeyToLanguage(key);
    if (m_form->CB_Language->findText(language, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0)
        return;
    m_form->CB_Language->addItem(language, key);
    qDebug() << "Language=" << language << " key=" << key;
}

void PLanguageDialog::slotAccept()
{
    const QPointer<PLanguageDialog> alive(this);
    const QString key = getCurrentKey();
    // Without a choice the language stays.
    if (m_applyOnAccept && !key.isEmpty())
        PLanguage::SetLanguage(this, key, m_directory);
    if (alive)
        accept();
}

} // namespace CorvelGui
