// SPDX-License-Identifier: MIT
#include "visibletexts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QRegularExpression>
#include <QTabBar>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* properties[] = {"text",           "title",          "windowTitle",
                                      "toolTip",        "accessibleName", "accessibleDescription",
                                      "iconText",       "statusTip",      "whatsThis",
                                      "placeholderText"};

void addCells(QStringList& texts, const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    for (int column = 0; column < model.columnCount(parent); ++column) {
        texts += model.headerData(column, Qt::Horizontal).toString();
        texts += model.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
    }
    for (int row = 0; row < std::min(50, model.rowCount(parent)); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            texts += index.data().toString();
            texts += index.data(Qt::ToolTipRole).toString();
        }
        addCells(texts, model, model.index(row, 0, parent));
    }
}

void addTexts(QStringList& texts, const QObject& object)
{
    for (const char* property : properties)
        texts += object.property(property).toString();
    if (const auto* combo = qobject_cast<const QComboBox*>(&object)) {
        for (int i = 0; i < combo->count(); ++i)
            texts += combo->itemText(i);
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&object)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts += tabs->tabText(i);
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&object)) {
        if (view->model() && !qobject_cast<const QHeaderView*>(view))
            addCells(texts, *view->model());
    }
}

} // namespace

QStringList visibleTexts(const QWidget& window)
{
    QStringList texts;
    addTexts(texts, window);
    for (const QObject* child : window.findChildren<QObject*>()) {
        if (child->isWidgetType() || qobject_cast<const QAction*>(child))
            addTexts(texts, *child);
    }
    texts.removeAll(QString());
    texts.sort();
    return texts;
}

QStringList visibleTexts()
{
    QStringList texts;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->parent())
            texts += visibleTexts(*window);
    }
    texts.sort();
    return texts;
}

SourceTexts::SourceTexts(const QStringList& files)
{
    for (const QString& path : files) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("Cannot read %s", qPrintable(path));
        QXmlStreamReader xml(&file);
        QString source;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == "source"_L1)
                source = xml.readElementText();
            else if (xml.name() == "translation"_L1 &&
                     xml.readElementText(QXmlStreamReader::IncludeChildElements) != source)
                m_sources += source;
        }
    }
}

QStringList SourceTexts::foundIn(const QStringList& texts) const
{
    static const QRegularExpression marker(u"%L?(?:[0-9]|n)"_s);
    QStringList patterns;
    for (const QString& source : m_sources) {
        QStringList parts;
        for (const QString& part : source.split(marker))
            parts += QRegularExpression::escape(part);
        patterns += parts.join(u".+"_s);
    }
    const QRegularExpression any(QRegularExpression::anchoredPattern(patterns.join(u'|')));
    return texts.filter(any);
}
