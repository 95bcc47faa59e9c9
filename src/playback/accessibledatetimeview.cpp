// SPDX-License-Identifier: MIT
#include "accessibledatetimeview.h"

#include "tarvodatetimeview.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>

namespace CorvelGui {

namespace {

class DateTimeViewInterface : public QAccessibleWidget
{
public:
    explicit DateTimeViewInterface(QWidget* view) : QAccessibleWidget(view, QAccessible::Button) {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value)
            return QAccessibleWidget::text(kind);
        return static_cast<TarvoDateTimeView*>(widget())->shownText();
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
        } else if (widget()->isEnabled()) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
            QCoreApplication::sendEvent(widget(), &press);
        }
    }
};

QAccessibleInterface* create(const QString&, QObject* object)
{
    auto* view = qobject_cast<TarvoDateTimeView*>(object);
    return view ? new DateTimeViewInterface(view) : nullptr;
}

} // namespace

void installAccessibleDateTimeView()
{
    QAccessible::installFactory(create); // knows what is installed already
}

} // namespace CorvelGui
