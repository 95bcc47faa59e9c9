#include "statesign.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace Review {

namespace {

class SignEngine : public QIconEngine
{
public:
    explicit SignEngine(TrackState state) : m_state(state) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const bool selected = mode == QIcon::Selected;
        QColor line =
            QApplication::palette().color(selected ? QPalette::HighlightedText : QPalette::Text);
        if (!selected)
            line.setAlpha(150);
        const QRectF area(rect);
        const double inset = area.height() / 4;
        StateSign::paint(*painter, area.adjusted(1, inset, -1, -inset), m_state, line);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SignEngine(*this); }

private:
    const TrackState m_state;
};

} // namespace

QString StateSign::text(TrackState state)
{
    switch (state) {
    case TrackState::Recorded:
        return tr("Recorded");
    case TrackState::Gap:
        return tr("No recording");
    case TrackState::NothingKnown:
        break;
    }
    return tr("Nothing known");
}

void StateSign::paint(QPainter& painter, const QRectF& area, TrackState state, const QColor& line)
{
    constexpr QColor recorded(12, 160, 130);
    switch (state) {
    case TrackState::Recorded:
        painter.fillRect(area, recorded);
        break;
    case TrackState::Gap:
        painter.setPen(QPen(line, 1));
        painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
        break;
    case TrackState::NothingKnown:
        painter.setPen(QPen(line, 1, Qt::DotLine));
        painter.drawLine(QPointF(area.left(), area.center().y()),
                         QPointF(area.right(), area.center().y()));
        break;
    }
}

QIcon StateSign::icon(TrackState state)
{
    return QIcon(new SignEngine(state));
}

} // namespace Review
