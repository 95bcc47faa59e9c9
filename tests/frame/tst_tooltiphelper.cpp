#include "testsupport.h"

#include <CorvelGui/ToolTipHelper>

#include <QDateTime>
#include <QLocale>
#include <QTest>
#include <QTextDocument>
#include <QVariant>

#include <functional>

using CorvelGui::ToolTipHelper;
using namespace Qt::StringLiterals;

namespace {

using Build = std::function<void(ToolTipHelper&)>;

const QString opening = u"<table border=\"0\" style=\"white-space:pre;padding-right:15px;\">"_s;

QString bold(const QString& label, const QString& value)
{
    return u"<tr><td style=\"white-space:pre;padding-right:15px;\"><b>"_s + label +
           u":</b></td><td style=\"white-space:pre\">"_s + value + u"</td></tr>\n"_s;
}

QString plain(const QString& label, const QString& value)
{
    return bold(label, value).replace(u"<b>"_s, QString()).replace(u"</b>"_s, QString());
}

QString span(const QString& text)
{
    return u"<tr><td style=\"white-space:pre\" colspan = \"2\" >"_s + text + u"</td></tr>\n"_s;
}

} // namespace

class TestToolTipHelper : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void appends_data();
    void appends();
    void pictureDropsWhatWasBefore();
    void endsWithEveryCall();
    void markupStaysText_data();
    void markupStaysText();
};

void TestToolTipHelper::appends_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const Build& build, const QString& text) {
        QTest::newRow(name) << build << text;
    };
    const QDateTime time(QDate(2026, 3, 29), QTime(2, 30), Qt::UTC);
    const QString shortTime = QLocale::system().toString(time, QLocale::ShortFormat);
    const QString label = u"A<&"_s;
    const QString shown = u"A&lt;&amp;"_s;
    const auto with = [&](auto... values) {
        return [=](ToolTipHelper& tip) {
            tip.AddRow(label, values...);
        };
    };
    row("text", with(u"%1>"_s), bold(shown, u"%1&gt;"_s));
    const QString megabyte = u"<b>&"_s.repeated(1 << 18);
    row("megabyte", with(megabyte), bold(shown, megabyte.toHtmlEscaped()));
    row("empty", with(u""_s), bold(shown, u"-"_s));
    row("colour of the value", with(u"<v"_s, QColor(1, 2, 255), true),
        bold(shown, u"<font color = \"#0102ff\">&lt;v</font>"_s));
    row("colour of the label", with(QString(), QColor(Qt::red), false),
        bold(u"<font color = \"#ff0000\">A&lt;&amp;</font>"_s, u"-"_s));
    row("time", with(time), bold(shown, shortTime));
    row("no time", with(QDateTime()), bold(shown, u"-"_s));
    row("yes", with(true), bold(shown, u"Yes"_s));
    row("no", with(false), bold(shown, u"No"_s));
    row("number", with(-7), bold(shown, u"-7"_s));
    row("suffix", with(25, u"<fps"_s), bold(shown, u"25&lt;fps"_s));

    const auto plainRow = [](bool escape, const QString& value) {
        return [=](ToolTipHelper& tip) {
            tip.AddRowNoBold(u"<i>A</i>"_s, value, escape);
        };
    };
    row("not bold", plainRow(true, u"<u>"_s), plain(u"&lt;i&gt;A&lt;/i&gt;"_s, u"&lt;u&gt;"_s));
    row("markup", plainRow(false, u"<u>1</u>"_s), plain(u"<i>A</i>"_s, u"<u>1</u>"_s));
    row("markup, empty", plainRow(false, QString()), plain(u"<i>A</i>"_s, u"-"_s));

    for (const bool isBold : {true, false}) {
        row(
            isBold ? "bold span" : "coloured span",
            [=](ToolTipHelper& tip) { tip.AddRowSpan2(u"a<b"_s, Qt::green, isBold); },
            span(isBold ? u"<b><font color=\"#00ff00\">a&lt;b</b>"_s
                        : u"<font color=\"#00ff00\">a&lt;b"_s));
    }
    row(
        "span", [](ToolTipHelper& tip) { tip.AddRowSpan2(u"a<b"_s); }, span(u"a&lt;b"_s));

    const std::pair<QVariant, QString> variants[] = {
        {QVariant(), u"-"_s},
        {QVariant(QMetaType(QMetaType::Double)), u"-"_s},
        {0.1234567, u"0.123457"_s},
        {1e7, u"1e+07"_s},
        {time, shortTime},
        {QDateTime(), u"-"_s},
        {42, u"42"_s},
        {u"<"_s, u"&lt;"_s}};
    for (const auto& [value, text] : variants) {
        row(
            qPrintable(u"variant "_s + text),
            [value = value](ToolTipHelper& tip) { tip.AddRowVariant(u"V"_s, value); },
            bold(u"V"_s, text));
    }
    row(
        "firmware", [](ToolTipHelper& tip) { tip.AddRowFirmware(u"V"_s, int(0xff020304)); },
        bold(u"Firmware"_s, u"255.2.3.4"_s));

    row("line", &ToolTipHelper::AddLine,
        u"<tr><th colspan=\"2\"><hr noshade style=\"color:blue; border:5px solid red\"></hr></th></tr>"_s);
    row("simple line", &ToolTipHelper::AddSimpleLine,
        u"<tr><th colspan=\"2\"><hr noshade\"></hr></th></tr>"_s);
    row(
        "line with text", [](ToolTipHelper& tip) { tip.AddLineWithText(u"<i>%1"_s); },
        u"<tr><th colspan=\"2\"><hr noshade size=\"3\" align=\"center\"><i>%1</hr></th></tr>\n"_s);
}

void TestToolTipHelper::appends()
{
    QFETCH(const Build, build);
    QFETCH(const QString, text);
    ToolTipHelper tip;
    build(tip);
    QCOMPARE(tip.GetToolTip(), opening + text + u"</table>"_s);
}

void TestToolTipHelper::pictureDropsWhatWasBefore()
{
    ToolTipHelper tip;
    tip.AddRow(u"Lost"_s, 1);
    tip.AddTopImageJpg("/9j/");
    QCOMPARE(ToolTipHelper(tip).GetToolTip(),
             u"<img src=\"data:image/jpeg;charset=utf-8;base64,/9j/\">"_s + opening +
                 u"</table>"_s);
    tip.AddTopImagePng("iVBO");
    QCOMPARE(tip.GetToolTip(),
             u"<img src=\"data:image/png;base64,iVBO\">"_s + opening + u"</table>"_s);
}

void TestToolTipHelper::endsWithEveryCall()
{
    ToolTipHelper tip;
    const QString once = tip.GetToolTip();
    QCOMPARE(tip.GetToolTip(), once + u"</table>"_s);
    QCOMPARE(ToolTipHelper::GetAsteriks(u"äbc"_s), u"●●●"_s);
}

void TestToolTipHelper::markupStaysText_data()
{
    QTest::addColumn<QString>("markup");
    for (const QString& text :
         {u"<b>bold</b>"_s, u"&amp;"_s, u"<img src=\"/etc/passwd\">"_s, u"</td></table><h1>x"_s})
        QTest::newRow(qPrintable(text.left(20))) << text;
}

void TestToolTipHelper::markupStaysText()
{
    QFETCH(const QString, markup);
    ToolTipHelper tip;
    tip.AddRow(markup, markup);
    tip.AddRow(markup, markup, Qt::red, true);
    tip.AddRow(markup, 1, markup);
    tip.AddRowNoBold(markup, markup, true);
    tip.AddRowSpan2(markup);
    tip.AddRowSpan2(markup, Qt::red, true);
    tip.AddRowVariant(markup, markup);
    QTextDocument document;
    document.setHtml(tip.GetToolTip());
    QCOMPARE(document.toPlainText().count(markup), 12);
}

QTEST_MAIN(TestToolTipHelper)
#include "tst_tooltiphelper.moc"
