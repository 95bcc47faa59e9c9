// SPDX-License-Identifier: MIT
#include "codewriter.h"

#include "knownwidgets.h"
#include "propertymodel.h"

#include <QColor>
#include <QDateTime>
#include <QIcon>
#include <QImage>
#include <QRegularExpression>
#include <QSize>
#include <QTimeZone>
#include <QUrl>
#include <QWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QString quoted(QString text)
{
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s);
    return u"QStringLiteral(u\"%1\")"_s.arg(text);
}

QString codeOfEnum(const QMetaEnum& codes, int value)
{
    const QString scope =
        QString::fromLatin1(codes.scope()) + u"::"_s +
        (codes.isScoped() ? QString::fromLatin1(codes.enumName()) + u"::"_s : QString());
    if (!codes.isFlag()) {
        const char* key = codes.valueToKey(value);
        return key ? scope + QLatin1StringView(key) : QString();
    }
    QStringList keys = QString::fromLatin1(codes.valueToKeys(value)).split(u'|');
    for (QString& key : keys)
        key.prepend(scope);
    return keys.join(u" | "_s);
}

QImage pictureIn(const QVariant& value)
{
    constexpr QSize size(32, 32);
    return value.typeId() == QMetaType::QIcon ? value.value<QIcon>().pixmap(size, 1.0).toImage()
                                              : value.value<QPixmap>().toImage();
}

/// QVariant takes all icons and pixmaps for different.
bool isSame(const QVariant& a, const QVariant& b)
{
    if (a.typeId() == QMetaType::QIcon || a.typeId() == QMetaType::QPixmap)
        return pictureIn(a) == pictureIn(b);
    return a == b;
}

QString codeOfTime(const QDateTime& time)
{
    if (!time.isValid())
        return u"QDateTime()"_s;
    const QString zone =
        time.timeSpec() == Qt::LocalTime
            ? QString()
            : u", QTimeZone(\"%1\")"_s.arg(QLatin1StringView(time.timeZone().id()));
    return u"QDateTime::fromMSecsSinceEpoch(%1%2)"_s.arg(time.toMSecsSinceEpoch()).arg(zone);
}

/// "RangeSlider" is called "slider".
QString variableOf(const QString& className)
{
    static const QRegularExpression lastWord(u"[A-Z][a-z]+\\d*$"_s);
    const QString word = lastWord.match(className).captured();
    return word.isEmpty() ? u"widget"_s : word.toLower();
}

} // namespace

QString setterOf(const QMetaProperty& property)
{
    static const QHash<QString, QString> others{
        {u"CorvelGui::TarvoDateTimeView::dateTime"_s, u"updateDateTime"_s},
        {u"CorvelGui::Ruler::indicatorMSecs"_s, u"setIndicatorPosition"_s},
        {u"CorvelGui::ZoomTimeline::indicatorMSecs"_s, u"setIndicatorPosition"_s},
        {u"CorvelGui::Ruler::active"_s, u"makeActive"_s},
        {u"CorvelGui::ZoomTimeline::active"_s, u"makeActive"_s},
        {u"CorvelGui::Ruler::searchTimeRangeDisplayed"_s, u"displaySearchTimeRange"_s},
        {u"CorvelGui::ZoomTimeline::searchTimeRangeDisplayed"_s, u"displaySearchTimeRange"_s},
        {u"CorvelGui::TimelineScroll::searchTimeRangeDisplayed"_s, u"displaySearchTimeRange"_s},
        {u"CorvelGui::TimelineScroll::centerPosition"_s, u"onCenterPositionChanged"_s},
        {u"CorvelGui::Zoomer::level"_s, u"onChangeSliderPosition"_s},
    };
    const QString name = QString::fromLatin1(property.name());
    if (property.hasStdCppSet())
        return u"set"_s + name.front().toUpper() + name.mid(1);
    const QString className = QString::fromLatin1(property.enclosingMetaObject()->className());
    return others.value(className + u"::"_s + name);
}

QString literalOf(const QMetaProperty& property, const QVariant& value)
{
    if (property.isEnumType())
        return codeOfEnum(property.enumerator(), value.toInt());
    switch (property.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return value.toString();
    case QMetaType::QString:
        return quoted(value.toString());
    case QMetaType::QStringList: {
        QStringList texts = value.toStringList();
        for (QString& text : texts)
            text = quoted(text);
        return u"QStringList{%1}"_s.arg(texts.join(u", "_s));
    }
    case QMetaType::QColor: {
        const auto color = value.value<QColor>();
        return u"QColor(%1, %2, %3, %4)"_s.arg(color.red())
            .arg(color.green())
            .arg(color.blue())
            .arg(color.alpha());
    }
    case QMetaType::QSize:
        return u"QSize(%1, %2)"_s.arg(value.toSize().width()).arg(value.toSize().height());
    case QMetaType::QUrl:
        return u"QUrl(%1)"_s.arg(quoted(value.toString()));
    case QMetaType::QDate: {
        const QDate date = value.toDate();
        return date.isValid() ? date.toString(u"'QDate('yyyy, M, d')'"_s) : u"QDate()"_s;
    }
    case QMetaType::QDateTime:
        return codeOfTime(value.toDateTime());
    default:
        return {};
    }
}

QString statementOf(const QString& variable, const QMetaProperty& property, const QVariant& value)
{
    const QString name = QString::fromLatin1(property.name());
    const QString literal = literalOf(property, value);
    if (literal.isEmpty())
        return u"// %1: a %2"_s.arg(name, QLatin1StringView(property.typeName()));
    const QString setter = setterOf(property);
    return setter.isEmpty() ? u"%1->setProperty(\"%2\", %3);"_s.arg(variable, name, literal)
                            : u"%1->%2(%3);"_s.arg(variable, setter, literal);
}

CodeWriter::CodeWriter(const QWidget& widget)
    : m_widget(widget), m_known(*knownWidget(widget)), m_new(m_known.create(nullptr))
{}

CodeWriter::~CodeWriter() = default;

QString CodeWriter::code() const
{
    static const QRegularExpression qtType(
        u"\\bQ(Color|Size|Url|DateTime|Date|StringList|TimeZone)\\b(?=[({:])"_s);
    const QString variable = variableOf(m_known.name());
    QStringList includes{u"#include <CorvelGui/%1>"_s.arg(m_known.name())};
    QStringList lines;
    for (const QMetaProperty& property : inspectedProperties(*m_known.meta)) {
        const QVariant value = property.read(&m_widget);
        if (isSame(value, property.read(m_new.get())))
            continue;
        lines.append(statementOf(variable, property, value));
        for (auto type = qtType.globalMatch(lines.last()); type.hasNext();)
            includes.append(u"#include <%1>"_s.arg(type.next().captured()));
    }
    includes.removeDuplicates();
    const QString arguments =
        m_known.arguments.isEmpty() ? QString() : u'(' + m_known.arguments + u')';
    return includes.join(u'\n') + u"\n\n"_s +
           u"auto* %1 = new %2%3;\n"_s.arg(variable, QLatin1StringView(m_known.meta->className()),
                                           arguments) +
           lines.join(u'\n');
}

} // namespace Gallery
