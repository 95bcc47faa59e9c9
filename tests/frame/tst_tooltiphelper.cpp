// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/ToolTipHelper>

#include <QLocale>

using Tip = CorvelGui::ToolTipHelper;

namespace {

const QString label = u"A<&"_s;
const QDateTime moment(QDate(2026, 3, 29), QTime(2, 30), Qt::UTC);
const QString megabyte = u"<b>&amp;<img src=\"/etc/passwd\">"_s.repeated(1 << 15);

QString row(const QString& name, const QString& value)
{
    return u"<tr><td style=\"white-space:pre;padding-right:15px;\">%1</td>"
           "<td style=\"white-space:pre\">%2</td></tr>\n"_s.arg(name, value);
}

/// The text after the label in bold.
QString bold(const QString& value)
{
    return row(u"<b>A&lt;&amp;:</b>"_s, value);
}

QString span(const QString& text)
{
    return u"<tr><td style=\"white-space:pre\" colspan = \"2\" >%1</td></tr>\n"_s.arg(text);
}

QString line(const QString& attributes)
{
    return u"<tr><th colspan=\"2\"><hr noshade%1</hr></th></tr>"_s.arg(attributes);
}

} // namespace

class TestToolTipHelper : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void appends()
    {
        const QString shortTime = QLocale::system().toString(moment, QLocale::ShortFormat);
        const QString red = u"<font color = \"#ff0000\">A&lt;&amp;</font>"_s;
        const std::pair<void (*)(Tip&), QString> rows[] = {
            {[](Tip& tip) { tip.AddRow(label, u"%1>"_s); }, bold(u"%1&gt;"_s)},
            {[](Tip& tip) { tip.AddRow(label, megabyte); }, bold(megabyte.toHtmlEscaped())},
            {[](Tip& tip) { tip.AddRow(label, u""_s); }, bold(u"-"_s)},
            {[](Tip& tip) { tip.AddRow(label, u"<"_s, QColor(1, 2, 255), true); },
             bold(u"<font color = \"#0102ff\">&lt;</font>"_s)},
            {[](Tip& tip) { tip.AddRow(label, {}, QColor(Qt::red), false); },
             row(u"<b>"_s + red + u":</b>"_s, u"-"_s)},
            {[](Tip& tip) { tip.AddRow(label, moment); }, bold(shortTime)},
            {[](Tip& tip) { tip.AddRow(label, QDateTime()); }, bold(u"-"_s)},
            {[](Tip& tip) { tip.AddRow(label, true); }, bold(u"Yes"_s)},
            {[](Tip& tip) { tip.AddRow(label, false); }, bold(u"No"_s)},
            {[](Tip& tip) { tip.AddRow(label, -7); }, bold(u"-7"_s)},
            {[](Tip& tip) { tip.AddRow(label, 25, u"<fps"_s); }, bold(u"25&lt;fps"_s)},
            {[](Tip& tip) { tip.AddRowNoBold(u"<i>A"_s, u"<u>"_s, true); },
             row(u"&lt;i&gt;A:"_s, u"&lt;u&gt;"_s)},
            {[](Tip& tip) { tip.AddRowNoBold(u"<i>A"_s, u"<u>"_s, false); },
             row(u"<i>A:"_s, u"<u>"_s)},
            {[](Tip& tip) { tip.AddRowNoBold(u"<i>A"_s, {}, false); }, row(u"<i>A:"_s, u"-"_s)},
            {[](Tip& tip) { tip.AddRowSpan2(u"a<"_s, Qt::green, true); },
             span(u"<b><font color=\"#00ff00\">a&lt;</b>"_s)},
            {[](Tip& tip) { tip.AddRowSpan2(u"a<"_s, Qt::green, false); },
             span(u"<font color=\"#00ff00\">a&lt;"_s)},
            {[](Tip& tip) { tip.AddRowSpan2(u"a<"_s); }, span(u"a&lt;"_s)},
            {[](Tip& tip) { tip.AddRowVariant(label, QVariant(QMetaType(QMetaType::Double))); },
             bold(u"-"_s)},
            {[](Tip& tip) { tip.AddRowVariant(label, 0.1234567); }, bold(u"0.123457"_s)},
            {[](Tip& tip) { tip.AddRowVariant(label, moment); }, bold(shortTime)},
            {[](Tip& tip) { tip.AddRowVariant(label, 42); }, bold(u"42"_s)},
            {[](Tip& tip) { tip.AddRowFirmware(u"V"_s, int(0xff020304)); },
             row(u"<b>Firmware:</b>"_s, u"255.2.3.4"_s)},
            {[](Tip& tip) { tip.AddLine(); },
             line(u" style=\"color:blue; border:5px solid red\">"_s)},
            {[](Tip& tip) { tip.AddSimpleLine(); }, line(u"\">"_s)},
            {[](Tip& tip) { tip.AddLineWithText(u"<i>%1"_s); },
             line(u" size=\"3\" align=\"center\"><i>%1"_s) + u'\n'}};
        Tip tip;
        QString expected = u"<table border=\"0\" style=\"white-space:pre;padding-right:15px;\">"_s;
        const QString opening = expected;
        for (const auto& [add, text] : rows) {
            add(tip);
            expected += text;
            QCOMPARE(Tip(tip).GetToolTip(), expected + u"</table>"_s);
        }
        tip.AddTopImageJpg("/9j/");
        QCOMPARE(Tip(tip).GetToolTip(),
                 u"<img src=\"data:image/jpeg;charset=utf-8;base64,/9j/\">"_s + opening +
                     u"</table>"_s);
        tip.AddTopImagePng("iVBO");
        const QString png = u"<img src=\"data:image/png;base64,iVBO\">"_s + opening;
        QCOMPARE(tip.GetToolTip(), png + u"</table>"_s);
        QCOMPARE(tip.GetToolTip(), png + u"</table></table>"_s);
        QCOMPARE(Tip::GetAsteriks(u"äbc"_s), u"●●●"_s);
    }
};

QTEST_MAIN(TestToolTipHelper)
#include "tst_tooltiphelper.moc"
