// SPDX-License-Identifier: MIT
#include "designerwidget.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QObject>

#include <memory>
#include <vector>

class CorvelGuiDesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    CorvelGuiDesignerPlugin()
    {
        for (const FormWidget& widget : formWidgets())
            m_widgets.push_back(std::make_unique<DesignerWidget>(widget));
    }

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override
    {
        QList<QDesignerCustomWidgetInterface*> result;
        for (const auto& widget : m_widgets)
            result.append(widget.get());
        return result;
    }

private:
    std::vector<std::unique_ptr<DesignerWidget>> m_widgets;
};

#include "plugin.moc"
