#include "testsupport.h"

#include <CorvelGui/PBaseDialog>
#include <CorvelGui/PMainWindow>
#include <CorvelGui/PWidget>
#include <CorvelGui/ToolBarWithLabel>
#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace {

class Widget : public PWidget
{
public:
    Widget() : PWidget(nullptr) {}

    int retranslations = 0;
    QStringList log;

protected:
    void showEvent(QShowEvent* event) override
    {
        PWidget::showEvent(event);
        log << u"shown"_s;
    }
    void retranslate() override { ++retranslations; }
};

} // namespace

class TestBaseWidgets : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void showStateBeforeHandling();
    void retranslatesForLanguageChangesOnly();
    void dialogWithoutHelpButton();
    void windowLeavesAMargin();
    void looks();
    void labelsAtTheFarEnd();
    void libraryImages_data();
    void libraryImages();
};

void TestBaseWidgets::showStateBeforeHandling()
{
    Widget widget;
    connect(&widget, &PWidget::showStateChanged, &widget,
            [&widget](bool shown) { widget.log << (shown ? u"true"_s : u"false"_s); });
    widget.show();
    widget.hide();
    widget.show();
    QCOMPARE(widget.log, (QStringList{u"true"_s, u"shown"_s, u"false"_s, u"true"_s, u"shown"_s}));
}

void TestBaseWidgets::retranslatesForLanguageChangesOnly()
{
    Widget widget;
    widget.setEnabled(false);
    widget.setFont(QFont(u"Serif"_s, 20));
    widget.setPalette(QPalette(Qt::red));
    QCOMPARE(widget.retranslations, 0);
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&widget, &languageChange);
    QCOMPARE(widget.retranslations, 1);
}

void TestBaseWidgets::dialogWithoutHelpButton()
{
    PBaseDialog dialog;
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.windowType(), Qt::Dialog);
}

void TestBaseWidgets::windowLeavesAMargin()
{
    PMainWindow window;
    window.setCenterPosAndResize();
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    QCOMPARE(window.size(), screen - QSize(200, 200));
    QCOMPARE(window.pos(), QPoint(100, 100));
}

void TestBaseWidgets::looks()
{
    const QPalette initial = QGuiApplication::palette();
    PMainWindow window;
    QPalette dark = initial;
    POrvGuiTheme::SetDarkPalette(dark);
    const QString tabs = u"QTabBar::tab {width:150px;}"_s;

    // Twice, because the second time must not start from a palette that is dark already.
    for (int i = 0; i < 2; ++i) {
        window.createDarkFusionStyle(true);
        QVERIFY(POrvGuiTheme::bPantherTheme);
        QCOMPARE(QGuiApplication::palette(), dark);
        QCOMPARE(qApp->styleSheet(), POrvGuiTheme::darkTheme() + tabs);
    }
    window.createDarkFusionStyle(false);
    QVERIFY(!POrvGuiTheme::bPantherTheme);
    QCOMPARE(QGuiApplication::palette().color(QPalette::Window),
             QApplication::style()->standardPalette().color(QPalette::Window));
    QCOMPARE(qApp->styleSheet(), POrvGuiTheme::whiteTheme() + tabs);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestBaseWidgets::labelsAtTheFarEnd()
{
    ToolBarWithLabel bar(u"Bar"_s, nullptr);
    bar.resize(600, 40);
    bar.addLabel(u"Live %1"_s, QColor(255, 0, 0));
    bar.addLabel(u"Two"_s, QColor(0, 0, 255, 10));
    bar.show();

    const auto labels = bar.findChildren<QLabel*>();
    QCOMPARE(labels.size(), 2);
    QCOMPARE(labels[0]->text(), u"<span style=\"font-size:15pt; font-weight:600; "
                                "color:#ff0000;\"><b>Live %1</b></span>"_s);
    QVERIFY(labels[1]->text().contains(u"color:#0000ff;"_s));
    QVERIFY(labels[1]->geometry().right() > 560);
    QVERIFY(labels[0]->geometry().left() > 100);
}

void TestBaseWidgets::libraryImages_data()
{
    QTest::addColumn<QString>("name");

    for (const char* name : {"zoomout", "new", "save", "open", "fit", "binoculars", "rightarrow",
                             "zoomin", "leftarrow", "saveas", "copy", "onetoone", "paste"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestBaseWidgets::libraryImages()
{
    QFETCH(QString, name);
    const QImage image(u":/CorvelGui/common/%1.png"_s.arg(name));
    const QImage large(u":/CorvelGui/common/%1@2x.png"_s.arg(name));
    QVERIFY(!image.isNull());
    QCOMPARE(large.size(), image.size() * 2);
    QVERIFY(image.hasAlphaChannel());
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
}

QTEST_MAIN(TestBaseWidgets)
#include "tst_basewidgets.moc"
