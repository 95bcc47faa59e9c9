#include "testsupport.h"

#include <CorvelGui/ToolTipHelper>

#include <QDateTime>
#include <QLocale>
#include <QTest>
#include <QVariant>

#include <functional>

using CorvelGui::ToolTipHelper;
using namespace Qt::StringLiterals;

namespace {

using Build = std::function<void(ToolTipHelper&)>;

const QString opening = u"<table border=\"0\" style=\"white-space:pre;padding-right:15px;\">"_s;

QString row(const QString& label, const QString& value)
{
    return u"<tr><td style=\"white-space:pre;padding-right:15px;\">%1</td>"
           "<td style=\"white-space:pre\">%2</td></tr>\n"_s.arg(label, value);
}

/// The text after "A<&:" as a bold label.
QString bold(const QString& value)
{
    return row(u"<b>A&lt;&amp;:</b>"_s, value);
}

QString span(const QString& text)
{
    return u"<tr><td style=\"white-space:pre\" colspan = \"2\" >%1</td></tr>\n"_s.arg(text);
}

} // namespace

class TestToolTipHelper : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void appends_data();
    void appends();
};

void TestToolTipHelper::appends_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<QString>("text");
    const auto with = [](auto... values) {
        return Build([=](ToolTipHelper& tip) { tip.AddRow(u"A<&"_s, values...); });
    };
    const auto variant = [](const QVariant& value) {
        return Build([=](ToolTipHelper& tip) { tip.AddRowVariant(u"A<&"_s, value); });
    };
    const auto plain = [](const QString& value, bool escape) {
        return Build([=](ToolTipHelper& tip) { tip.AddRowNoBold(u"<i>A"_s, value, escape); });
    };
    const auto across = [](auto... style) {
        return Build([=](ToolTipHelper& tip) { tip.AddRowSpan2(u"a<"_s, style...); });
    };
    const auto text = [](void (ToolTipHelper::*add)(const QString&), const QString& value) {
        return Build([=](ToolTipHelper& tip) { (tip.*add)(value); });
    };
    const QDateTime time(QDate(2026, 3, 29), QTime(2, 30), Qt::UTC);
    const QString shortTime = QLocale::system().toString(time, QLocale::ShortFormat);
    const QString megabyte = u"<b>&amp;<img src=\"/etc/passwd\">"_s.repeated(1 << 15);
    const QString line = u"<tr><th colspan=\"2\"><hr noshade%1</hr></th></tr>"_s;
    const std::pair<Build, QString> rows[] = {
        {with(u"%1>"_s), bold(u"%1&gt;"_s)},
        {with(megabyte), bold(megabyte.toHtmlEscaped())},
        {with(u""_s), bold(u"-"_s)},
        {with(u"<"_s, QColor(1, 2, 255), true), bold(u"<font color = \"#0102ff\">&lt;</font>"_s)},
        {with(QString(), QColor(Qt::red), false),
         bold(u"-"_s).replace(u"A&lt;&amp;"_s, u"<font color = \"#ff0000\">A&lt;&amp;</font>"_s)},
        {with(time), bold(shortTime)},
        {with(QDateTime()), bold(u"-"_s)},
        {with(true), bold(u"Yes"_s)},
        {with(false), bold(u"No"_s)},
        {with(-7), bold(u"-7"_s)},
        {with(25, u"<fps"_s), bold(u"25&lt;fps"_s)},
        {plain(u"<u>"_s, true), row(u"&lt;i&gt;A:"_s, u"&lt;u&gt;"_s)},
        {plain(u"<u>"_s, false), row(u"<i>A:"_s, u"<u>"_s)},
        {plain(QString(), false), row(u"<i>A:"_s, u"-"_s)},
        {across(QColor(Qt::green), true), span(u"<b><font color=\"#00ff00\">a&lt;</b>"_s)},
        {across(QColor(Qt::green), false), span(u"<font color=\"#00ff00\">a&lt;"_s)},
        {across(), span(u"a&lt;"_s)},
        {variant(QVariant(QMetaType(QMetaType::Double))), bold(u"-"_s)},
        {variant(0.1234567), bold(u"0.123457"_s)},
        {variant(time), bold(shortTime)},
        {variant(QDateTime()), bold(u"-"_s)},
        {variant(42), bold(u"42"_s)},
        {[](ToolTipHelper& tip) { tip.AddRowFirmware(u"V"_s, int(0xff020304)); },
         row(u"<b>Firmware:</b>"_s, u"255.2.3.4"_s)},
        {&ToolTipHelper::AddLine, line.arg(u" style=\"color:blue; border:5px solid red\">"_s)},
        {&ToolTipHelper::AddSimpleLine, line.arg(u"\">"_s)},
        {text(&ToolTipHelper::AddLineWithText, u"<i>%1"_s),
         line.arg(u" size=\"3\" align=\"center\"><i>%1"_s) + u'\n'}};
    int number = 0;
    for (const auto& [build, expected] : rows)
        QTest::addRow("%d", number++) << build << expected;
}

void TestToolTipHelper::appends()
{
    QFETCH(const Build, build);
    QFETCH(const QString, text);
    ToolTipHelper tip;
    build(tip);
    QCOMPARE(tip.GetToolTip(), opening + text + u"</table>"_s);
    QCOMPARE(tip.GetToolTip(), opening + text + u"</table></table>"_s);
    tip.AddTopImageJpg("/9j/");
    QCOMPARE(tip.GetToolTip(), u"<img src=\"data:image/jpeg;charset=utf-8;base64,/9j/\">"_s +
                                   opening + u"</table>"_s);
    tip.AddTopImagePng("iVBO");
    QCOMPARE(tip.GetToolTip(),
             u"<img src=\"data:image/png;base64,iVBO\">"_s + opening + u"</table>"_s);
    QCOMPARE(ToolTipHelper::GetAsteriks(u"äbc"_s), u"●●●"_s);
}

QTEST_MAIN(TestToolTipHelper)
#include "tst_tooltiphelper.moc"
