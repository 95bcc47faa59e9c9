// SPDX-License-Identifier: MIT
#include "colormetrics.h"
#include "testsupport.h"

#include <Hueloft/POrvGuiTheme>

#include <QRegularExpression>
#include <QStyleFactory>

using Hueloft::POrvGuiTheme;

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
    void initTestCase() { QVERIFY2(!POrvGuiTheme::bPantherTheme, "light until told otherwise"); }
    void cleanup() { qApp->setStyleSheet(QString()); }

    void textOnTimelineIsReadable()
    {
        using Theme = POrvGuiTheme;
        for (const QColor& ground : {Theme::colorShark, Theme::colorBlack, Theme::colorTuna})
            QCOMPARE_GE(contrast(QColor(200, 200, 200), ground), readable);
        for (const QColor& ground : {Theme::colorYellow, Theme::colorGreen, Theme::colorBlue})
            QCOMPARE_GE(contrast(Qt::black, ground), readable);
    }

    void colorsDifferForAllEyes()
    {
        using Theme = POrvGuiTheme;
        for (const bool dark : {true, false}) {
            Theme::bPantherTheme = dark;
            const QList<QColor> groups[] = {
                {Theme::colorTuna, Theme::colorShark, Theme::colorBlack},
                {Theme::colorYellow, Theme::colorPurple},
                {Theme::statusRed(), Theme::colorGreen, Theme::colorYellow, Theme::colorBlue}};
            for (const QList<QColor>& group : groups) {
                for (const QColor& one : group) {
                    for (const QColor& other : group)
                        QVERIFY2(one == other || difference(one, other) >= 0.1,
                                 qPrintable(one.name() + other.name()));
                }
            }
        }
    }

    void looks_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("dark") << true;
        QTest::newRow("light") << false;
    }

    void looks()
    {
        QFETCH(const bool, dark);
        applyLook(dark);

        // Palettes as the widgets have them after the sheet has been applied to them.
        QLabel label;
        QCheckBox check;
        QPushButton button;
        QLineEdit edit;
        QSpinBox spin;
        QComboBox combo;
        QListWidget list;
        const QList<std::pair<QPalette::ColorRole, QPalette::ColorRole>> pairs{
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::Text, QPalette::AlternateBase},
            {QPalette::ButtonText, QPalette::Button},
            {QPalette::HighlightedText, QPalette::Highlight}};
        for (QWidget* widget :
             QList<QWidget*>{&edit, &spin, &list, &label, &check, &button, &combo}) {
            for (const bool enabled : {false, true}) {
                widget->setEnabled(enabled);
                widget->ensurePolished();
                const bool selects =
                    enabled && (widget == &edit || widget == &spin || widget == &list);
                for (const auto& [text, ground] : pairs.first(selects ? 5 : 4))
                    QVERIFY2(roleContrast(widget->palette(), text, ground) >=
                                 (enabled ? readable : perceptible),
                             widget->metaObject()->className());
            }
        }
        QCOMPARE(label.minimumSizeHint().width(), 150);

        const QPalette palette = QApplication::palette();
        for (const QPalette::ColorRole role :
             {QPalette::Base, QPalette::Button, QPalette::Highlight, QPalette::Link,
              QPalette::PlaceholderText})
            QVERIFY(!dark || palette.color(QPalette::Disabled, role) !=
                                 palette.color(QPalette::Active, role));
        for (const auto& [text, ground] : {std::pair(QPalette::Link, QPalette::Window),
                                           std::pair(QPalette::LinkVisited, QPalette::Window),
                                           std::pair(QPalette::PlaceholderText, QPalette::Base),
                                           std::pair(QPalette::ToolTipText, QPalette::ToolTipBase)})
            QVERIFY(!dark || roleContrast(palette, text, ground) >= readable);
        const QColor base = palette.color(QPalette::Base);
        for (const QColor& ground : {palette.color(QPalette::Window), base})
            QCOMPARE_GE(contrast(POrvGuiTheme::statusRed(), ground), readable);
        for (const QColor& color :
             {POrvGuiTheme::colorGreen, POrvGuiTheme::colorBlue, POrvGuiTheme::colorOrange})
            QCOMPARE_GE(contrast(color, base), dark ? readable : perceptible);

        // A wrong entry.
        edit.setStyleSheet(u"QLineEdit{background-color:#ff4d4d;}"_s);
        QCOMPARE_GE(contrast(edit.palette().color(QPalette::Text), QColor(0xff, 0x4d, 0x4d)),
                    readable);
    }

    void sheets()
    {
        for (const QString& sheet : {POrvGuiTheme::darkTheme(), POrvGuiTheme::whiteTheme()}) {
            // Rules that name both the text's colour and its ground.
            QVERIFY(!sheet.contains(u'$'));
            static const QRegularExpression rule(
                u"([^{}]+)\\{(?=[^}]*(?<![-\\w])(?:selection-)?color: *(#\\w{6}))"
                "[^}]*background-color: *(#\\w{6})"_s);
            int checked = 0;
            for (const QRegularExpressionMatch& match : rule.globalMatch(sheet)) {
                const bool disabled = match.captured(1).contains(u":disabled"_s);
                QVERIFY2(contrast(QColor(match.captured(2)), QColor(match.captured(3))) >=
                             (disabled ? perceptible : readable),
                         qPrintable(match.captured()));
                ++checked;
            }
            QVERIFY(checked >= 8);
            // The text of a progress bar stands on its filled part too.
            static const QRegularExpression bar(
                u"QProgressBar \\{\\s*color: (#\\w{6})[^}]*\\}\\s*"
                "QProgressBar::chunk \\{ background-color: (#\\w{6})"_s);
            const QRegularExpressionMatch match = bar.match(sheet);
            QCOMPARE_GE(contrast(QColor(match.captured(1)), QColor(match.captured(2))), readable);
        }
    }
};

QTEST_MAIN(TestPOrvGuiTheme)
#include "tst_porvguitheme.moc"
