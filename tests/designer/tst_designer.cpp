// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include "ui_enumerations.h"

#include <CorvelGui/TrackDescription>
#include <CorvelGui/ZoomTimeline>

#include <QBuffer>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtDesigner/QtDesigner>
#include <QtDesigner/qdesigner_components.h>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace {

const QString plugins = QStringLiteral(PLUGINS);

QList<QDesignerCustomWidgetInterface*> widgetsOfPlugin()
{
    QPluginLoader loader(plugins + u"/libcorvelgui_designer.so"_s);
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
}

/// A form that holds the widget as Designer adds it.
QString formWith(const QDesignerCustomWidgetInterface* widget)
{
    const QString xml = widget->domXml();
    const qsizetype begin = xml.indexOf(u"<widget"_s);
    const qsizetype middle = xml.indexOf(u"<customwidgets"_s);
    return u"<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">%1</widget>%2"_s
        .arg(xml.mid(begin, middle - begin), xml.mid(middle));
}

std::unique_ptr<QWidget> loaded(QUiLoader& loader, const QString& form)
{
    QByteArray bytes = form.toUtf8();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return std::unique_ptr<QWidget>(loader.load(&buffer));
}

QWidget* childOf(const QWidget* form)
{
    return form ? form->findChild<QWidget*>({}, Qt::FindDirectChildrenOnly) : nullptr;
}

/// Another value than @p value that forms can hold.
QVariant otherValue(const QMetaProperty& property, const QVariant& value)
{
    const QMetaEnum codes = property.enumerator();
    if (codes.isValid())
        return codes.value(value.toInt() == codes.value(0) ? 1 : 0);
    static const QHash<int, QVariant> others{{QMetaType::QString, u"Asia/Tokyo"_s},
                                             {QMetaType::QColor, QColor(1, 2, 3)},
                                             {QMetaType::QSize, QSize(24, 25)},
                                             {QMetaType::QDate, QDate(2020, 2, 2)},
                                             {QMetaType::QUrl, QUrl(u"http://127.0.0.1:9/"_s)}};
    QVariant other = others.value(property.typeId(), value.toInt() == 0 ? 1 : value.toInt() - 1);
    return other.convert(value.metaType()) ? other : QVariant();
}

} // namespace

class TestDesigner : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::addLibraryPath(plugins.section(u'/', 0, -2));
        m_designer = QDesignerComponents::createFormEditor(this);
        m_designer->setTopLevel(&m_window);
        m_designer->setPropertyEditor(
            QDesignerComponents::createPropertyEditor(m_designer, &m_window));
        QDesignerComponents::initializePlugins(m_designer);
        new QDesignerIntegration(m_designer, this);
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

    /// Every property that Designer offers is changed, saved, and read in both ways.
    void everyWidgetStandsInForms()
    {
        const QRegularExpression codes(u"<enum>CorvelGui::.*?(::\\w+</enum>)"_s);
        QFile file(QStringLiteral(ENUMERATIONS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString compiled = QString::fromUtf8(file.readAll());
        QUiLoader loader;
        loader.addPluginPath(plugins);
        const auto widgets = widgetsOfPlugin();
        QVERIFY(widgets.size() > 40);
        QSet<QString> toolTips;
        for (QDesignerCustomWidgetInterface* widget : widgets) {
            const std::string name = widget->name().toStdString();
            const QString header = QStringLiteral(HEADERS) + u'/' + widget->includeFile();
            QVERIFY2(QFile::exists(QString(header).remove(QRegularExpression(u"[<>]"_s))),
                     name.c_str());
            QVERIFY2(!widget->group().isEmpty() && !widget->icon().pixmap(22).isNull(),
                     name.c_str());
            toolTips.insert(widget->toolTip());

            const auto edited = opened(formWith(widget));
            QWidget* child = childOf(edited->mainContainer());
            QVERIFY2(child, name.c_str());
            const QSize least = child->minimumSizeHint().boundedTo(child->maximumSize());
            QVERIFY2(child->size().expandedTo(least) == child->size(), name.c_str());
            const QList<QMetaProperty> changed = changeAll(child);
            const QString saved = edited->contents();
            for (auto code = codes.globalMatch(saved); code.hasNext();)
                QVERIFY2(compiled.contains(code.next().captured(1)), name.c_str());

            const auto again = opened(saved);
            const auto form = loaded(loader, saved);
            for (const QWidget* other : {childOf(again->mainContainer()), childOf(form.get())}) {
                QVERIFY2(other, name.c_str());
                for (const QMetaProperty& property : changed)
                    QVERIFY2(property.read(other) == property.read(child),
                             (name + ' ' + property.name()).c_str());
            }
        }
        QCOMPARE(toolTips.size(), widgets.size());
    }

    void enumerationsOfFormsCompile()
    {
        QWidget window;
        Ui::Enumerations form;
        form.setupUi(&window);
        QCOMPARE(form.ruler->rangeSelection(), CorvelGui::Ruler::RangeSelection::ShiftDrag);
        QCOMPARE(form.image->fit(), CorvelGui::PImageWidget::Fit::Shrink);
    }

private:
    std::unique_ptr<QDesignerFormWindowInterface> opened(const QString& form)
    {
        auto* window = m_designer->formWindowManager()->createFormWindow();
        window->setContents(form);
        return std::unique_ptr<QDesignerFormWindowInterface>(window);
    }

    /// Returns what was changed of the libraries' properties, as the editor of properties does it.
    QList<QMetaProperty> changeAll(QWidget* widget)
    {
        auto* sheet =
            qt_extension<QDesignerPropertySheetExtension*>(m_designer->extensionManager(), widget);
        const QMetaObject* meta = widget->metaObject();
        QList<QMetaProperty> changed;
        for (int i = 0; i < sheet->count(); ++i) {
            const QMetaProperty property = meta->property(
                meta->indexOfProperty(sheet->propertyName(i).toLatin1().constData()));
            if (!sheet->isVisible(i) || !property.isWritable() ||
                *property.enclosingMetaObject()->className() == 'Q')
                continue;
            if (const QVariant other = otherValue(property, property.read(widget));
                other.isValid()) {
                sheet->setProperty(i, other);
                sheet->setChanged(i, true);
                changed.append(property);
            }
        }
        return changed;
    }

    QWidget m_window;
    QDesignerFormEditorInterface* m_designer = nullptr;
};

QTEST_MAIN(TestDesigner)
#include "tst_designer.moc"
