// SPDX-License-Identifier: MIT
#include "accessiblelabel.h"

#include "pclickablelabel.h"
#include "perrorlabel.h"

#include <QAccessibleWidget>
#include <QTextDocumentFragment>

namespace CorvelGui {

namespace {

class LabelInterface : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !text.isEmpty())
            return text;
        const auto* label = qobject_cast<const QLabel*>(widget());
        const bool isRich =
            label->textFormat() == Qt::RichText ||
            (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
        return isRich ? QTextDocumentFragment::fromHtml(label->text()).toPlainText()
                      : label->text();
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (qobject_cast<PClickableLabel*>(widget()) && widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        auto* clickable = qobject_cast<PClickableLabel*>(widget());
        if (clickable && name == pressAction())
            clickable->click();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface* createLabelInterface(const QString& /*className*/, QObject* object)
{
    if (auto* clickable = qobject_cast<PClickableLabel*>(object))
        return new LabelInterface(clickable, QAccessible::Link);
    if (auto* error = qobject_cast<PErrorLabel*>(object))
        return new LabelInterface(error, QAccessible::AlertMessage);
    return nullptr;
}

} // namespace

void makeLabelsAccessible()
{
    QAccessible::installFactory(createLabelInterface); // knows what is installed already
}

} // namespace CorvelGui
