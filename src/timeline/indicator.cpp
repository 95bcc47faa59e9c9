// SPDX-License-Identifier: MIT
#include "indicator.h"

#include <QLabel>
#include <QPainter>
#include <QRegion>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int lineWidth = 2;
// Wider than the line itself, so that it can be taken hold of.
constexpr int lineGrip = 6;
constexpr int labelPadding = 4;

} // namespace

Indicator::Indicator(QWidget* parent) : QWidget(parent), m_label(new QLabel(this))
{
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setContentsMargins(labelPadding, 0, labelPadding, 0);
    m_label->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Indicator::setText(const QString& text)
{
    if (m_label->text() == text)
        return;
    m_label->setText(text);
    layOut();
}

QString Indicator::text() const
{
    return m_label->text();
}

void Indicator::setLook(const QColor& color, unsigned int pointSize)
{
    m_color = color;
    m_label->setStyleSheet(
        u"QLabel{border-radius: 5px; background: %1; color: black; font: bold %2pt \"Segoe UI\"}"_s
            .arg(color.name())
            .arg(pointSize));
    m_label->ensurePolished();
    layOut();
    update();
}

int Indicator::labelHeight() const
{
    return m_label->height();
}

void Indicator::moveHotSpotTo(int x)
{
    // At the ends of the parent the label stays in sight, and the line leaves its middle.
    const int rightmost = parentWidget() ? parentWidget()->width() - width() : x;
    const int left = std::max(std::min(x - width() / 2, rightmost), 0);
    move(left, y());
    if (m_hotSpot == x - left)
        return;
    m_hotSpot = x - left;
    updateMask();
    update();
}

void Indicator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(hotSpot() - lineWidth / 2, m_label->height(), lineWidth,
                     height() - m_label->height(), m_color);
}

void Indicator::resizeEvent(QResizeEvent*)
{
    updateMask();
}

void Indicator::layOut()
{
    const int hotSpotX = x() + m_hotSpot;
    m_label->resize(m_label->sizeHint().width(), m_label->fontMetrics().height());
    resize(m_label->width(), height());
    updateMask();
    moveHotSpotTo(hotSpotX);
}

void Indicator::updateMask()
{
    const QRect line(hotSpot() - lineGrip / 2, 0, lineGrip, height());
    setMask(QRegion(m_label->geometry()) + line);
}

} // namespace CorvelGui
