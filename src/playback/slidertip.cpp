// SPDX-License-Identifier: MIT
#include "slidertip.h"

#include <QEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace CorvelGui {

namespace {

constexpr int gapToSlider = 4;

} // namespace

SliderTip::SliderTip(QWidget* slider)
    : QFrame(slider, Qt::ToolTip | Qt::WindowTransparentForInput)
    , m_picture(new QLabel(this))
    , m_text(new QLabel(this))
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    for (QLabel* label : {m_picture, m_text}) {
        label->setForegroundRole(QPalette::Text);
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->setSpacing(3);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_picture);
    layout->addWidget(m_text);
    slider->installEventFilter(this);
}

void SliderTip::say(const QRect& place, const QString& text, const QPixmap& picture)
{
    m_picture->setPixmap(picture);
    m_picture->setVisible(!picture.isNull());
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
    if (text.isEmpty() && picture.isNull()) {
        hide();
        return;
    }
    layout()->activate();
    const QSize tip = sizeHint();
    const QRect target(parentWidget()->mapToGlobal(place.topLeft()), place.size());
    const QRect screen = parentWidget()->screen()->availableGeometry();
    QPoint corner(target.center().x() - tip.width() / 2, target.top() - gapToSlider - tip.height());
    if (corner.y() < screen.top())
        corner.setY(target.bottom() + gapToSlider);
    corner.setX(std::max(std::min(corner.x(), screen.right() + 1 - tip.width()), screen.left()));
    move(corner);
    show();
}

QString SliderTip::text() const
{
    return m_text->text();
}

bool SliderTip::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Hide || event->type() == QEvent::WindowDeactivate)
        hide();
    return false;
}

} // namespace CorvelGui
