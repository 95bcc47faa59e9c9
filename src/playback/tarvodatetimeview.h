// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QDateTime>
#include <QFrame>

#include <memory>

namespace CorvelGui {

/// The large read-out of a player's time: day and month, hours, minutes, seconds and milliseconds,
/// on the clock of the zone that the shown moment is in.
///
/// A left click, the space bar or the enter key opens a pop-up in which the user picks a moment to
/// jump to. In a layout it takes the height that no other widget wants.
class CORVELGUI_EXPORT TarvoDateTimeView : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QDateTime dateTime READ dateTime WRITE updateDateTime)
    Q_PROPERTY(bool playMode READ isPlayMode WRITE setPlayMode)
    Q_PROPERTY(bool showMilliseconds READ showsMilliseconds WRITE setShowMilliseconds)
    Q_PROPERTY(QString deviceName READ deviceName WRITE setDeviceName)
    Q_PROPERTY(QString dateFormat READ dateFormat WRITE setDateFormat)
    Q_PROPERTY(QDateTime earliestJump READ earliestJump)
    Q_PROPERTY(QDateTime latestJump READ latestJump)

public:
    explicit TarvoDateTimeView(QWidget* parent = nullptr);
    ~TarvoDateTimeView() override;

    /// Shows @p dateTime, its month as QLocale() has it. An invalid one empties the view. Within
    /// one second only the milliseconds follow; going back to exactly the moment that the second
    /// began with changes nothing.
    void updateDateTime(const QDateTime& dateTime);
    /// What is shown, with the milliseconds that its second began with; invalid while that is
    /// nothing. A view that is disabled forgets it.
    QDateTime dateTime() const;
    /// Yellow digits in play mode, as at first, green ones otherwise.
    void setPlayMode(bool play);
    bool isPlayMode() const;
    /// Whether milliseconds are shown, as they are at first.
    void setShowMilliseconds(bool show);
    bool showsMilliseconds() const;
    /// What the header of the pop-up says, from the next time it opens.
    void setDeviceName(const QString& name);
    QString deviceName() const;

    /// How the pop-up writes dates from the next time it opens, in the notation of
    /// QDate::toString(). Empty, as at first, for the short format of the locale with all digits of
    /// the year.
    void setDateFormat(const QString& format);
    QString dateFormat() const;
    /// The first and the last moment that can be jumped to, both included, from the next time that
    /// the pop-up opens. It tells them to who enters another, and stays. Invalid ones, as at first,
    /// are no limits; give both or none.
    void setJumpLimits(const QDateTime& earliest, const QDateTime& latest);
    QDateTime earliestJump() const;
    QDateTime latestJump() const;

    /// What the view reads, to the second, in one line.
    QString shownText() const;

Q_SIGNALS:
    /// Emitted when the user applied a moment in the pop-up, not when it was closed otherwise.
    /// @p dateTime is in the zone of the moment that was shown.
    void jumoToTime(QDateTime dateTime);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Private;

    void showNothing();
    void applyStyle();
    void retranslate();
    void updateMinimumWidth();
    void followScreen();
    void openJumpDialog();
    void placeJumpDialog();
    void onJumpDialogFinished(int result);

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
