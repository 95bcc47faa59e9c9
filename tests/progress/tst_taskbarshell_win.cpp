// SPDX-License-Identifier: MIT
#include "taskbarbackend.h"
#include "testsupport.h"

#include <CorvelGui/TaskbarProgress>

#include <QThread>
#include <QWindow>

#include <qt_windows.h>

using namespace CorvelGui;

/// The real shell, or Wine's.
class TestTaskbarShell : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void takesEveryState()
    {
        QWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(TaskbarBackend::create()->setProgressValue(window.winId(), 500, 1000) >= 0);
        // Every failure is a warning, which fails the test.
        TaskbarProgress progress;
        progress.setWindow(&window);
        progress.show();
        progress.setRange(0, 100);
        progress.setValue(150);
        progress.setValue(-1);
        progress.pause();
        progress.stop();
        progress.hide();
    }

    void announcesButtons()
    {
        const auto backend = TaskbarBackend::create();
        QList<WId> announced;
        backend->buttonCreated = [&announced](WId window) {
            announced << window;
        };
        QWindow window;
        window.create();
        const HWND handle = reinterpret_cast<HWND>(window.winId());
        PostMessageW(handle, RegisterWindowMessageW(L"TaskbarButtonCreated"), 0, 0);
        PostMessageW(handle, WM_NULL, 0, 0);
        QTRY_VERIFY(announced.contains(window.winId()));
    }

    void missing()
    {
        QTest::ignoreMessage(
            QtWarningMsg,
            "TaskbarProgressImpl: Creating ITaskbarList3 failed with error 0x800401f0");
        // A thread of its own has no COM.
        const std::unique_ptr<QThread> thread(QThread::create([] { TaskbarProgress().show(); }));
        thread->start();
        QVERIFY(thread->wait());
    }
};

QTEST_MAIN(TestTaskbarShell)
#include "tst_taskbarshell_win.moc"
