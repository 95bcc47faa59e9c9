// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/ProxyUserSettings>
#include <CorvelGui/SettingsBaseWidget>
#include <CorvelGui/corvelgui_export.h>

#include <QUrl>

#include <memory>

namespace CorvelGui {

class IPasswordStore;

/// Lets the user say how the network is reached: straight, as the system does, or by a proxy, with
/// user and password and with servers to leave out; and try it.
///
/// The widget writes nothing down. The client takes settings() and keeps the password, if the user
/// wants it to be remembered, in the password store whose state the widget shows. A receiver that
/// wants to remove the widget calls deleteLater().
class CORVELGUI_EXPORT ProxySettingsWidget : public SettingsBaseWidget
{
    Q_OBJECT
    Q_PROPERTY(bool valid READ isValid NOTIFY validChanged)
    Q_PROPERTY(bool rememberPassword READ rememberPassword WRITE setRememberPassword NOTIFY
                   rememberPasswordChanged)
    Q_PROPERTY(QUrl testAddress READ testAddress WRITE setTestAddress NOTIFY testAddressChanged)
    Q_PROPERTY(bool testing READ isTesting NOTIFY testingChanged)

public:
    explicit ProxySettingsWidget(QWidget* parent = nullptr);
    ~ProxySettingsWidget() override;

    /// What the fields say, invalid entries included. What does not count in the chosen mode stays.
    Corvel::ProxyUserSettings settings() const;
    /// Fills the fields and forgets that the user edited the password. Emits what changes by it.
    void setSettings(const Corvel::ProxyUserSettings& settings);

    /// Whether a client may take the settings over: a named proxy has a host and a port, and the
    /// servers to leave out are names, addresses and subnets. The widget says what is wrong.
    bool isValid() const;

    /// Whether the field of the password differs from what it was filled with. A password that is
    /// still being fetched from a store must not be replaced by a field that does not know it.
    bool isPasswordEdited() const;
    /// Fills the field unless the user has edited it.
    void fetchedPassword(const QString& password);

    /// Asks @p store whether it works, and tells the user. Not owned; it must live until another
    /// one is set, or the widget is gone. Null, as at first, for none.
    void setPasswordStore(IPasswordStore* store);
    /// The user's wish; it can be changed by the user while the store works.
    bool rememberPassword() const;
    void setRememberPassword(bool remember);

    /// What is asked for to try the settings; empty at first. Only http and https can be tried.
    QUrl testAddress() const;
    void setTestAddress(const QUrl& address);

    /// Whether a test is under way.
    bool isTesting() const;
    /// How the last test ended, for the user; empty while there is none, and as soon as anything
    /// else is edited.
    QString testResult() const;

public Q_SLOTS:
    /// Tries what the fields say; does nothing if they or the address are invalid. A test that is
    /// under way is cancelled.
    void startTest();
    void cancelTest();

Q_SIGNALS:
    /// Emitted when settings() has changed, whoever changed it.
    void settingsChanged();
    void validChanged(bool valid);
    void rememberPasswordChanged(bool remember);
    void testAddressChanged(const QUrl& address);
    void testingChanged(bool testing);
    /// Emitted at the end of a test, unless it was cancelled.
    void testEnded(bool connected);

protected:
    void changeEvent(QEvent* event) override;

private:
    void build();
    void connectFields();
    void takeEdit();
    void takeMode();
    void tidyHost();
    void judge();
    void showTest(bool connected, const QString& result);
    void showTesting();
    void showEye();
    void showStore();
    void retranslate();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
