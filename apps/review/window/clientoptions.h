// SPDX-License-Identifier: MIT
#pragma once

#include "options/proxypassword.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

class QAction;

namespace Review {

class ClientPage;
class NetworkProvider;
class ReviewWindow;
class SettingsStore;

/// Lets the user set the client up, by an options dialog and the choice of the language in the
/// tools menu of the window. What is set goes to the store, and from there into effect, whoever
/// changes it.
///
/// Restores the state of the window at first, and keeps it when the window closes.
class ClientOptions : public QObject
{
    Q_OBJECT

public:
    /// Owns none; all must live longer.
    ClientOptions(SettingsStore& store, ReviewWindow& window, CorvelGui::IPasswordStore& passwords);
    ~ClientOptions() override;

    /// Runs the options dialog at a page, or with empty ids at the one that was shown last.
    void run(const QString& category = {}, const QString& page = {});

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void putIntoEffect();
    void makePages();
    void retranslate();
    void chooseLanguage();
    void tellUnsaved(const QString& path);
    void tellForgotten(const QString& reason);

    SettingsStore& m_store;
    ReviewWindow& m_window;
    CorvelGui::IPasswordStore& m_passwords;
    ProxyPassword m_password;
    QAction* m_options;
    QAction* m_language;
    QString m_languageKey;
    std::vector<std::unique_ptr<ClientPage>> m_pages;
    QPointer<NetworkProvider> m_provider; ///< the dialog deletes it
    bool m_running = false;
};

} // namespace Review
