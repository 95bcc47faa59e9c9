// SPDX-License-Identifier: MIT
#include "perrorlabel.h"

#include "accessiblelabel.h"

#include <Hueloft/POrvGuiTheme>

#include <QAccessible>
#include <QEvent>
#include <QPainter>
#include <QStyle>

using Hueloft::POrvGuiTheme;

namespace CorvelGui {

namespace {

constexpr int gapBesideSign = 6;

} // namespace

PErrorLabel::PErrorLabel(QWidget* parent) : QLabel(parent)
{
    makeLabelsAccessible();
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeading | Qt::AlignTop); // beside the sign
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    hide();
    takeLook();
}

void PErrorLabel::setError(const QString& error)
{
    if (error == text())
        return;
    setText(error);
    appear();
    if (!error.isEmpty()) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
    Q_EMIT errorChanged(error);
}

bool PErrorLabel::event(QEvent* event)
{
    // In the midst of it the label must not be shown.
    if (event->type() == QEvent::ParentChange)
        QMetaObject::invokeMethod(this, &PErrorLabel::appear, Qt::QueuedConnection);
    return QLabel::event(event);
}

void PErrorLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
        takeLook();
        break;
    default:
        break;
    }
}

void PErrorLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    const int size = signSize();
    const int top = contentsRect().top() + (fontMetrics().height() - size) / 2;
    const QRect square = QStyle::visualRect(layoutDirection(), rect(), QRect(0, top, size, size));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(foregroundRole()));
    painter.drawEllipse(square);
    // An exclamation mark, as wide as it looks good on a disc.
    painter.setBrush(palette().color(QPalette::Base));
    const qreal unit = size / 16.0;
    const QPointF center = QRectF(square).center();
    painter.drawRoundedRect(QRectF(center.x() - unit, center.y() - 5 * unit, 2 * unit, 6 * unit),
                            unit, unit);
    painter.drawEllipse(center + QPointF(0, 3.8 * unit), 1.2 * unit, 1.2 * unit);
}

// A widget without parent would be a window.
void PErrorLabel::appear()
{
    if (parentWidget() || text().isEmpty())
        setVisible(!text().isEmpty());
}

void PErrorLabel::takeLook()
{
    const QColor red = POrvGuiTheme::statusRed();
    if (palette().color(QPalette::WindowText) != red) {
        QPalette colors;
        colors.setColor(QPalette::WindowText, red);
        setPalette(colors);
    }
    const int room = signSize() + gapBesideSign;
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    setContentsMargins(rightToLeft ? 0 : room, 0, rightToLeft ? room : 0, 0);
}

int PErrorLabel::signSize() const
{
    return fontMetrics().ascent() + 1;
}

} // namespace CorvelGui
