// SPDX-License-Identifier: MIT
#pragma once

#include "scriptedserver.h"
#include "testsupport.h"
#include "useranswers.h"

inline const QByteArray installer = QByteArray("installer ").repeated(5'000);

/// What looks for updates, a server that it asks, and the user, who saves installers in a folder of
/// the test.
template <typename Updater>
struct UpdateBench
{
    UpdateBench() { user.savePath = folder.filePath(QStringLiteral("saved.exe")); }
    ~UpdateBench() { delete parent; }

    QByteArray saved() const { return readFile(user.savePath); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }
    /// Runs until nothing is under way and every dialog is answered.
    void settle(const QStringList& said)
    {
        QTRY_COMPARE(user.said(), said);
        QTRY_VERIFY(!updater || !updater->isBusy());
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCoreApplication::processEvents();
        QCOMPARE(user.said(), said);
    }

    QTemporaryDir folder;
    ScriptedServer server;
    UserAnswers user;
    QPointer<QWidget> parent = new QWidget;
    QPointer<Updater> updater;
};
