// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PImageWidget>
#include <CorvelGui/Ruler>
#include <CorvelGui/TrackDescription>
#include <CorvelGui/ZoomTimeline>

#include <QBuffer>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace {

const QString plugins = QStringLiteral(PLUGINS);

QList<QDesignerCustomWidgetInterface*> widgetsOfPlugin()
{
    QPluginLoader loader(plugins + u"/libcorvelgui_designer.so"_s);
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
}

/// A form that holds that widget.
QByteArray formWith(const QString& widget)
{
    return u"<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">%1</widget></ui>"_s
        .arg(widget)
        .toUtf8();
}

std::unique_ptr<QWidget> loaded(QUiLoader& loader, QByteArray form)
{
    QBuffer buffer(&form);
    buffer.open(QIODevice::ReadOnly);
    return std::unique_ptr<QWidget>(loader.load(&buffer));
}

} // namespace

class TestDesigner : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyWidgetStandsInForms()
    {
        QUiLoader loader;
        loader.addPluginPath(plugins);
        const auto widgets = widgetsOfPlugin();
        QVERIFY(widgets.size() > 40);
        QSet<QString> toolTips;
        for (QDesignerCustomWidgetInterface* widget : widgets) {
            const QByteArray className = widget->name().toLatin1();
            const char* name = className.constData();
            const QString xml = widget->domXml();
            const qsizetype begin = xml.indexOf(u"<widget"_s);
            const QString element = xml.mid(begin, xml.indexOf(u"<customwidgets"_s) - begin);
            const auto form = loaded(loader, formWith(element));
            QVERIFY2(form, name);
            const auto* child = form->findChild<QWidget*>({}, Qt::FindDirectChildrenOnly);
            QVERIFY2(child, name);
            const QSize least = child->minimumSizeHint().boundedTo(child->maximumSize());
            QVERIFY2(child->size().expandedTo(least) == child->size(), name);
            QVERIFY2(QFile::exists(QStringLiteral(HEADERS) + u'/' +
                                   widget->includeFile().mid(1).chopped(1)),
                     name);
            QVERIFY2(!widget->group().isEmpty() && !widget->icon().pixmap(22).isNull(), name);
            toolTips.insert(widget->toolTip());
        }
        QCOMPARE(toolTips.size(), widgets.size());
    }

    void samplesAreForDesignersOnly()
    {
        for (QDesignerCustomWidgetInterface* widget : widgetsOfPlugin()) {
            if (widget->name() != "CorvelGui::ZoomTimeline"_L1)
                continue;
            for (const bool inDesigner : {false, true}) {
                widget->initialize(
                    inDesigner ? reinterpret_cast<QDesignerFormEditorInterface*>(this) : nullptr);
                const std::unique_ptr<QWidget> made(widget->createWidget(nullptr));
                auto* timeline = qobject_cast<CorvelGui::ZoomTimeline*>(made.get());
                QCOMPARE(timeline->ruler()->trackDescriptions().isEmpty(), !inDesigner);
            }
            return;
        }
        QFAIL("no timeline");
    }

    void propertiesOfForms()
    {
        QUiLoader loader;
        loader.addPluginPath(plugins);
        const auto form = loaded(loader, formWith(uR"(
            <widget class="CorvelGui::ZoomTimeline" name="timeline">
              <property name="lanesVisible"><bool>true</bool></property></widget>
            <widget class="CorvelGui::RangeSlider" name="range">
              <property name="lowerValue"><number>20</number></property></widget>
            <widget class="CorvelGui::PImageWidget" name="picture">
              <property name="fit"><enum>CorvelGui::PImageWidget::Cover</enum></property></widget>
            <widget class="PTabWidget" name="tabs">
              <widget class="QWidget" name="page">
                <attribute name="title"><string>One</string></attribute></widget></widget>)"_s));
        QVERIFY2(form, qPrintable(loader.errorString()));
        const auto value = [&](const QString& object, const char* property) {
            return form->findChild<QWidget*>(object)->property(property).toInt();
        };
        QCOMPARE(value(u"timeline"_s, "lanesVisible"), 1);
        QCOMPARE(value(u"range"_s, "lowerValue"), 20);
        QCOMPARE(value(u"picture"_s, "fit"), int(CorvelGui::PImageWidget::Fit::Cover));
        QCOMPARE(value(u"tabs"_s, "count"), 1);
    }
};

QTEST_MAIN(TestDesigner)
#include "tst_designer.moc"
