// SPDX-License-Identifier: MIT
#include "designerwidget.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

QString nearestOfQt(const QMetaObject* meta)
{
    while (*meta->className() != 'Q')
        meta = meta->superClass();
    return QString::fromLatin1(meta->className());
}

} // namespace

DesignerWidget::DesignerWidget(const FormWidget& widget) : m_widget(widget) {}

QString DesignerWidget::name() const
{
    return QString::fromLatin1(m_widget.meta->className());
}

QString DesignerWidget::shortName() const
{
    return name().section(u"::"_s, -1);
}

QString DesignerWidget::group() const
{
    return m_widget.group;
}

QString DesignerWidget::toolTip() const
{
    return m_widget.toolTip;
}

QString DesignerWidget::whatsThis() const
{
    return m_widget.toolTip;
}

QString DesignerWidget::includeFile() const
{
    return u"<CorvelGui/%1>"_s.arg(shortName());
}

QIcon DesignerWidget::icon() const
{
    return iconOf(m_widget.pictogram);
}

bool DesignerWidget::isContainer() const
{
    return m_widget.isContainer;
}

QWidget* DesignerWidget::createWidget(QWidget* parent)
{
    QWidget* widget = m_widget.create(parent);
    if (m_isInDesigner && m_widget.fill)
        m_widget.fill(*widget);
    return widget;
}

bool DesignerWidget::isInitialized() const
{
    return m_isInDesigner;
}

void DesignerWidget::initialize(QDesignerFormEditorInterface* designer)
{
    m_isInDesigner = designer != nullptr;
}

QString DesignerWidget::domXml() const
{
    QString objectName = shortName();
    objectName[0] = objectName[0].toLower();
    return uR"(<ui language="c++" displayname="%1">
<widget class="%2" name="%3"><property name="geometry"><rect>
<x>0</x><y>0</y><width>%4</width><height>%5</height></rect></property></widget>
<customwidgets><customwidget><class>%2</class><extends>%6</extends></customwidget></customwidgets>
</ui>)"_s.arg(shortName(), name(), objectName, QString::number(m_widget.size.width()),
              QString::number(m_widget.size.height()), nearestOfQt(m_widget.meta));
}
