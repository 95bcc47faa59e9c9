// SPDX-License-Identifier: MIT
#include "rulerarrows.h"

#include "timescale.h"

#include <Hueloft/PIconHelperBase>

#include <QIcon>
#include <QMouseEvent>
#include <QPainter>

using Hueloft::PIconHelperBase;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

/// A strip as narrow as the ruler's outer margin. The icon is wider than that: its sides, which are
/// empty, are cut.
class ArrowButton : public QAbstractButton
{
public:
    ArrowButton(QWidget* parent, const QString& iconPath) : QAbstractButton(parent)
    {
        setFocusPolicy(Qt::NoFocus);
        setMouseTracking(true);
        setCursor(Qt::PointingHandCursor);
        setIcon(PIconHelperBase::GetIcon(iconPath, true));
        setIconSize(QSize(12, 12));
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        if (isEnabled() && (underMouse() || isDown()))
            painter.fillRect(rect(), QColor(255, 255, 255, isDown() ? 80 : 40));
        QRect iconRect(QPoint(0, 0), iconSize());
        iconRect.moveCenter(rect().center());
        icon().paint(&painter, iconRect, Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }
};

} // namespace

RulerArrows::RulerArrows(QWidget* ruler)
    : QObject(ruler)
    , m_ruler(ruler)
    , m_left(createButton(u":/CorvelGui/common/leftarrow.png"_s, -1))
    , m_right(createButton(u":/CorvelGui/common/rightarrow.png"_s, +1))
{
    retranslate();
}

QAbstractButton* RulerArrows::createButton(const QString& iconPath, int direction)
{
    auto* button = new ArrowButton(m_ruler, iconPath);
    button->installEventFilter(this);
    // The mouse does not get as far as the button.
    connect(button, &QAbstractButton::clicked, this,
            [this, direction] { Q_EMIT activated(direction); });
    return button;
}

void RulerArrows::setEnabled(bool enabled)
{
    for (QAbstractButton* button : {m_left.data(), m_right.data()}) {
        if (button)
            button->setEnabled(enabled);
    }
}

void RulerArrows::hold(int direction)
{
    if (QAbstractButton* button = direction < 0 ? m_left : m_right)
        button->setDown(true);
}

void RulerArrows::letGo()
{
    for (QAbstractButton* button : {m_left.data(), m_right.data()}) {
        if (button)
            button->setDown(false);
    }
}

void RulerArrows::layOut(int top)
{
    const QSize size(int(TimeScale::halfMargin()), m_ruler->height() - 2 * top);
    if (m_left)
        m_left->setGeometry(QRect(QPoint(0, top), size));
    if (m_right)
        m_right->setGeometry(
            QRect(QPoint(int(m_ruler->width() - TimeScale::halfMargin()), top), size));
}

bool RulerArrows::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
        auto* button = static_cast<QAbstractButton*>(watched);
        return button->isEnabled() && mouseEvent(button, static_cast<QMouseEvent*>(event));
    }
    case QEvent::Enter:
        Q_EMIT entered();
        return false;
    case QEvent::LanguageChange:
        retranslate();
        return false;
    default:
        return false;
    }
}

bool RulerArrows::mouseEvent(QAbstractButton* button, const QMouseEvent* event)
{
    const bool isMove = event->type() == QEvent::MouseMove;
    const bool isRelease =
        isMove ? !(event->buttons() & Qt::LeftButton) : event->type() == QEvent::MouseButtonRelease;
    if (isRelease) {
        if (button->isDown()) {
            button->setDown(false);
            Q_EMIT released();
        }
    } else if (!isMove && event->button() == Qt::LeftButton) {
        Q_EMIT pressed(button == m_left ? -1 : +1);
    }
    return true;
}

void RulerArrows::retranslate()
{
    if (m_left)
        m_left->setAccessibleName(tr("Earlier"));
    if (m_right)
        m_right->setAccessibleName(tr("Later"));
}

} // namespace CorvelGui
