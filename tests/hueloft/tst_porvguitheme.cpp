#include "colormetrics.h"
#include "testsupport.h"

#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTest>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace {

constexpr double readable = 4.5;
constexpr double perceptible = 3.0;

void applyLook(bool dark)
{
    POrvGuiTheme::bPantherTheme = dark;
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QPalette palette = QApplication::style()->standardPalette();
    if (dark)
        POrvGuiTheme::SetDarkPalette(palette);
    QApplication::setPalette(palette);
    // The suffix shows that a client's rules can follow the sheet.
    qApp->setStyleSheet((dark ? POrvGuiTheme::darkTheme() : POrvGuiTheme::whiteTheme()) +
                        u"QLabel {min-width:150px;}"_s);
}

double roleContrast(const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole ground)
{
    return contrast(palette.color(text), palette.color(ground));
}

} // namespace

class TestPOrvGuiTheme : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qApp->setStyleSheet(QString()); }
    void textOnTimelineIsReadable();
    void colorsDifferForAllEyes();
    void widgetsAreReadable_data();
    void widgetsAreReadable();
    void sheetRulesAreReadable_data() { widgetsAreReadable_data(); }
    void sheetRulesAreReadable();
};

void TestPOrvGuiTheme::textOnTimelineIsReadable()
{
    for (const QColor& ground :
         {POrvGuiTheme::colorShark, POrvGuiTheme::colorBlack, POrvGuiTheme::colorTuna})
        QCOMPARE_GE(contrast(QColor(200, 200, 200), ground), readable);
    for (const QColor& ground :
         {POrvGuiTheme::colorYellow, POrvGuiTheme::colorGreen, POrvGuiTheme::colorBlue})
        QCOMPARE_GE(contrast(Qt::black, ground), readable);
}

void TestPOrvGuiTheme::colorsDifferForAllEyes()
{
    using Theme = POrvGuiTheme;
    for (const Eyes eyes : {Eyes::Usual, Eyes::Protanopia, Eyes::Deuteranopia}) {
        QCOMPARE_GE(difference(Theme::colorTuna, Theme::colorShark, eyes), 20);
        QCOMPARE_GE(difference(Theme::colorTuna, Theme::colorBlack, eyes), 20);
        QCOMPARE_GE(difference(Theme::colorShark, Theme::colorBlack, eyes), 10);
        QCOMPARE_GE(difference(Theme::colorYellow, Theme::colorPurple, eyes), 40);
        for (const bool dark : {true, false}) {
            Theme::bPantherTheme = dark;
            const QColor states[] = {Theme::statusRed(), Theme::colorGreen, Theme::colorYellow,
                                     Theme::colorBlue};
            for (const QColor& one : states) {
                for (const QColor& other : states)
                    QVERIFY2(one == other || difference(one, other, eyes) >= 25,
                             qPrintable(one.name() + other.name()));
            }
        }
    }
}

void TestPOrvGuiTheme::widgetsAreReadable_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("dark") << true;
    QTest::newRow("light") << false;
}

// Palettes as the widgets have them after the sheet has been applied to them.
void TestPOrvGuiTheme::widgetsAreReadable()
{
    QFETCH(const bool, dark);
    applyLook(dark);

    QLabel label;
    QCheckBox check;
    QPushButton button;
    QLineEdit edit;
    QPlainTextEdit text;
    QSpinBox spin;
    QComboBox combo;
    QListWidget list;
    const QList<QWidget*> selecting{&edit, &text, &spin, &list};
    for (QWidget* widget : selecting + QList<QWidget*>{&label, &check, &button, &combo}) {
        for (const bool enabled : {true, false}) {
            widget->setEnabled(enabled);
            widget->ensurePolished();
            QList<std::pair<QPalette::ColorRole, QPalette::ColorRole>> pairs{
                {QPalette::WindowText, QPalette::Window},
                {QPalette::Text, QPalette::Base},
                {QPalette::Text, QPalette::AlternateBase},
                {QPalette::ButtonText, QPalette::Button}};
            if (enabled && selecting.contains(widget))
                pairs.append({QPalette::HighlightedText, QPalette::Highlight});
            for (const auto& [textRole, groundRole] : pairs)
                QVERIFY2(roleContrast(widget->palette(), textRole, groundRole) >=
                             (enabled ? readable : perceptible),
                         qPrintable(u"%1, role %2, %3"_s
                                        .arg(QLatin1StringView(widget->metaObject()->className()))
                                        .arg(textRole)
                                        .arg(enabled)));
        }
    }
    QCOMPARE(label.minimumSizeHint().width(), 150);

    const QPalette palette = QApplication::palette();
    if (dark) {
        for (const auto& [textRole, groundRole] :
             {std::pair(QPalette::Link, QPalette::Window),
              std::pair(QPalette::LinkVisited, QPalette::Window),
              std::pair(QPalette::PlaceholderText, QPalette::Base),
              std::pair(QPalette::ToolTipText, QPalette::ToolTipBase)})
            QCOMPARE_GE(roleContrast(palette, textRole, groundRole), readable);
    }
    const QColor base = palette.color(QPalette::Base);
    for (const QColor& ground : {palette.color(QPalette::Window), base})
        QCOMPARE_GE(contrast(POrvGuiTheme::statusRed(), ground), readable);
    for (const QColor& color :
         {POrvGuiTheme::colorGreen, POrvGuiTheme::colorBlue, POrvGuiTheme::colorOrange})
        QCOMPARE_GE(contrast(color, base), dark ? readable : perceptible);

    // A wrong entry.
    edit.setStyleSheet(u"QLineEdit{background-color:#ff4d4d;}"_s);
    edit.setEnabled(true);
    QCOMPARE_GE(contrast(edit.palette().color(QPalette::Text), QColor(0xff, 0x4d, 0x4d)), readable);
}

void TestPOrvGuiTheme::sheetRulesAreReadable()
{
    QFETCH(const bool, dark);
    const QString sheet = dark ? POrvGuiTheme::darkTheme() : POrvGuiTheme::whiteTheme();
    QVERIFY(!sheet.contains(u'$'));

    static const QRegularExpression rule(u"([^{}]+)\\{([^}]*)\\}"_s);
    static const QRegularExpression text(u"(?<![-\\w])(?:selection-)?color: *(#\\w{6})"_s);
    static const QRegularExpression ground(u"background-color: *(#\\w{6})"_s);
    int checked = 0;
    for (const QRegularExpressionMatch& match : rule.globalMatch(sheet)) {
        const auto textMatch = text.match(match.captured(2));
        const auto groundMatch = ground.match(match.captured(2));
        if (!textMatch.hasMatch() || !groundMatch.hasMatch())
            continue;
        const double ratio =
            contrast(QColor(textMatch.captured(1)), QColor(groundMatch.captured(1)));
        const bool disabled = match.captured(1).contains(u":disabled"_s);
        QVERIFY2(ratio >= (disabled ? perceptible : readable), qPrintable(match.captured()));
        ++checked;
    }
    QVERIFY(checked >= 8);

    // The text of a progress bar stands on its filled part too.
    static const QRegularExpression barText(u"QProgressBar \\{\\s*color: (#\\w{6})"_s);
    static const QRegularExpression chunk(u"QProgressBar::chunk \\{ background-color: (#\\w{6})"_s);
    QCOMPARE_GE(
        contrast(QColor(barText.match(sheet).captured(1)), QColor(chunk.match(sheet).captured(1))),
        readable);
}

QTEST_MAIN(TestPOrvGuiTheme)
#include "tst_porvguitheme.moc"
