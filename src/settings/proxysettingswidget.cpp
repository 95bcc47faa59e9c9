// SPDX-License-Identifier: MIT
#include "proxysettingswidget.h"

#include "base/whilealive.h"
#include "input/wrongentrysheet.h"
#include "ipasswordstore.h"
#include "proxytest.h"

#include <Corvel/UrlChecker>
#include <CorvelGui/FancyLineEdit>
#include <CorvelGui/PErrorLabel>
#include <CorvelGui/PStringComboBox>
#include <Hueloft/PIconHelper16x16>

#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHostAddress>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <optional>
#include <utility>

using Corvel::ProxyUserSettings;
using Hueloft::PIconHelper16x16;
using Mode = Corvel::ProxyUserSettings::Mode;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr quint16 usualHttpPort = 8080;
constexpr quint16 usualSocksPort = 1080;
constexpr int longestHost = 255;
constexpr int longestEntry = 4'000;
constexpr QSize eyeSize(16, 16);

// No key that a client uses. A store that works has no such password, and asks nobody.
const QString trialKey = u"CorvelGui/trial"_s;

constexpr std::pair<Mode, const char*> modes[] = {
    {Mode::None, QT_TRANSLATE_NOOP("CorvelGui::ProxySettingsWidget", "Without a proxy")},
    {Mode::System, QT_TRANSLATE_NOOP("CorvelGui::ProxySettingsWidget", "As set for this computer")},
    {Mode::Http, QT_TRANSLATE_NOOP("CorvelGui::ProxySettingsWidget", "HTTP proxy")},
    {Mode::Socks5, QT_TRANSLATE_NOOP("CorvelGui::ProxySettingsWidget", "SOCKS5 proxy")},
};

bool isNamed(Mode mode)
{
    return mode == Mode::Http || mode == Mode::Socks5;
}

bool isHost(const QString& text)
{
    if (QHostAddress(text).protocol() == QHostAddress::IPv6Protocol)
        return true;
    QString host;
    int port = 0;
    return !text.contains(u':') && Corvel::UrlChecker::IsUrlValid(text, host, port);
}

QStringList splitEntries(const QString& text)
{
    QString separated = text.simplified();
    for (const QChar separator : {u' ', u';'})
        separated.replace(separator, u',');
    return separated.split(u',', Qt::SkipEmptyParts);
}

QStringList wrongEntries(const QStringList& entries)
{
    QStringList wrong = entries;
    wrong.removeIf(&ProxyUserSettings::isHostEntry);
    return wrong;
}

QUrl addressOf(const QString& text)
{
    QString host;
    int port = 0;
    if (!Corvel::UrlChecker::IsUrlValid(text.trimmed(), host, port))
        return {};
    const QUrl address = QUrl::fromUserInput(text.trimmed());
    return address.scheme() == "http"_L1 || address.scheme() == "https"_L1 ? address : QUrl();
}

QLabel* noteLabel()
{
    auto* note = new QLabel;
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    return note;
}

} // namespace

struct ProxySettingsWidget::Private
{
    QLabel* modeLabel = new QLabel;
    PStringComboBox* mode = new PStringComboBox;
    QLabel* hostLabel = new QLabel;
    QLineEdit* host = new QLineEdit;
    QLabel* portLabel = new QLabel;
    QSpinBox* port = new QSpinBox;
    PErrorLabel* hostError = new PErrorLabel;
    QLabel* userLabel = new QLabel;
    QLineEdit* user = new QLineEdit;
    QLabel* passwordLabel = new QLabel;
    FancyLineEdit* password = new FancyLineEdit;
    QCheckBox* remember = new QCheckBox;
    QLabel* storeNote = noteLabel();
    QLabel* excludedLabel = new QLabel;
    QLineEdit* excluded = new QLineEdit;
    QLabel* excludedNote = noteLabel();
    PErrorLabel* excludedError = new PErrorLabel;
    QLabel* addressLabel = new QLabel;
    QLineEdit* address = new QLineEdit;
    QPushButton* tryButton = new QPushButton;
    QLabel* connected = noteLabel();
    PErrorLabel* notConnected = new PErrorLabel;

    ProxyTest test;
    IPasswordStore* store = nullptr;
    /// What the store said of itself, once it did.
    std::optional<IPasswordStore::Answer> storeAnswer;
    std::unique_ptr<QObject> storeContext;
    ProxyUserSettings known; ///< what was last told
    QString filledPassword;
    bool valid = true;
    bool filling = false;

    bool isPasswordHidden() const { return password->echoMode() == QLineEdit::Password; }
    Mode chosenMode() const { return Mode(mode->currentKey().toInt()); }
    bool storeWorks() const
    {
        return storeAnswer && storeAnswer->status != IPasswordStore::Status::Unavailable;
    }
};

ProxySettingsWidget::ProxySettingsWidget(QWidget* parent)
    : SettingsBaseWidget(parent), d(std::make_unique<Private>())
{
    build();
    retranslate();
    connectFields();
    setSettings({});
}

ProxySettingsWidget::~ProxySettingsWidget() = default;

ProxyUserSettings ProxySettingsWidget::settings() const
{
    return {.mode = d->chosenMode(),
            .host = d->host->text().trimmed(),
            .port = quint16(d->port->value()),
            .user = d->user->text(),
            .password = d->password->text(),
            .excludedHosts = splitEntries(d->excluded->text())};
}

void ProxySettingsWidget::setSettings(const ProxyUserSettings& settings)
{
    d->filling = true;
    d->mode->setCurrentKey(QString::number(int(settings.mode)));
    d->host->setText(settings.host);
    d->port->setValue(settings.port);
    d->user->setText(settings.user);
    d->filledPassword = settings.password;
    d->password->setText(settings.password);
    d->excluded->setText(settings.excludedHosts.join(u", "_s));
    d->filling = false;
    takeEdit();
}

bool ProxySettingsWidget::isValid() const
{
    return d->valid;
}

bool ProxySettingsWidget::isPasswordEdited() const
{
    return d->password->text() != d->filledPassword;
}

void ProxySettingsWidget::fetchedPassword(const QString& password)
{
    if (isPasswordEdited())
        return;
    d->filledPassword = password;
    d->password->setText(password);
}

void ProxySettingsWidget::setPasswordStore(IPasswordStore* store)
{
    d->store = store;
    d->storeAnswer.reset();
    d->storeContext = std::make_unique<QObject>();
    if (store)
        store->read(trialKey, d->storeContext.get(), [this](const IPasswordStore::Answer& answer) {
            d->storeAnswer = answer;
            showStore();
        });
    showStore();
}

bool ProxySettingsWidget::rememberPassword() const
{
    return d->remember->isChecked();
}

void ProxySettingsWidget::setRememberPassword(bool remember)
{
    d->remember->setChecked(remember);
}

QUrl ProxySettingsWidget::testAddress() const
{
    return addressOf(d->address->text());
}

void ProxySettingsWidget::setTestAddress(const QUrl& address)
{
    d->address->setText(address.toString());
}

bool ProxySettingsWidget::isTesting() const
{
    return d->test.isRunning();
}

QString ProxySettingsWidget::testResult() const
{
    return isTesting() ? QString() : d->connected->text() + d->notConnected->error();
}

void ProxySettingsWidget::startTest()
{
    if (!d->valid || testAddress().isEmpty())
        return;
    const bool wasTesting = isTesting();
    d->test.start(settings(), testAddress());
    showTesting();
    if (!wasTesting)
        Q_EMIT testingChanged(true);
}

void ProxySettingsWidget::cancelTest()
{
    const bool wasTesting = isTesting();
    d->test.cancel();
    showTesting();
    if (wasTesting)
        Q_EMIT testingChanged(false);
}

void ProxySettingsWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    SettingsBaseWidget::changeEvent(event);
}

void ProxySettingsWidget::build()
{
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setVerticalSpacing(10);
    const auto addRow = [form](QLabel* label, QWidget* field) {
        label->setBuddy(field);
        form->addRow(label, field);
    };
    addRow(d->modeLabel, d->mode);
    addRow(d->hostLabel, d->host);
    addRow(d->portLabel, d->port);
    form->addRow(QString(), d->hostError);
    addRow(d->userLabel, d->user);
    addRow(d->passwordLabel, d->password);
    form->addRow(QString(), d->remember);
    form->addRow(QString(), d->storeNote);
    addRow(d->excludedLabel, d->excluded);
    form->addRow(QString(), d->excludedNote);
    form->addRow(QString(), d->excludedError);

    auto* trial = new QHBoxLayout;
    trial->addWidget(d->address, 1);
    trial->addWidget(d->tryButton);
    d->addressLabel->setBuddy(d->address);
    form->addRow(d->addressLabel, trial);
    form->addRow(QString(), d->connected);
    form->addRow(QString(), d->notConnected);

    d->host->setMaxLength(longestHost);
    d->port->setRange(0, 65'535);
    d->port->setSpecialValueText(u"–"_s);
    d->port->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    for (QLineEdit* edit : {d->user, static_cast<QLineEdit*>(d->password), d->excluded, d->address})
        edit->setMaxLength(longestEntry);
    d->password->setEchoMode(QLineEdit::Password);
    d->password->setButtonPixmap(FancyLineEdit::Right,
                                 PIconHelper16x16::GetVisibleIcon().pixmap(eyeSize));
    d->password->setButtonFocusPolicy(FancyLineEdit::Right, Qt::TabFocus);
    d->password->setButtonVisible(FancyLineEdit::Right, true);
    d->tryButton->setAutoDefault(false);
}

void ProxySettingsWidget::connectFields()
{
    connect(d->mode, &PStringComboBox::currentKeyChanged, this, &ProxySettingsWidget::takeMode);
    for (const QLineEdit* edit :
         {d->host, d->user, static_cast<QLineEdit*>(d->password), d->excluded})
        connect(edit, &QLineEdit::textChanged, this, &ProxySettingsWidget::takeEdit);
    connect(d->host, &QLineEdit::editingFinished, this, &ProxySettingsWidget::tidyHost);
    connect(d->port, &QSpinBox::valueChanged, this, &ProxySettingsWidget::takeEdit);
    connect(d->password, &FancyLineEdit::rightButtonClicked, this, [this] {
        d->password->setEchoMode(d->isPasswordHidden() ? QLineEdit::Normal : QLineEdit::Password);
        showEye();
    });
    connect(d->remember, &QCheckBox::toggled, this, &ProxySettingsWidget::rememberPasswordChanged);
    connect(d->address, &QLineEdit::textChanged, this, [this] {
        showTesting();
        whileAlive(
            this, [this] { cancelTest(); }, [this] { Q_EMIT testAddressChanged(testAddress()); });
    });
    connect(d->tryButton, &QPushButton::clicked, this,
            [this] { isTesting() ? cancelTest() : startTest(); });
    connect(&d->test, &ProxyTest::ended, this, &ProxySettingsWidget::showTest);
}

void ProxySettingsWidget::takeEdit()
{
    const ProxyUserSettings edited = settings();
    if (d->filling)
        return;
    judge();
    if (edited == d->known)
        return;
    d->known = edited;
    whileAlive(
        this, [this] { cancelTest(); }, // it tried something else
        [this] { Q_EMIT settingsChanged(); });
}

void ProxySettingsWidget::takeMode()
{
    // The port of the other kind would be wrong.
    const Mode mode = d->chosenMode();
    const quint16 usual = mode == Mode::Http ? usualHttpPort : usualSocksPort;
    const quint16 other = mode == Mode::Http ? usualSocksPort : usualHttpPort;
    if (isNamed(mode) && !d->filling && (d->port->value() == 0 || d->port->value() == other))
        d->port->setValue(usual);
    takeEdit();
}

// Who copies the proxy from elsewhere often has it as an address.
void ProxySettingsWidget::tidyHost()
{
    const QString text = d->host->text().trimmed();
    QString host;
    int port = 0;
    if (isHost(text) || !Corvel::UrlChecker::IsUrlValid(text, host, port))
        return;
    const qsizetype scheme = text.indexOf("://"_L1);
    const int typedPort = QUrl(scheme < 0 ? "http://"_L1 + text : text).port();
    d->host->setText(host);
    if (typedPort > 0)
        d->port->setValue(typedPort);
}

void ProxySettingsWidget::judge()
{
    const Mode mode = d->chosenMode();
    const bool named = isNamed(mode);
    for (QWidget* field : std::initializer_list<QWidget*>{d->host, d->port, d->excluded})
        field->setEnabled(named);
    for (QWidget* field : std::initializer_list<QWidget*>{d->user, d->password})
        field->setEnabled(mode != Mode::None);
    showStore();

    const QString host = d->host->text().trimmed();
    const bool wrongHost = named && !isHost(host);
    const QStringList wrong =
        named ? wrongEntries(splitEntries(d->excluded->text())) : QStringList();
    markWrongEntry(d->host, wrongHost && !host.isEmpty());
    markWrongEntry(d->excluded, !wrong.isEmpty());
    if (wrongHost)
        d->hostError->setError(host.isEmpty() ? tr("The proxy needs a host.")
                                              : tr("This is not the name or address of a host."));
    else
        d->hostError->setError(named && d->port->value() == 0 ? tr("The proxy needs a port.")
                                                              : QString());
    d->excludedError->setError(wrong.isEmpty() ? QString()
                                               : tr("Not a server: %1").arg(wrong.join(u", "_s)));
    const bool valid = d->hostError->error().isEmpty() && wrong.isEmpty();
    const bool changed = std::exchange(d->valid, valid) != valid;
    showTesting();
    if (changed)
        Q_EMIT validChanged(valid);
}

void ProxySettingsWidget::showTest(bool connected, const QString& result)
{
    showTesting();
    d->connected->setText(connected ? result : QString());
    d->connected->setVisible(connected);
    d->notConnected->setError(connected ? QString() : result);
    whileAlive(
        this, [this] { Q_EMIT testingChanged(false); }, [&] { Q_EMIT testEnded(connected); });
}

/// Forgets the last result.
void ProxySettingsWidget::showTesting()
{
    const bool testing = isTesting();
    const bool hasAddress = !testAddress().isEmpty();
    d->tryButton->setText(testing ? tr("Cancel") : tr("&Test"));
    d->tryButton->setEnabled(d->valid && hasAddress);
    markWrongEntry(d->address, !hasAddress && !d->address->text().isEmpty());
    d->notConnected->clearError();
    d->connected->setText(testing ? tr("Trying…") : QString());
    d->connected->setVisible(testing);
}

void ProxySettingsWidget::showEye()
{
    const bool hidden = d->isPasswordHidden();
    d->password->setButtonIcon(FancyLineEdit::Right, hidden ? PIconHelper16x16::GetVisibleIcon()
                                                            : PIconHelper16x16::GetInVisibleIcon());
    d->password->setButtonToolTip(FancyLineEdit::Right,
                                  hidden ? tr("Show the password") : tr("Hide the password"));
}

void ProxySettingsWidget::showStore()
{
    d->remember->setEnabled(d->storeWorks() && d->chosenMode() != Mode::None);
    if (d->storeWorks()) {
        d->storeNote->setText(tr("A remembered password is kept in the password store of this "
                                 "computer. Otherwise it is forgotten when the program ends."));
    } else if (d->store && !d->storeAnswer) {
        d->storeNote->setText(tr("The password store of this computer has not answered yet."));
    } else {
        QString text = tr("There is no password store on this computer that works. The password "
                          "is forgotten when the program ends.");
        if (d->storeAnswer && !d->storeAnswer->reason.isEmpty())
            text += u'\n' + tr("The store says: %1").arg(d->storeAnswer->reason.simplified());
        d->storeNote->setText(text);
    }
}

void ProxySettingsWidget::retranslate()
{
    QList<PStringComboBox::Entry> entries;
    for (const auto& [mode, text] : modes)
        entries.append({QString::number(int(mode)), tr(text)});
    d->mode->setEntries(entries);
    d->modeLabel->setText(tr("&Connection:"));
    d->hostLabel->setText(tr("&Host:"));
    d->portLabel->setText(tr("P&ort:"));
    d->userLabel->setText(tr("&User:"));
    d->passwordLabel->setText(tr("Pass&word:"));
    showEye();
    d->remember->setText(tr("&Remember the password"));
    d->excludedLabel->setText(tr("&Not for:"));
    d->excludedNote->setText(tr("Servers that are reached without the proxy, such as %1.")
                                 .arg(u"files.example, *.example, 10.0.0.0/8, <local>"_s));
    d->addressLabel->setText(tr("Test &address:"));
    judge();
}

} // namespace CorvelGui
