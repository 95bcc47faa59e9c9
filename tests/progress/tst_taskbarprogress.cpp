// SPDX-License-Identifier: MIT
#include "taskbarbackend.h"
#include "testsupport.h"

#include <CorvelGui/TaskbarProgress>

#include <QWindow>

#include <climits>

using namespace CorvelGui;

namespace {

/// Writes down what a shell would get.
struct RecordingBackend : TaskbarBackend
{
    long setProgressValue(WId, qint64 completed, qint64 total) override
    {
        log += QByteArray::number(completed) + '/' + QByteArray::number(total) + ' ';
        return result;
    }
    long setProgressState(WId window, State state) override
    {
        static const char* const names[]{"none ", "marquee ", "normal ", "error ", "paused "};
        log += names[int(state)];
        lastWindow = window;
        return result;
    }

    QByteArray log;
    WId lastWindow = 0;
    long result = 0;
};

struct Progress : TaskbarProgress
{
    explicit Progress(RecordingBackend* recording = new RecordingBackend)
        : TaskbarProgress(std::unique_ptr<TaskbarBackend>(recording), nullptr), backend(recording)
    {}
    QByteArray takeLog() { return std::exchange(backend->log, {}).trimmed(); }

    RecordingBackend* const backend;
};

} // namespace

class TestTaskbarProgress : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void pushes()
    {
        using P = Progress;
        const std::pair<void (*)(P&), const char*> cases[]{
            {[](P& p) { p.show(); }, "marquee"},
            {[](P& p) { p.setRange(0, 100), p.setValue(50); }, "0/1000 none 500/1000 none"},
            {[](P& p) { p.setMinimum(-10), p.setMaximum(20); }, "1000/1000 none 333/1000 none"},
            {[](P& p) { p.setValue(150), p.setMaximum(100); }, "none 1500/1000 none"},
            {[](P& p) { p.setValue(-1), p.setMaximum(10); }, "none -100/1000 none"},
            {[](P& p) { p.show(), p.setRange(10, 10); }, "marquee normal"},
            {[](P& p) { p.show(), p.setRange(9, 3); }, "marquee normal"},
            {[](P& p) { p.setRange(INT_MIN, INT_MAX); }, "500/1000 none"},
            {[](P& p) { p.show(), p.pause(), p.setValue(1), p.resume(); },
             "marquee paused paused marquee"},
            {[](P& p) { p.pause(), p.show(), p.hide(); }, "none paused none"},
            {[](P& p) { p.stop(), p.show(), p.pause(), p.resume(); }, "none error error error"},
            {[](P& p) { p.stop(), p.hide(), p.setVisible(true); }, "none none error"},
            {[](P& p) { p.show(), p.show(), p.setValue(0); }, "marquee marquee marquee"},
        };
        for (const auto& [steps, expected] : cases) {
            QWindow shown;
            Progress progress;
            progress.setWindow(&shown);
            steps(progress);
            QCOMPARE(progress.takeLog(), QByteArray(expected));
        }
    }

    void window()
    {
        Progress progress;
        auto shown = std::make_unique<QWindow>();
        progress.show();
        progress.setWindow(shown.get());
        const auto& createButton = progress.backend->buttonCreated;
        // The state waits for a setter; a first button does not replace it.
        createButton(shown->winId());
        QCOMPARE(progress.takeLog(), QByteArray());
        progress.setRange(0, 4);
        QCOMPARE(progress.backend->lastWindow, shown->winId());
        createButton(shown->winId() + 1);
        QCOMPARE(progress.takeLog(), QByteArray("0/1000 normal"));
        createButton(shown->winId());
        QCOMPARE(progress.takeLog(), QByteArray("0/1000 normal"));

        // Without a handle there is no button; the next handle gets a new one.
        shown->destroy();
        progress.setValue(1);
        QCOMPARE(progress.takeLog(), QByteArray());
        shown->create();
        const WId last = shown->winId();
        createButton(last);
        QCOMPARE(progress.takeLog(), QByteArray("250/1000 normal"));
        shown.reset();
        progress.setValue(2);
        createButton(last);
        QCOMPARE(progress.takeLog(), QByteArray());
    }

    void failures()
    {
        QWindow shown;
        Progress progress;
        progress.setWindow(&shown);
        progress.backend->result = -2147467259; // E_FAIL
        const char* const warnings[]{
            "TaskbarProgressImpl: SetProgressValue failed with error 0x80004005",
            "TaskbarProgressImpl: SetProgressState failed with error 0x80004005"};
        for (const char* warning : warnings)
            QTest::ignoreMessage(QtWarningMsg, warning);
        progress.setMaximum(1);
    }
};

QTEST_MAIN(TestTaskbarProgress)
#include "tst_taskbarprogress.moc"
