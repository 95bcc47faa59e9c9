// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QColor>
#include <QList>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

class QPixmap;

namespace CorvelGui {

class VideoTrack;

/// The position bar of a video: how far it is played, what of it is buffered, and marks in it. All
/// places are in milliseconds from the begin of the video. Time runs to the right in every
/// language, as on the timeline.
///
/// The user seeks by clicks, drags, wheel and keys: Left and Right (or Down and Up) by the single
/// step, Page Down and Page Up by the page step, Home and End, with Ctrl to the mark before and
/// behind. Escape takes a drag back. The bar shows at once what the user wants, but asks for one
/// place at a time: after seekRequested() not again before seekDone(), and then for the newest
/// place. Any signal may delete it.
///
/// Where the mouse rests the time stands in a tip, with the text of a mark there, and with a
/// picture when the client answers previewRequested().
class CORVELGUI_EXPORT VideoSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qint64 duration READ duration WRITE setDuration NOTIFY durationChanged)
    Q_PROPERTY(qint64 position READ position WRITE setPosition NOTIFY positionChanged)
    Q_PROPERTY(qint64 bufferedBegin READ bufferedBegin NOTIFY bufferedChanged)
    Q_PROPERTY(qint64 bufferedEnd READ bufferedEnd NOTIFY bufferedChanged)
    Q_PROPERTY(qint64 singleStep READ singleStep WRITE setSingleStep NOTIFY singleStepChanged)
    Q_PROPERTY(qint64 pageStep READ pageStep WRITE setPageStep NOTIFY pageStepChanged)
    Q_PROPERTY(bool dragging READ isDragging NOTIFY draggingChanged)
    Q_PROPERTY(bool seeking READ isSeeking NOTIFY seekingChanged)

public:
    /// A place of the recording that stands out, with a text for the tip.
    struct Mark
    {
        qint64 position = 0;
        QString text = {};
        QColor color = {}; ///< invalid for that of the look

        bool operator==(const Mark&) const = default;
    };
    /// Says how a position, in milliseconds, is written.
    using PositionText = std::function<QString(qint64)>;

    explicit VideoSlider(QWidget* parent = nullptr);
    ~VideoSlider() override;

    /// 0 at first: there is nothing to seek in. From 0 to 2^53, as are the steps.
    qint64 duration() const;
    /// What the bar shows, from 0 to duration(): where the user wants to be while dragging or
    /// seeking, otherwise where the player is.
    qint64 position() const;

    qint64 bufferedBegin() const;
    qint64 bufferedEnd() const;

    /// Of keys and wheel: 5 s at first, 1 ms at least.
    qint64 singleStep() const;
    void setSingleStep(qint64 step);
    /// 60 s at first, 1 ms at least.
    qint64 pageStep() const;
    void setPageStep(qint64 step);

    /// By their position. Those outside of the video are kept, but not shown.
    QList<Mark> marks() const;
    void setMarks(const QList<Mark>& marks);

    bool isDragging() const;
    /// Whether a seek is under way: since seekRequested(), until the last seekDone().
    bool isSeeking() const;

    /// How a position is written and spoken: by the function that was set, otherwise as "m:ss", or
    /// "h:mm:ss" in a video of an hour or more.
    QString textOf(qint64 position) const;
    /// An empty function, as at first, means the above.
    void setPositionText(PositionText text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// The position stays, as far as it is within the new duration.
    void setDuration(qint64 msecs);
    /// Takes the position of the player, to the nearer end if it is outside. Ignored while the user
    /// drags and while a seek is under way: say seekDone() before the place where it ended.
    void setPosition(qint64 msecs);
    /// What can be played without waiting; empty where @p end is not behind @p begin.
    void setBuffered(qint64 begin, qint64 end);
    /// The player has done what seekRequested() asked for, or has given up. The next place is asked
    /// for at once if there is one. Does nothing while no seek is under way.
    void seekDone();
    /// Nothing is under way any more and a drag ends, as for another video.
    void forgetSeeks();
    /// A picture for the tip, while the mouse is still at about @p position; a null one for none.
    void setPreview(qint64 position, const QPixmap& picture);

Q_SIGNALS:
    /// Emitted when setDuration() changed it.
    void durationChanged(qint64 msecs);
    /// Emitted when what is shown changes, whoever changed it.
    void positionChanged(qint64 msecs);
    /// Emitted when setBuffered() changed it.
    void bufferedChanged();
    /// Emitted when setSingleStep() changed it.
    void singleStepChanged(qint64 step);
    /// Emitted when setPageStep() changed it.
    void pageStepChanged(qint64 step);
    /// Emitted when the user takes and when he leaves the handle.
    void draggingChanged(bool isDragging);
    /// Emitted with true before a seekRequested() while none was under way, and with false when the
    /// last of them is done or forgotten.
    void seekingChanged(bool isSeeking);
    /// Emitted when the user wants another place and no seek is under way, and by seekDone() for
    /// the newest of the places that were wanted meanwhile. Never for the one asked for last.
    void seekRequested(qint64 msecs);
    /// Emitted when the mouse has rested for a tenth of a second, also during a drag.
    void previewRequested(qint64 msecs);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Private;

    VideoTrack track() const;
    const Mark* markAt(int x) const;
    void showPosition(qint64 position);
    void seek(qint64 position);
    void seekToMark(bool behind);
    void setDragging(bool on);
    void endDragLater();
    void hover(int x);
    void showTip();

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
