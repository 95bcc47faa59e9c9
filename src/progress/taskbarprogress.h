// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QObject>
#include <QWindow>

#include <memory>

namespace CorvelGui {

class TaskbarBackend;

/// Shows a progress on the taskbar button of one window, on Windows; elsewhere it only keeps the
/// values.
///
/// Every setter except setWindow() sends the complete state to the shell. When the shell makes the
/// button anew, because it restarted, it gets the state again.
class CORVELGUI_EXPORT TaskbarProgress : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QWindow* window READ window WRITE setWindow)
    Q_PROPERTY(bool visible READ isVisible WRITE setVisible)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(bool paused READ isPaused WRITE setPaused)
    Q_PROPERTY(bool stopped READ isStopped)

public:
    explicit TaskbarProgress(QObject* parent = nullptr);
    /// Leaves the button as it is. To clear it, hide() first.
    ~TaskbarProgress() override;

    /// The window whose button shows the progress, from the next setter on; a null one for none.
    /// The window gets a native handle if it has none yet. It stays the caller's, and may be
    /// deleted or get another handle.
    void setWindow(QWindow* window);
    /// Null once it is deleted.
    QWindow* window() const;

    bool isVisible() const;
    int minimum() const;
    int maximum() const;
    int value() const;
    bool isPaused() const;
    bool isStopped() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    void show();
    void hide();
    void setVisible(bool visible);
    /// Nothing is checked or clamped. The range 0 to 0 shows that something runs, without a value;
    /// any other empty or reversed range sends no value.
    void setRange(int minimum, int maximum);
    void setMinimum(int minimum);
    void setMaximum(int maximum);
    /// Not clamped to the range.
    void setValue(int value);
    void pause();
    void resume();
    void setPaused(bool paused);
    /// Shows the error state whenever visible from now on, for good, also while paused.
    void stop();

protected:
    /// Shows the progress on @p backend, which may be null, instead of on the shell.
    TaskbarProgress(std::unique_ptr<TaskbarBackend> backend, QObject* parent);

private:
    void forgetWindow();
    void push();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
