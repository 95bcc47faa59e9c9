// SPDX-License-Identifier: MIT
#include "clientoptions.h"

#include "look/languages.h"
#include "options/keyboardpage.h"
#include "options/lookpage.h"
#include "options/networkprovider.h"
#include "options/playbackpage.h"
#include "options/settingsstore.h"
#include "options/timepage.h"
#include "reviewwindow.h"

#include <CorvelGui/OptionsDialog>
#include <CorvelGui/PLanguageDialog>
#include <CorvelGui/SettingsManager>
#include <Hueloft/PMessageBox>

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QMenu>

using CorvelGui::OptionsDialog;
using CorvelGui::PLanguageDialog;
using CorvelGui::SettingsManager;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

QMap<QKeySequence, QString> shortcutsOf(const QWidget& window)
{
    QMap<QKeySequence, QString> used;
    for (const QAction* action : window.findChildren<QAction*>()) {
        for (const QKeySequence& keys : action->shortcuts())
            used.insert(keys, action->text().remove(u'&'));
    }
    return used;
}

} // namespace

ClientOptions::ClientOptions(SettingsStore& store, ReviewWindow& window,
                             CorvelGui::IPasswordStore& passwords)
    : m_store(store)
    , m_window(window)
    , m_passwords(passwords)
    , m_password(store, passwords)
    , m_options(new QAction(this))
    , m_language(new QAction(this))
{
    m_options->setMenuRole(QAction::PreferencesRole);
    window.toolsMenu()->addActions({m_options, m_language});
    window.toolsMenu()->menuAction()->setVisible(true);
    connect(m_options, &QAction::triggered, this, [this] { run(); });
    connect(m_language, &QAction::triggered, this, &ClientOptions::chooseLanguage);

    connect(&store, &SettingsStore::changed, this, &ClientOptions::putIntoEffect);
    // Not in the middle of what changes the settings.
    connect(&store, &SettingsStore::saveFailed, this, &ClientOptions::tellUnsaved,
            Qt::QueuedConnection);
    connect(&m_password, &ProxyPassword::notKept, this, &ClientOptions::tellForgotten,
            Qt::QueuedConnection);
    connect(&window, &ReviewWindow::settingsTouched, this, [this] {
        ReviewSettings settings = m_store.settings();
        m_window.takeSettings(settings);
        m_store.change(settings);
    });
    putIntoEffect();
    store.restore(window);
    window.installEventFilter(this);
}

ClientOptions::~ClientOptions() = default;

void ClientOptions::run(const QString& category, const QString& page)
{
    if (!m_running)
        makePages();
    const QPointer<OptionsDialog> dialog =
        OptionsDialog::getSettingsDialog(&m_window, category, page);
    if (m_running) {
        dialog->execDialog();
        return;
    }
    m_running = true;
    m_store.restore(*dialog);
    const QPointer<ClientOptions> alive(this);
    dialog->execDialog();
    if (!alive)
        return;
    m_running = false;
    if (dialog)
        m_store.keep(*dialog);
}

// For each dialog anew: a provider goes with its dialog, and a page collects its words for the
// search only once, in the language of that moment.
void ClientOptions::makePages()
{
    m_pages.clear();
    m_pages.push_back(std::make_unique<LookPage>(m_store));
    m_pages.push_back(std::make_unique<TimePage>(m_store));
    m_pages.push_back(std::make_unique<PlaybackPage>(m_store));
    m_pages.push_back(
        std::make_unique<KeyboardPage>(m_store, [this] { return shortcutsOf(m_window); }));
    for (const std::unique_ptr<ClientPage>& page : m_pages)
        SettingsManager::m_listPages.append(page.get());
    m_provider = new NetworkProvider(m_store, m_passwords);
    SettingsManager::m_listProvider.append(m_provider);
}

void ClientOptions::putIntoEffect()
{
    const ReviewSettings& settings = m_store.settings();
    Corvel::ProxyUserSettings::m_Settings = settings.proxy;
    m_window.applySettings(settings);

    const QString key = Languages::keyFor(settings.language);
    if (key == m_languageKey)
        return;
    m_languageKey = key;
    Languages::use(&m_window, key);
    retranslate();
}

// Right after the switch: an open dialog asks the pages for their names as soon as it hears of it.
void ClientOptions::retranslate()
{
    m_options->setText(tr("&Options…"));
    m_language->setText(tr("&Language…"));
    for (const std::unique_ptr<ClientPage>& page : m_pages)
        page->retranslate();
    if (m_provider)
        m_provider->retranslate();
}

void ClientOptions::chooseLanguage()
{
    auto* dialog = new PLanguageDialog(&m_window, Languages::prefix(), Languages::folder(),
                                       m_languageKey, false);
    for (const QString& key : Languages::keys())
        dialog->addSupportedLanguageKey(key);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        ReviewSettings settings = m_store.settings();
        settings.language = dialog->getCurrentKey();
        m_store.change(settings);
    });
    dialog->open();
}

void ClientOptions::tellUnsaved(const QString& path)
{
    Hueloft::PMessageBox::Warning(
        &m_window, tr("Options"),
        tr("The settings cannot be written to %1. They hold until the program ends.")
            .arg(QDir::toNativeSeparators(path)));
}

void ClientOptions::tellForgotten(const QString& reason)
{
    QString text = tr("The password of the proxy cannot be kept in the password store of this "
                      "computer. It holds until the program ends.");
    if (!reason.isEmpty())
        text += u"\n\n"_s + reason.toHtmlEscaped();
    Hueloft::PMessageBox::Warning(&m_window, tr("Options"), text);
}

bool ClientOptions::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Close)
        m_store.keep(m_window);
    return QObject::eventFilter(watched, event);
}

} // namespace Review
