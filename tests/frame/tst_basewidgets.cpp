#include "base/readablecolor.h"
#include "colormetrics.h"
#include "testsupport.h"

#include <CorvelGui/PBaseDialog>
#include <CorvelGui/PMainWindow>
#include <CorvelGui/PWidget>
#include <CorvelGui/ToolBarWithLabel>
#include <Hueloft/POrvGuiTheme>

#include <QScreen>
#include <QStyle>

using namespace CorvelGui;
using Hueloft::POrvGuiTheme;

namespace {

struct Widget : PWidget
{
    Widget() : PWidget(nullptr) {}
    void showEvent(QShowEvent* event) override
    {
        PWidget::showEvent(event);
        log << u"shown"_s;
    }

    void retranslate() override { log << u"told"_s; }

    QStringList log;
};

} // namespace

class TestBaseWidgets : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void showStateBeforeHandling()
    {
        Widget widget;
        connect(&widget, &PWidget::showStateChanged, &widget,
                [&widget](bool shown) { widget.log << (shown ? u"true"_s : u"false"_s); });
        widget.show();
        widget.hide();
        for (const auto type : {QEvent::LanguageChange, QEvent::FontChange}) {
            QEvent change(type);
            QCoreApplication::sendEvent(&widget, &change);
        }
        QCOMPARE(widget.log, (QStringList{u"true"_s, u"shown"_s, u"false"_s, u"told"_s}));
    }

    void windows()
    {
        QVERIFY(!(PBaseDialog().windowFlags() & Qt::WindowContextHelpButtonHint));
        PMainWindow window;
        window.setCenterPosAndResize();
        QCOMPARE(window.size(),
                 QGuiApplication::primaryScreen()->geometry().size() - QSize(200, 200));
        QCOMPARE(window.pos(), QPoint(100, 100));
    }

    void looks()
    {
        PMainWindow window;
        QPalette dark = QGuiApplication::palette();
        POrvGuiTheme::SetDarkPalette(dark);
        const QString tabs = u"QTabBar::tab {width:150px;}"_s;
        // Twice, because the second time must not start from a palette that is dark already.
        for (const bool isDark : {true, true, false}) {
            window.createDarkFusionStyle(isDark);
            QCOMPARE(POrvGuiTheme::bPantherTheme, isDark);
            QCOMPARE(qApp->styleSheet(),
                     (isDark ? POrvGuiTheme::darkTheme() : POrvGuiTheme::whiteTheme()) + tabs);
            if (isDark)
                QCOMPARE(QGuiApplication::palette(), dark);
        }
        QCOMPARE(QGuiApplication::palette().color(QPalette::Window),
                 QApplication::style()->standardPalette().color(QPalette::Window));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    /// The first of fifty steps towards black or white that stands out, and no more than needed.
    void shadesAreReadable()
    {
        QRandomGenerator random(1);
        for (int i = 0; i < 500; ++i) {
            const QColor color = QColor::fromRgb(random.generate());
            const QColor ground = QColor::fromRgb(random.generate());
            const QColor shade = readableOn(color, ground);
            QCOMPARE_GE(contrast(shade, ground), 4.5);
            const double white = contrast(Qt::white, ground);
            const QColor end = white > contrast(Qt::black, ground) ? Qt::white : Qt::black;
            int step = 0;
            while (step < 50 && contrast(mixed(color, end, float(step) / 50), ground) < 4.5)
                ++step;
            QCOMPARE(shade.rgb(), mixed(color, end, float(step) / 50).rgb());
        }
        QCOMPARE(mixed(QColor(0, 100, 200), QColor(100, 0, 0), 0.25F).rgb(),
                 QColor(25, 75, 150).rgb());
    }

    void labelsAtTheFarEnd()
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

    void libraryImages()
    {
        for (const char* name :
             {"zoomout", "new", "save", "open", "fit", "binoculars", "rightarrow", "zoomin",
              "leftarrow", "saveas", "copy", "onetoone", "paste"}) {
            const QString path = u":/CorvelGui/common/"_s + QLatin1StringView(name);
            const QImage image(path + u".png"_s);
            QVERIFY2(image.size() == QSize(32, 32), name);
            QVERIFY2(QImage(path + u"@2x.png"_s).size() == QSize(64, 64), name);
            QVERIFY2(image.pixelColor(0, 0).alpha() == 0, name);
            int inked = 0;
            for (int pixel = 0; pixel < 32 * 32; ++pixel) {
                const QColor color = image.pixelColor(pixel % 32, pixel / 32);
                if (color.alpha() < 255)
                    continue;
                ++inked;
                QVERIFY2(contrast(color, POrvGuiTheme::colorShark) >= 3, name);
                QVERIFY2(contrast(color, Qt::white) >= 3, name);
            }
            QVERIFY2(inked > 50, "too thin to be seen at half the size");
        }
    }
};

QTEST_MAIN(TestBaseWidgets)
#include "tst_basewidgets.moc"
