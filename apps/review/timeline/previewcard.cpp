// SPDX-License-Identifier: MIT
#include "previewcard.h"

#include "look/eventicons.h"
#include "look/statesign.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr int padding = 10;
constexpr int lineGap = 4;
constexpr int signWidth = 22;
constexpr int iconSize = 16;
constexpr int remarkGap = 18;
constexpr int widestText = 300;
constexpr qsizetype mostTracks = 8;
constexpr QSize pictureRoom(256, 144);

constexpr QColor background(28, 31, 35);
constexpr QColor edge(96, 104, 116);
constexpr QColor textColor(236, 239, 242);
constexpr QColor remarkColor(168, 176, 186);

} // namespace

PreviewCard::PreviewCard(QWidget* window) : QWidget(window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void PreviewCard::showContent(const PreviewContent& content, QPoint anchor)
{
    setContent(content);
    m_hasPicture = content.hasPicture;
    m_picture = {};
    resize(sizeHint());
    const QRect room = parentWidget()->rect();
    move(std::clamp(anchor.x() - width() / 2, 0, std::max(0, room.width() - width())),
         std::clamp(anchor.y() - height(), 0, std::max(0, room.height() - height())));
    raise();
    show();
    update();
}

void PreviewCard::setPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

int PreviewCard::pictureHeight() const
{
    return m_hasPicture ? pictureRoom.height() + padding : 0;
}

QStringList PreviewCard::lines() const
{
    QStringList texts;
    for (const Line& line : m_lines)
        texts.append(line.remark.isEmpty() ? line.text : line.text + u": "_s + line.remark);
    return texts;
}

void PreviewCard::setContent(const PreviewContent& content)
{
    m_lines = {{.text = content.time}};
    const auto addRest = [this](qsizetype count) {
        if (count > 0)
            m_lines.append({.text = tr("and %n more", nullptr, int(count))});
    };
    for (const auto& event : content.events.first(std::min(mostEvents, content.events.size())))
        m_lines.append({.sign = Line::Sign::Event, .kind = event.kind, .text = event.text});
    addRest(content.events.size() + content.furtherEvents - mostEvents);

    for (const auto& track : content.tracks.first(std::min(mostTracks, content.tracks.size()))) {
        const QString remark = track.state == TrackState::Recorded  ? tr("recorded")
                               : track.state == TrackState::Gap     ? tr("no recording")
                               : track.state == TrackState::Loading ? tr("not known yet")
                                                                    : tr("nothing known");
        m_lines.append({.sign = Line::Sign::Track,
                        .state = track.state,
                        .text = track.name,
                        .remark = remark});
    }
    addRest(content.tracks.size() - mostTracks);
    for (Line& line : m_lines)
        line.text = line.text.simplified();
    setAccessibleName(lines().join(u'\n'));
}

QFont PreviewCard::fontOf(const Line& line) const
{
    QFont font = this->font();
    font.setBold(&line == &m_lines.first());
    return font;
}

int PreviewCard::heightOf(const Line& line) const
{
    return std::max(QFontMetrics(fontOf(line)).height(),
                    line.sign == Line::Sign::Event ? iconSize : 0);
}

int PreviewCard::widthOf(const Line& line) const
{
    const QFontMetrics metrics(fontOf(line));
    // A text elides in its own rounded width.
    constexpr int rounding = 2;
    int width = std::min(metrics.horizontalAdvance(line.text) + rounding, widestText);
    if (line.sign != Line::Sign::None)
        width += signWidth;
    if (!line.remark.isEmpty())
        width += remarkGap + metrics.horizontalAdvance(line.remark);
    return width;
}

QSize PreviewCard::sizeHint() const
{
    int width = m_hasPicture ? pictureRoom.width() : 0;
    int height = pictureHeight() - lineGap;
    for (const Line& line : m_lines) {
        width = std::max(width, widthOf(line));
        height += heightOf(line) + lineGap;
    }
    return QSize(width, height) + QSize(2 * padding, 2 * padding);
}

void PreviewCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), edge);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), background);
    if (m_hasPicture) {
        const QRect room(QPoint((width() - pictureRoom.width()) / 2, padding), pictureRoom);
        painter.fillRect(room, Qt::black);
        QRect fitting({}, m_picture.size().scaled(pictureRoom, Qt::KeepAspectRatio));
        fitting.moveCenter(room.center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(fitting, m_picture);
    }
    int top = padding + pictureHeight();
    for (const Line& line : std::as_const(m_lines)) {
        const QRect area(padding, top, width() - 2 * padding, heightOf(line));
        paintLine(painter, line, area);
        top += area.height() + lineGap;
    }
}

void PreviewCard::paintLine(QPainter& painter, const Line& line, const QRect& area) const
{
    QRect rest = area;
    if (line.sign != Line::Sign::None) {
        const QRect sign(area.left(), area.center().y() - iconSize / 2 + 1, iconSize, iconSize);
        if (line.sign == Line::Sign::Event)
            EventIcons::onTimeline(line.kind).paint(&painter, sign);
        else
            StateSign::paint(painter, QRectF(sign).adjusted(1, 4, -1, -4), line.state, remarkColor);
        rest.setLeft(area.left() + signWidth);
    }
    painter.setFont(fontOf(line));
    const QFontMetrics metrics = painter.fontMetrics();
    if (!line.remark.isEmpty()) {
        painter.setPen(remarkColor);
        painter.drawText(rest, Qt::AlignRight | Qt::AlignVCenter, line.remark);
        rest.setRight(rest.right() - remarkGap - metrics.horizontalAdvance(line.remark));
    }
    painter.setPen(textColor);
    painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(line.text, Qt::ElideRight, rest.width()));
}

} // namespace Review
