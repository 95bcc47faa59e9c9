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

void applyLook(bool dark, const QString& suffix = QString())
{
    POrvGuiTheme::bPantherTheme = dark;
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QPalette palette = QApplication::style()->standardPalette();
    if (dark)
        POrvGuiTheme::SetDarkPalette(palette);
    QApplication::setPalette(palette);
    qApp->setStyleSheet((dark ? POrvGuiTheme::darkTheme() : POrvGuiTheme::whiteTheme()) + suffix);
}

} // namespace

class TestPOrvGuiTheme : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void textOnTimelineIsReadable_data();
    void textOnTimelineIsReadable();
    void trackStatesDiffer();
    void statusColorsDifferForAllEyes_data();
    void statusColorsDifferForAllEyes();
    void statusTextShowsInBothLooks();
    void widgetsAreReadable_data();
    void widgetsAreReadable();
    void sheetRulesAreReadable_data();
    void sheetRulesAreReadable();
    void sheetTakesSuffix();
    void wrongEntryIsReadable();
};

void TestPOrvGuiTheme::cleanup()
{
    qApp->setStyleSheet(QString());
}

void TestPOrvGuiTheme::textOnTimelineIsReadable_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    const QColor scaleText(200, 200, 200);
    QTest::newRow("scale on body") << scaleText << POrvGuiTheme::colorShark;
    QTest::newRow("scale on shade") << scaleText << POrvGuiTheme::colorBlack;
    QTest::newRow("scale on track") << scaleText << POrvGuiTheme::colorTuna;
    QTest::newRow("playing") << QColor(Qt::black) << POrvGuiTheme::colorYellow;
    QTest::newRow("paused") << QColor(Qt::black) << POrvGuiTheme::colorGreen;
    QTest::newRow("playing, plain") << QColor(Qt::black) << POrvGuiTheme::colorBlue;
}

void TestPOrvGuiTheme::textOnTimelineIsReadable()
{
    QFETCH(const QColor, text);
    QFETCH(const QColor, ground);
    QCOMPARE_GE(contrast(text, ground), readable);
}

void TestPOrvGuiTheme::trackStatesDiffer()
{
    for (const Eyes eyes : {Eyes::Usual, Eyes::Protanopia, Eyes::Deuteranopia}) {
        QVERIFY(difference(POrvGuiTheme::colorTuna, POrvGuiTheme::colorShark, eyes) >= 20);
        QVERIFY(difference(POrvGuiTheme::colorTuna, POrvGuiTheme::colorBlack, eyes) >= 20);
        QVERIFY(difference(POrvGuiTheme::colorShark, POrvGuiTheme::colorBlack, eyes) >= 10);
        QVERIFY(difference(POrvGuiTheme::colorYellow, POrvGuiTheme::colorPurple, eyes) >= 40);
    }
}

void TestPOrvGuiTheme::statusColorsDifferForAllEyes_data()
{
    QTest::addColumn<Eyes>("eyes");
    QTest::newRow("usual") << Eyes::Usual;
    QTest::newRow("protanopia") << Eyes::Protanopia;
    QTest::newRow("deuteranopia") << Eyes::Deuteranopia;
}

void TestPOrvGuiTheme::statusColorsDifferForAllEyes()
{
    QFETCH(const Eyes, eyes);
    for (const bool dark : {true, false}) {
        POrvGuiTheme::bPantherTheme = dark;
        const QColor states[] = {POrvGuiTheme::statusRed(), POrvGuiTheme::colorGreen,
                                 POrvGuiTheme::colorYellow, POrvGuiTheme::colorBlue};
        for (const QColor& one : states) {
            for (const QColor& other : states) {
                const double distance = difference(one, other, eyes);
                QVERIFY2(
                    one == other || distance >= 25,
                    qPrintable(u"%1 and %2: %3"_s.arg(one.name(), other.name()).arg(distance)));
            }
        }
    }
}

void TestPOrvGuiTheme::statusTextShowsInBothLooks()
{
    for (const bool dark : {true, false}) {
        applyLook(dark);
        for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base}) {
            const QColor ground = QApplication::palette().color(role);
            QVERIFY(contrast(POrvGuiTheme::statusRed(), ground) >= readable);
        }
        const QColor ground = QApplication::palette().color(QPalette::Base);
        for (const QColor& color :
             {POrvGuiTheme::colorGreen, POrvGuiTheme::colorBlue, POrvGuiTheme::colorOrange})
            QVERIFY(contrast(color, ground) >= (dark ? readable : perceptible));
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
    for (QWidget* widget : {static_cast<QWidget*>(&label), static_cast<QWidget*>(&check),
                            static_cast<QWidget*>(&button), static_cast<QWidget*>(&edit),
                            static_cast<QWidget*>(&text), static_cast<QWidget*>(&spin),
                            static_cast<QWidget*>(&combo), static_cast<QWidget*>(&list)}) {
        const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::Text, QPalette::AlternateBase},
            {QPalette::ButtonText, QPalette::Button},
            {QPalette::HighlightedText, QPalette::Highlight}};
        const bool selects =
            widget != &label && widget != &check && widget != &button && widget != &combo;
        for (const bool enabled : {true, false}) {
            widget->setEnabled(enabled);
            widget->ensurePolished();
            for (const auto& [textRole, groundRole] : pairs) {
                if (textRole == QPalette::HighlightedText && !(selects && enabled))
                    continue;
                const QPalette palette = widget->palette();
                const double ratio = contrast(palette.color(textRole), palette.color(groundRole));
                QVERIFY2(ratio >= (enabled ? readable : perceptible),
                         qPrintable(u"%1, role %2, %3: %4"_s
                                        .arg(QLatin1StringView(widget->metaObject()->className()))
                                        .arg(textRole)
                                        .arg(enabled)
                                        .arg(ratio)));
            }
        }
    }
    if (dark) {
        const QPalette palette = QApplication::palette();
        for (const QPalette::ColorRole role : {QPalette::Link, QPalette::LinkVisited})
            QVERIFY(contrast(palette.color(role), palette.color(QPalette::Window)) >= readable);
        QVERIFY(contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)) >=
                readable);
        QVERIFY(contrast(palette.color(QPalette::ToolTipText),
                         palette.color(QPalette::ToolTipBase)) >= readable);
    }
}

void TestPOrvGuiTheme::sheetRulesAreReadable_data()
{
    widgetsAreReadable_data();
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

// Qt reports a sheet that it cannot parse as a warning, which fails the test.
void TestPOrvGuiTheme::sheetTakesSuffix()
{
    for (const bool dark : {true, false}) {
        applyLook(dark, u"QLabel {min-width:150px;}"_s);
        QLabel label;
        label.ensurePolished();
        QCOMPARE(label.minimumSizeHint().width(), 150);
    }
}

void TestPOrvGuiTheme::wrongEntryIsReadable()
{
    for (const bool dark : {true, false}) {
        applyLook(dark);
        QLineEdit edit;
        edit.ensurePolished();
        const QColor usual = edit.palette().color(QPalette::Text);
        edit.setStyleSheet(u"QLineEdit{background-color:#ff4d4d;}"_s);
        QVERIFY(contrast(edit.palette().color(QPalette::Text), QColor(0xff, 0x4d, 0x4d)) >=
                readable);
        edit.setStyleSheet(QString());
        QCOMPARE(edit.palette().color(QPalette::Text), usual);
    }
}

QTEST_MAIN(TestPOrvGuiTheme)
#include "tst_porvguitheme.moc"
