// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QUrl>

#include <functional>

class QDialog;

/// Answers each modal dialog that appears as it was told to, and notes what it says. Takes what
/// would be opened with the desktop's programs.
class UserAnswers : public QObject
{
    Q_OBJECT

public:
    UserAnswers();
    ~UserAnswers() override;

    bool wantsDownload = true;
    bool opensFolder = false;
    /// What is entered where a file is asked for; nothing cancels.
    QString savePath = {};
    /// Done to a dialog before it is answered, if it is still there then.
    std::function<void(const QDialog&)> before = {};
    /// Deletes @p object instead of answering a dialog whose line begins so.
    void deleteAt(const QString& begin, QObject* object);

    /// A line for each dialog: its kind, title and text.
    QStringList said() const { return m_said; }
    /// Files, folders and pages that were opened, each as its address.
    QStringList opened() const { return m_opened; }

private Q_SLOTS:
    void open(const QUrl& url) { m_opened.append(url.toString()); }

private:
    void answer();

    QStringList m_said;
    QStringList m_opened;
    QPointer<QDialog> m_answered;
    QTimer m_timer;
};
