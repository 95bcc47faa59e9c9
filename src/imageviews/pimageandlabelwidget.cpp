// SPDX-License-Identifier: MIT
#include "pimageandlabelwidget.h"

#include "frame/stringhelper.h"

#include <QBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace CorvelGui {

namespace {

class MiddleElidedLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize sizeHint() const override { return minimumSizeHint(); }

    QSize minimumSizeHint() const override
    {
        constexpr int fewCharacters = 12;
        const QSize whole = QLabel::minimumSizeHint();
        return {std::min(whole.width(), fewCharacters * fontMetrics().averageCharWidth()),
                whole.height()};
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip || shownText() == text())
            return QLabel::event(event);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           StringHelper::plainToolTip(text()), this);
        return true;
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        style()->drawItemText(&painter, contentsRect(),
                              int(QStyle::visualAlignment(layoutDirection(), alignment())),
                              palette(), isEnabled(), shownText(), foregroundRole());
    }

private:
    QString shownText() const
    {
        return StringHelper::elidedInMiddle(text(), fontMetrics(), contentsRect().width());
    }
};

} // namespace

PImageAndLabelWidget::PImageAndLabelWidget(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QBoxLayout(QBoxLayout::TopToBottom, this))
    , m_image(new PImageWidget)
    , m_label(new MiddleElidedLabel)
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAlignment(Qt::AlignCenter);
    m_layout->setContentsMargins({});
    m_layout->addWidget(m_image, 1);
    m_layout->addWidget(m_label);
}

QString PImageAndLabelWidget::text() const
{
    return m_label->text();
}

void PImageAndLabelWidget::setText(const QString& text)
{
    if (text == m_label->text())
        return;
    m_label->setText(text);
    m_image->setAccessibleName(text);
    Q_EMIT textChanged(text);
}

Qt::Orientation PImageAndLabelWidget::orientation() const
{
    return m_layout->direction() == QBoxLayout::TopToBottom ? Qt::Vertical : Qt::Horizontal;
}

void PImageAndLabelWidget::setOrientation(Qt::Orientation orientation)
{
    if (this->orientation() == orientation)
        return;
    const bool isBelow = orientation == Qt::Vertical;
    m_layout->setDirection(isBelow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_layout->setStretchFactor(m_image, isBelow ? 1 : 0);
    m_layout->setStretchFactor(m_label, isBelow ? 0 : 1);
    m_label->setAlignment(isBelow ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeading);
    Q_EMIT orientationChanged(orientation);
}

} // namespace CorvelGui
