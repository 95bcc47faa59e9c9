// SPDX-License-Identifier: MIT
#pragma once

#include "data/eventkind.h"
#include "data/trackhistory.h"

#include <QImage>
#include <QWidget>

namespace Review {

/// What the card says of an instant.
struct PreviewContent
{
    struct Occurrence
    {
        EventKind kind;
        QString text;

        bool operator==(const Occurrence&) const = default;
    };

    QString time;
    QList<Occurrence> events;
    /// How many there are that it does not name.
    qsizetype furtherEvents = 0;
    QList<NamedState> tracks;
    /// Whether a picture is to come, which needs room.
    bool hasPicture = false;
};

/// The card that appears above the timeline where the mouse rests. It is as dark as the timeline in
/// both looks, and takes no mouse events. Texts are shown as they are.
class PreviewCard : public QWidget
{
    Q_OBJECT

public:
    /// So many are named.
    static constexpr qsizetype mostEvents = 3;

    /// The card stays inside @p window. Starts hidden.
    explicit PreviewCard(QWidget* window);

    /// Shows the card with the middle of its lower edge at @p anchor of the window, or as near as
    /// the window allows.
    void showContent(const PreviewContent& content, QPoint anchor);

    /// Shows the picture in its room above the texts; none if @p picture is null.
    void setPicture(const QImage& picture);

    /// The texts from top to bottom.
    QStringList lines() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Line
    {
        enum class Sign { None, Event, Track };

        Sign sign = Sign::None;
        EventKind kind = EventKind::Other;
        TrackState state = TrackState::NothingKnown;
        QString text = {};
        QString remark = {};
    };

    void setContent(const PreviewContent& content);
    QFont fontOf(const Line& line) const;
    int heightOf(const Line& line) const;
    int widthOf(const Line& line) const;
    void paintLine(QPainter& painter, const Line& line, const QRect& area) const;

    int pictureHeight() const;

    QList<Line> m_lines;
    bool m_hasPicture = false;
    QImage m_picture;
};

} // namespace Review
