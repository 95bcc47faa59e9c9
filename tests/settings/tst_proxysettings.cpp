// SPDX-License-Identifier: MIT
#include "labelledfield.h"
#include "memorypasswordstore.h"
#include "scriptedserver.h"
#include "testsupport.h"

#include <CorvelGui/PErrorLabel>
#include <CorvelGui/ProxySettingsWidget>

using namespace CorvelGui;
using Corvel::ProxyUserSettings;
using Mode = Corvel::ProxyUserSettings::Mode;

namespace {

QStringList errorsOf(const QWidget& widget)
{
    QStringList errors;
    for (const PErrorLabel* label : widget.findChildren<PErrorLabel*>())
        errors.append(label->error());
    errors.removeAll(QString());
    return errors;
}

QPushButton& tryButton(const ProxySettingsWidget& widget)
{
    return *widget.findChild<QPushButton*>();
}

} // namespace

class TestProxySettings : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesPassThrough()
    {
        const ProxyUserSettings given{.mode = Mode::Socks5,
                                      .host = u"proxy.example"_s,
                                      .port = 4711,
                                      .user = u" me "_s,
                                      .password = u" p,w "_s,
                                      .excludedHosts = {u"*.example"_s, u"10.0.0.0/8"_s}};
        ProxySettingsWidget widget;
        widget.setSettings({.mode = Mode::Http, .port = 1080});
        QCOMPARE(widget.settings().port, 1080);
        QSignalSpy changed(&widget, &ProxySettingsWidget::settingsChanged);
        widget.setSettings(given);
        QVERIFY(widget.settings() == given);
        widget.setSettings(given);
        QCOMPARE(changed.count(), 1);
        field<QComboBox>(widget, u"Connection:"_s).setCurrentIndex(0);
        QVERIFY(!field<QLineEdit>(widget, u"User:"_s).isEnabled());
        QCOMPARE(widget.settings().host, given.host);
        QCOMPARE(changed.count(), 2);
    }

    void entriesAreJudged()
    {
        const QString notHost = u"This is not the name or address of a host."_s;
        const std::tuple<Mode, QString, quint16, QString, QString> rows[] = {
            {Mode::System, u"?"_s, 0, u"?"_s, {}},
            {Mode::None, {}, 0, {}, {}},
            {Mode::Http, u" proxy "_s, 1, u"a.example; *.b.example,10.0.0.0/8 <local>"_s, {}},
            {Mode::Http, u"fd00::1"_s, 1, {}, {}},
            {Mode::Http, {}, 1, {}, u"The proxy needs a host."_s},
            {Mode::Socks5, u"a b"_s, 1, {}, notHost},
            {Mode::Socks5, u"10.0.0.300"_s, 1, {}, notHost},
            {Mode::Socks5, u"proxy"_s, 0, {}, u"The proxy needs a port."_s},
            {Mode::Http, u"proxy"_s, 1, u"a, b:80, http://c"_s, u"Not a server: b:80, http://c"_s},
        };
        for (const auto& [mode, host, port, excluded, error] : rows) {
            ProxySettingsWidget widget;
            widget.setSettings(
                {.mode = mode, .host = host, .port = port, .excludedHosts = {excluded}});
            QCOMPARE(errorsOf(widget).join(u'\n'), error);
            QCOMPARE(widget.isValid(), error.isEmpty());
            // By mode: all, what a proxy of the system may ask for, and none.
            for (const auto& label : {u"Host:"_s, u"Port:"_s, u"Not for:"_s})
                QCOMPARE(field<QWidget>(widget, label).isEnabled(),
                         mode == Mode::Http || mode == Mode::Socks5);
            for (const auto& label : {u"User:"_s, u"Password:"_s})
                QCOMPARE(field<QWidget>(widget, label).isEnabled(), mode != Mode::None);
            const auto isMarked = [&widget](const QString& label) {
                return !field<QWidget>(widget, label).styleSheet().isEmpty();
            };
            QCOMPARE(isMarked(u"Host:"_s), error == notHost);
            QCOMPARE(isMarked(u"Not for:"_s), error.startsWith(u"Not a server"_s));
        }
    }

    void addressesAreTakenApart()
    {
        const std::tuple<QString, QString, int> rows[] = {
            {u"http://me@proxy.example:3128/"_s, u"proxy.example"_s, 3128},
            {u"proxy.example:1"_s, u"proxy.example"_s, 1},
            {u"[fd00::1]:81"_s, u"fd00::1"_s, 81},
            {u"https://proxy.example"_s, u"proxy.example"_s, 8080},
            {u"a b:1"_s, u"a b:1"_s, 8080}};
        for (const auto& [typed, host, port] : rows) {
            ProxySettingsWidget widget;
            field<QComboBox>(widget, u"Connection:"_s).setCurrentText(u"SOCKS5 proxy"_s);
            QCOMPARE(widget.settings().port, 1080);
            field<QComboBox>(widget, u"Connection:"_s).setCurrentText(u"HTTP proxy"_s);
            auto& edit = field<QLineEdit>(widget, u"Host:"_s);
            edit.setText(typed);
            Q_EMIT edit.editingFinished();
            QCOMPARE(widget.settings().host, host);
            QCOMPARE(widget.settings().port, port);
            // A port of the user's own is not that of another kind.
            field<QComboBox>(widget, u"Connection:"_s).setCurrentText(u"SOCKS5 proxy"_s);
            QCOMPARE(widget.settings().port, port == 8080 ? 1080 : port);
        }
    }

    void passwordStore()
    {
        const auto noteAbout = [](const ProxySettingsWidget& widget) {
            QString note;
            for (const QLabel* label : widget.findChildren<QLabel*>())
                note += label->text().contains(u"password store"_s) ? label->text() : QString();
            return note;
        };
        MemoryPasswordStore store;
        store.isSlow = true;
        ProxySettingsWidget widget;
        auto& remember = *widget.findChild<QCheckBox*>();
        QVERIFY(noteAbout(widget).startsWith(u"There is no password store"_s));
        widget.setPasswordStore(&store);
        QVERIFY(noteAbout(widget).contains(u"has not answered"_s) && !remember.isEnabled());
        store.answerAll();
        QVERIFY(noteAbout(widget).contains(u"is kept in"_s));
        for (const int mode : {0, 1}) {
            field<QComboBox>(widget, u"Connection:"_s).setCurrentIndex(mode);
            QCOMPARE(remember.isEnabled(), mode == 1);
        }
        store.refusal = {IPasswordStore::Status::Unavailable, {}, u"no\nservice"_s};
        widget.setPasswordStore(&store);
        QTRY_VERIFY(noteAbout(widget).endsWith(u"The store says: no service"_s));
        QVERIFY(!remember.isEnabled());
        {
            store.isSlow = true;
            ProxySettingsWidget gone;
            gone.setPasswordStore(&store);
        }
        store.answerAll();

        // What comes late does not replace what was typed.
        auto& password = field<QLineEdit>(widget, u"Password:"_s);
        widget.fetchedPassword(u"fetched"_s);
        QVERIFY(!widget.isPasswordEdited());
        password.setText(u"typed"_s);
        widget.fetchedPassword(u"late"_s);
        QVERIFY(widget.isPasswordEdited());
        QCOMPARE(widget.settings().password, u"typed"_s);

        auto* eye = password.findChildren<QAbstractButton*>().constLast();
        for (const bool shown : {true, false}) {
            eye->click();
            QCOMPARE(password.echoMode(), shown ? QLineEdit::Normal : QLineEdit::Password);
            QCOMPARE(eye->toolTip(), shown ? u"Hide the password"_s : u"Show the password"_s);
        }
    }

    void failuresAreExplained()
    {
        // Nobody answers at this port. Without encryption an HTTP proxy is asked as a server is.
        const QString noProxy = u"The proxy does not answer."_s;
        const QString noServer = u"No connection: "_s;
        const std::tuple<Mode, QStringList, QString> rows[] = {
            {Mode::Http, {}, noProxy},
            {Mode::Http, {u"127.0.0.1"_s}, noServer},
            {Mode::None, {}, noServer}};
        for (const auto& [mode, excluded, begin] : rows) {
            ProxySettingsWidget widget;
            widget.setSettings(
                {.mode = mode, .host = u"127.0.0.1"_s, .port = 1, .excludedHosts = excluded});
            widget.setTestAddress(QUrl(u"http://127.0.0.1:1/"_s));
            widget.startTest();
            QTRY_VERIFY(!widget.isTesting());
            QVERIFY2(widget.testResult().startsWith(begin), qPrintable(widget.testResult()));
        }
    }

    void trial()
    {
        ScriptedServer proxy;
        proxy.script("/good", "hello");
        proxy.script("/slow", "hello", LocalHttp::Misbehaviour::Never);
        LocalHttp::Answer denied = LocalHttp::Answer::error(407, "Who are you");
        denied.headers.append(LocalHttp::Header{"Proxy-Authenticate", "Basic realm=\"proxy\""});
        proxy.script("/denied", denied);
        ProxySettingsWidget widget;
        widget.setSettings({.mode = Mode::Http,
                            .host = u"127.0.0.1"_s,
                            .port = quint16(QUrl(proxy.base()).port())});
        QSignalSpy ended(&widget, &ProxySettingsWidget::testEnded);
        QSignalSpy testing(&widget, &ProxySettingsWidget::testingChanged);
        for (const auto& address : {u""_s, u"rtsp://server.example"_s, u"http://a b"_s}) {
            auto& edit = field<QLineEdit>(widget, u"Test address:"_s);
            edit.setText(address);
            QVERIFY(!tryButton(widget).isEnabled() &&
                    edit.styleSheet().isEmpty() == address.isEmpty());
            widget.startTest();
        }
        QCOMPARE(testing.count(), 0);

        // Only the proxy knows this server.
        const std::pair<QString, QString> rows[] = {
            {u"good"_s, u"Connected: server.example answered after "_s},
            {u"missing"_s, u"No connection: The server answered with status 404."_s},
            {u"denied"_s, u"The proxy asks for a user and a password."_s},
            {u"denied#me"_s, u"The proxy refuses this user or password."_s}};
        for (const auto& [path, result] : rows) {
            field<QLineEdit>(widget, u"User:"_s).setText(path.section(u'#', 1));
            widget.setTestAddress(QUrl(u"http://server.example/"_s + path));
            QCOMPARE(widget.testResult(), QString());
            tryButton(widget).click();
            QTRY_VERIFY(!widget.isTesting());
            QVERIFY2(widget.testResult().startsWith(result), qPrintable(widget.testResult()));
            QCOMPARE(ended.takeFirst(), QVariantList{path == u"good"_s});
        }
        // Cancelled by the button, by an edit and by the end of the widget.
        widget.setTestAddress(QUrl(u"http://server.example/slow"_s));
        tryButton(widget).click();
        QCOMPARE(tryButton(widget).text(), u"Cancel"_s);
        tryButton(widget).click();
        QVERIFY(!widget.isTesting());
        widget.startTest();
        field<QSpinBox>(widget, u"Port:"_s).setValue(1);
        QVERIFY(!widget.isTesting());
        QCOMPARE(testing.count(), 12);
        widget.startTest();
        QTRY_COMPARE(widget.testResult(), u"The proxy does not answer."_s);
        QVERIFY(isDeletedBy<ProxySettingsWidget>(
            [](ProxySettingsWidget& gone) {
                gone.setSettings({.mode = Mode::None});
                gone.setTestAddress(QUrl(u"http://127.0.0.1:1/"_s));
                gone.startTest();
            },
            &ProxySettingsWidget::testEnded));
    }
};

QTEST_MAIN(TestProxySettings)
#include "tst_proxysettings.moc"
