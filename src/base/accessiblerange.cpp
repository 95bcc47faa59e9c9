// SPDX-License-Identifier: MIT
#include "accessiblerange.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

class RangeInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    RangeInterface(QWidget* widget, AccessibleRange* range)
        : QAccessibleWidget(widget, range->description().role), m_range(range)
    {}

    bool isValid() const override { return m_range && QAccessibleWidget::isValid(); }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    // Only what is shown: handles, markers and the like come and go.
    int childCount() const override { return int(shownChildren().size()); }
    QAccessibleInterface* child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(shownChildren().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child ? int(shownChildren().indexOf(child->object())) : -1;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value && m_range)
            return m_range->description().text();
        const QString text = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Name && text.isEmpty() && m_range)
            return m_range->description().name();
        return text;
    }

    QVariant currentValue() const override { return read(&Description::value); }
    QVariant minimumValue() const override { return read(&Description::minimum); }
    QVariant maximumValue() const override { return read(&Description::maximum); }
    QVariant minimumStepSize() const override { return read(&Description::step); }

    void setCurrentValue(const QVariant& value) override
    {
        if (!m_range || !widget()->isEnabled())
            return;
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (!isNumber || std::isnan(number))
            return;
        // A copy, because the move may delete the widget, its range and this interface.
        const Description range = m_range->description();
        range.move(std::min(std::max(number, range.minimum()), range.maximum()));
    }

private:
    using Description = AccessibleRange::Description;

    QObjectList shownChildren() const
    {
        QObjectList shown;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            QObject* child = QAccessibleWidget::child(i)->object();
            if (!static_cast<QWidget*>(child)->isHidden())
                shown.append(child);
        }
        return shown;
    }

    QVariant read(std::function<double()> Description::*number) const
    {
        return m_range ? QVariant((m_range->description().*number)()) : QVariant();
    }

    const QPointer<AccessibleRange> m_range;
};

QAccessibleInterface* createRangeInterface(const QString&, QObject* object)
{
    auto* range = object->isWidgetType()
                      ? object->findChild<AccessibleRange*>(QString(), Qt::FindDirectChildrenOnly)
                      : nullptr;
    return range ? new RangeInterface(static_cast<QWidget*>(object), range) : nullptr;
}

} // namespace

AccessibleRange::AccessibleRange(QWidget* widget, Description description)
    : QObject(widget), m_description(std::move(description))
{
    QAccessible::installFactory(createRangeInterface); // knows what is installed already
}

void AccessibleRange::reportValueChange()
{
    QAccessibleValueChangeEvent event(parent(), m_description.value());
    QAccessible::updateAccessibility(&event);
}

} // namespace CorvelGui
