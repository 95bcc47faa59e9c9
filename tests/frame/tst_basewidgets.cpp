// SPDX-License-Identifier: MIT
#include "base/readablecolor.h"
#include "colormetrics.h"
#include "testsupport.h"

#include <CorvelGui/PBaseDialog>
#include <CorvelGui/PMainWindow>
#include <CorvelGui/PWidget>
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
        // Twice, because the second time must not start from a palette that is dark already.
        for (const bool isDark : {true, true, false}) {
            window.createDarkFusionStyle(isDark);
            QCOMPARE(POrvGuiTheme::bPantherTheme, isDark);
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
};

QTEST_MAIN(TestBaseWidgets)
#include "tst_basewidgets.moc"
