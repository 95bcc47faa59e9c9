#include "proxypage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

using Corvel::ProxyUserSettings;

using namespace Qt::StringLiterals;

namespace Review {

ProxyPage::ProxyPage(SettingsStore& store) : ClientPage(store, u"network"_s, u"proxy"_s)
{
    retranslate();
}

void ProxyPage::build(QFormLayout& form)
{
    m_mode = new QComboBox;
    for (const auto mode : {ProxyUserSettings::Mode::None, ProxyUserSettings::Mode::System,
                            ProxyUserSettings::Mode::Http, ProxyUserSettings::Mode::Socks5})
        m_mode->addItem(QString(), int(mode));
    m_modeLabel = addRow(form, m_mode);
    m_host = new QLineEdit;
    m_hostLabel = addRow(form, m_host);
    m_port = new QSpinBox;
    m_port->setRange(0, 65'535);
    m_portLabel = addRow(form, m_port);
    m_user = new QLineEdit;
    m_userLabel = addRow(form, m_user);
    m_password = new QLineEdit;
    m_password->setEchoMode(QLineEdit::Password);
    m_passwordLabel = addRow(form, m_password);
    m_remember = new QCheckBox;
    form.addRow(QString(), m_remember);
    m_note = addNote(form);
    connect(m_mode, &QComboBox::currentIndexChanged, this, &ProxyPage::enableFields);
}

void ProxyPage::show(const ReviewSettings& settings)
{
    const ProxyUserSettings& proxy = settings.proxy;
    m_mode->setCurrentIndex(m_mode->findData(int(proxy.mode)));
    m_host->setText(proxy.host);
    m_port->setValue(proxy.port);
    m_user->setText(proxy.user);
    m_password->setText(proxy.password);
    m_remember->setChecked(settings.rememberPassword);
    enableFields();
}

void ProxyPage::take(ReviewSettings& settings) const
{
    settings.proxy = {.mode = ProxyUserSettings::Mode(m_mode->currentData().toInt()),
                      .host = m_host->text().trimmed(),
                      .port = quint16(m_port->value()),
                      .user = m_user->text(),
                      .password = m_password->text()};
    settings.rememberPassword = m_remember->isChecked();
}

QString ProxyPage::pageName() const
{
    return tr("Proxy");
}

QString ProxyPage::categoryName() const
{
    return tr("Network");
}

void ProxyPage::retranslateFields()
{
    m_modeLabel->setText(tr("&Connection:"));
    const QStringList modes{tr("Without a proxy"), tr("As set for this computer"), tr("HTTP proxy"),
                            tr("SOCKS5 proxy")};
    for (int i = 0; i < modes.size(); ++i)
        m_mode->setItemText(i, modes[i]);
    m_hostLabel->setText(tr("&Host:"));
    m_portLabel->setText(tr("P&ort:"));
    m_userLabel->setText(tr("&User:"));
    m_passwordLabel->setText(tr("Pass&word:"));
    m_remember->setText(tr("&Remember the password"));
    m_note->setText(tr("A remembered password is stored in the settings file, where everybody who "
                       "may read the file can read it. Otherwise it is forgotten when the program "
                       "ends."));
}

void ProxyPage::enableFields()
{
    const auto mode = ProxyUserSettings::Mode(m_mode->currentData().toInt());
    const bool named =
        mode == ProxyUserSettings::Mode::Http || mode == ProxyUserSettings::Mode::Socks5;
    for (QWidget* field : {static_cast<QWidget*>(m_host), static_cast<QWidget*>(m_port)})
        field->setEnabled(named);
    for (QWidget* field : {static_cast<QWidget*>(m_user), static_cast<QWidget*>(m_password),
                           static_cast<QWidget*>(m_remember)})
        field->setEnabled(mode != ProxyUserSettings::Mode::None);
}

} // namespace Review
