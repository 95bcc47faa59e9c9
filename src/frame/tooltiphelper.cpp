// SPDX-License-Identifier: MIT
#include "tooltiphelper.h"

#include <QByteArray>
#include <QDateTime>
#include <QHostAddress>
#include <QLocale>
#include <QObject>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

const QString tableOpening =
    u"<table border=\"0\" style=\"white-space:pre;padding-right:15px;\">"_s;
const QString boldLabelOpening = u"<tr><td style=\"white-space:pre;padding-right:15px;\"><b>"_s;
const QString boldLabelToValue = u":</b></td><td style=\"white-space:pre\">"_s;
const QString plainLabelOpening = u"<tr><td style=\"white-space:pre;padding-right:15px;\">"_s;
const QString plainLabelToValue = u":</td><td style=\"white-space:pre\">"_s;
const QString rowEnd = u"</td></tr>\n"_s;
const QString spanOpening = u"<tr><td style=\"white-space:pre\" colspan = \"2\" >"_s;

QString escapedOrMissing(const QString& value)
{
    return value.isEmpty() ? u"-"_s : value.toHtmlEscaped();
}

QString shortFormat(const QDateTime& time)
{
    return time.isValid() ? QLocale::system().toString(time, QLocale::ShortFormat) : QString();
}

} // namespace

struct ToolTipHelper::Private : QSharedData
{
    QString text = tableOpening;
};

ToolTipHelper::ToolTipHelper() : d(new Private) {}
ToolTipHelper::ToolTipHelper(const ToolTipHelper& other) = default;
ToolTipHelper& ToolTipHelper::operator=(const ToolTipHelper& other) = default;
ToolTipHelper::~ToolTipHelper() = default;

void ToolTipHelper::AddTopImagePng(const QByteArray& base64)
{
    d->text = u"<img src=\"data:image/png;base64,"_s + QString::fromUtf8(base64) + u"\">"_s +
              tableOpening;
}

void ToolTipHelper::AddTopImageJpg(const QByteArray& base64)
{
    d->text = u"<img src=\"data:image/jpeg;charset=utf-8;base64,"_s + QString::fromUtf8(base64) +
              u"\">"_s + tableOpening;
}

void ToolTipHelper::AddRow(const QString& label, const QString& value)
{
    addBoldRow(label.toHtmlEscaped(), escapedOrMissing(value));
}

void ToolTipHelper::AddRow(const QString& label, const QString& value, const QColor& color,
                           bool colorValue)
{
    const QString opening = u"<font color = \""_s + color.name() + u"\">"_s;
    const QString closing = u"</font>"_s;
    if (colorValue)
        addBoldRow(label.toHtmlEscaped(), opening + escapedOrMissing(value) + closing);
    else
        addBoldRow(opening + label.toHtmlEscaped() + closing, escapedOrMissing(value));
}

void ToolTipHelper::AddRow(const QString& label, const QDateTime& value)
{
    AddRow(label, shortFormat(value));
}

void ToolTipHelper::AddRow(const QString& label, const bool& value)
{
    AddRow(label, value ? QObject::tr("Yes", "MSG_YES") : QObject::tr("No", "MSG_NO"));
}

void ToolTipHelper::AddRow(const QString& label, const int& value)
{
    AddRow(label, QString::number(value));
}

void ToolTipHelper::AddRow(const QString& label, const int& value, const QString& suffix)
{
    AddRow(label, QString::number(value) + suffix);
}

void ToolTipHelper::AddRowNoBold(const QString& label, const QString& value, bool escape)
{
    const QString valueMarkup = escape || value.isEmpty() ? escapedOrMissing(value) : value;
    d->text += plainLabelOpening + (escape ? label.toHtmlEscaped() : label) + plainLabelToValue +
               valueMarkup + rowEnd;
}

void ToolTipHelper::AddRowSpan2(const QString& text, const QColor& color, bool bold)
{
    // The font tag stays open: it ends with its cell, and clients compare these texts.
    d->text += spanOpening + (bold ? u"<b>"_s : QString()) + u"<font color=\""_s + color.name() +
               u"\">"_s + text.toHtmlEscaped() + (bold ? u"</b>"_s : QString()) + rowEnd;
}

void ToolTipHelper::AddRowSpan2(const QString& text)
{
    d->text += spanOpening + text.toHtmlEscaped() + rowEnd;
}

void ToolTipHelper::AddRowVariant(const QString& label, const QVariant& value)
{
    if (value.isNull())
        AddRow(label, QString());
    else if (value.typeId() == QMetaType::Double)
        AddRow(label, QString::number(value.toDouble(), 'g', 6));
    else if (value.typeId() == QMetaType::QDateTime)
        AddRow(label, value.toDateTime());
    else
        AddRow(label, value.toString());
}

void ToolTipHelper::AddRowFirmware(const QString& /*label*/, const int& version)
{
    AddRow(QObject::tr("Firmware", "txtFirmware"), QHostAddress(quint32(version)).toString());
}

void ToolTipHelper::AddLine()
{
    d->text += u"<tr><th colspan=\"2\">"
               "<hr noshade style=\"color:blue; border:5px solid red\"></hr></th></tr>"_s;
}

void ToolTipHelper::AddSimpleLine()
{
    // With the stray quote that clients compare.
    d->text += u"<tr><th colspan=\"2\"><hr noshade\"></hr></th></tr>"_s;
}

void ToolTipHelper::AddLineWithText(const QString& text)
{
    d->text += u"<tr><th colspan=\"2\"><hr noshade size=\"3\" align=\"center\">"_s + text +
               u"</hr></th></tr>\n"_s;
}

QString ToolTipHelper::GetAsteriks(const QString& text)
{
    return QString(text.size(), u'\x25CF');
}

QString ToolTipHelper::GetToolTip()
{
    d->text += u"</table>"_s;
    return d->text;
}

void ToolTipHelper::addBoldRow(const QString& labelMarkup, const QString& valueMarkup)
{
    d->text += boldLabelOpening + labelMarkup + boldLabelToValue + valueMarkup + rowEnd;
}

} // namespace CorvelGui
