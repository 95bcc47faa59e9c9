// SPDX-License-Identifier: MIT
#pragma once

#include "widgets.h"

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// Tells Designer, and whoever loads a form, of one widget.
class DesignerWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit DesignerWidget(const FormWidget& widget);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* designer) override;
    QString domXml() const override;

private:
    /// Without the namespace.
    QString shortName() const;

    const FormWidget m_widget;
    /// Only Designer initializes.
    bool m_isInDesigner = false;
};
