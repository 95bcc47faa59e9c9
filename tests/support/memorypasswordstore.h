// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/IPasswordStore>

#include <QMap>
#include <QPointer>
#include <QTimer>

#include <optional>

/// A store of passwords that ends with the test, and can misbehave.
class MemoryPasswordStore : public CorvelGui::IPasswordStore
{
public:
    QMap<QString, QString> passwords = {};
    /// What it answers instead of doing anything.
    std::optional<Answer> refusal = {};
    /// Whether it keeps quiet until answerAll().
    bool isSlow = false;

    void answerAll()
    {
        isSlow = false;
        for (const auto& request : std::exchange(m_waiting, {}))
            request();
    }

    void read(const QString& key, QObject* context, const Receiver& receive) override
    {
        answer(context, receive, [this, key] {
            return passwords.contains(key) ? Answer{Status::Done, passwords[key]}
                                           : Answer{Status::Missing};
        });
    }

    void write(const QString& key, const QString& password, QObject* context,
               const Receiver& receive) override
    {
        answer(context, receive, [this, key, password] {
            passwords[key] = password;
            return Answer{Status::Done};
        });
    }

    void remove(const QString& key, QObject* context, const Receiver& receive) override
    {
        answer(context, receive, [this, key] {
            return Answer{passwords.remove(key) > 0 ? Status::Done : Status::Missing};
        });
    }

private:
    void answer(QObject* context, const Receiver& receive, const std::function<Answer()>& act)
    {
        const auto request = [=, this, alive = QPointer<QObject>(context)] {
            const Answer given = refusal ? *refusal : act();
            if (alive)
                receive(given);
        };
        if (isSlow)
            m_waiting.append(request);
        else
            QTimer::singleShot(0, context, request);
    }

    QList<std::function<void()>> m_waiting;
};
