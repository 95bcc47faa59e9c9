#pragma once

#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class QDialog;

/// Answers each modal dialog that appears as it was told to, and notes what it says.
class UserAnswers : public QObject
{
    Q_OBJECT

public:
    UserAnswers();

    bool wantsDownload = true;
    bool opensFolder = false;
    /// What is entered where a file is asked for; nothing cancels.
    QString savePath = {};
    /// Done to a dialog before it is answered, if it is still there then.
    std::function<void(const QDialog&)> before = {};

    /// A line for each dialog: its kind, title and text.
    QStringList said() const { return m_said; }

private:
    void answer();

    QStringList m_said;
    QPointer<QDialog> m_answered;
    QTimer m_timer;
};
