#include "rulerarrows.h"

#include "timescale.h"

#include <Hueloft/PIconHelperBase>

#include <QEvent>
#include <QIcon>
#include <QPainter>

using Hueloft::PIconHelperBase;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int repeatInterval = 200; // milliseconds
constexpr double halfMargin = TimeScale::margin() / 2;

/// A strip as narrow as the ruler's outer margin. The icon is wider than that: its sides, which are
/// empty, are cut.
class ArrowButton : public QAbstractButton
{
public:
    ArrowButton(QWidget* parent, const QString& iconPath) : QAbstractButton(parent)
    {
        setFocusPolicy(Qt::NoFocus);
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

RulerArrows::RulerArrows(QWidget* ruler, std::function<bool(int)> canStep)
    : QObject(ruler)
    , m_ruler(ruler)
    , m_canStep(std::move(canStep))
    , m_left(new ArrowButton(ruler, u":/CorvelGui/common/leftarrow.png"_s))
    , m_right(new ArrowButton(ruler, u":/CorvelGui/common/rightarrow.png"_s))
    , m_timer(this)
{
    m_left->installEventFilter(this);
    m_right->installEventFilter(this);
    m_timer.setInterval(repeatInterval);
    connect(&m_timer, &QTimer::timeout, this, &RulerArrows::repeat);
}

void RulerArrows::setEnabled(bool enabled)
{
    for (QAbstractButton* button : {m_left.data(), m_right.data()}) {
        if (button)
            button->setEnabled(enabled);
    }
    if (!enabled)
        m_timer.stop();
}

void RulerArrows::layOut(int top)
{
    const QSize size(int(halfMargin), m_ruler->height() - 2 * top);
    if (m_left)
        m_left->setGeometry(QRect(QPoint(0, top), size));
    if (m_right)
        m_right->setGeometry(QRect(QPoint(int(m_ruler->width() - halfMargin), top), size));
}

bool RulerArrows::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    if (!isPress && event->type() != QEvent::MouseButtonRelease)
        return false;
    if (!static_cast<QWidget*>(watched)->isEnabled())
        return false;

    const QPointer<QObject> alive(watched);
    if (isPress) {
        press(watched == m_left ? -1 : +1);
    } else {
        m_timer.stop();
        Q_EMIT released();
    }
    // A button that is gone handles no event any more.
    return alive.isNull();
}

void RulerArrows::press(int direction)
{
    if (!m_canStep(direction))
        return;
    m_direction = direction;
    m_timer.start();
    Q_EMIT step(direction);
}

void RulerArrows::repeat()
{
    if (m_canStep(m_direction))
        Q_EMIT step(m_direction);
    else
        m_timer.stop();
}

} // namespace CorvelGui
