// SPDX-License-Identifier: MIT
#pragma once

#include <Corvel/ProxyNetworkAccessManager>
#include <Corvel/ProxyUserSettings>

#include <QElapsedTimer>
#include <QNetworkReply>
#include <QPointer>
#include <QUrl>

namespace CorvelGui {

/// Asks a server for something by a proxy, to see whether that works. One test runs at a time.
class ProxyTest : public QObject
{
    Q_OBJECT

public:
    explicit ProxyTest(QObject* parent = nullptr);
    ~ProxyTest() override;

    bool isRunning() const { return m_reply; }
    /// Ends a running test without a word.
    void start(const Corvel::ProxyUserSettings& settings, const QUrl& address);
    void cancel();

Q_SIGNALS:
    /// Emitted when a test is over that was not cancelled. @p text says in plain words how.
    void ended(bool connected, const QString& text);

private:
    void conclude();
    QString failureText() const;
    bool asksProxyItself() const;

    QPointer<Corvel::ProxyNetworkAccessManager> m_network;
    QPointer<QNetworkReply> m_reply;
    Corvel::ProxyUserSettings m_settings;
    QElapsedTimer m_elapsed;
};

} // namespace CorvelGui
