// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/BusyIndicator>
#include <CorvelGui/PFractionalProgressBar>

#include <QElapsedTimer>

#include <climits>

using namespace CorvelGui;
using namespace std::chrono_literals;

namespace {

/// A white panel with two line edits and a button, above another line edit.
struct Window : QWidget
{
    Window()
    {
        auto* outer = new QVBoxLayout(this);
        outer->addWidget(panel);
        outer->addWidget(outside);
        auto* inner = new QVBoxLayout(panel);
        for (QWidget* widget : std::initializer_list<QWidget*>{first, second, button})
            inner->addWidget(widget);
        panel->setMinimumSize(201, 160);
        panel->setPalette(Qt::white);
        panel->setAutoFillBackground(true);
        show();
        first->setFocus();
    }

    QPointer<QWidget> panel = new QWidget(this);
    QPointer<QLineEdit> first = new QLineEdit;
    QLineEdit* second = new QLineEdit;
    QPushButton* button = new QPushButton(u"&Go"_s);
    QLineEdit* outside = new QLineEdit;
};

QWidget* focus()
{
    return QApplication::focusWidget();
}

} // namespace

class TestBusyIndicator : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void delay()
    {
        Window window;
        BusyIndicator overlay(window.panel);
        const auto hasRing = [&] {
            const QImage shown = window.panel->grab().toImage();
            return shown.pixel(shown.rect().center() - QPoint(40, 0)) == qRgb(50, 50, 50);
        };
        overlay.setDelay(300ms);
        QElapsedTimer time;
        time.start();
        overlay.show();
        QVERIFY(!hasRing() || time.hasExpired(300));
        QTRY_VERIFY(hasRing());
        QVERIFY(time.hasExpired(299));
        overlay.hide();
        overlay.show();
        QVERIFY(hasRing());
        overlay.setFinished();
        QVERIFY(overlay.isHidden());
        QVERIFY(!hasRing());
    }

    void parents()
    {
        QWidget other;
        other.show();
        QPointer<BusyIndicator> overlay;
        {
            Window window;
            QWidget* panel = window.panel;
            overlay = new BusyIndicator(panel);
            // A window with a frame cannot be narrow everywhere.
            for (QWidget* parent : {panel, &other, panel}) {
                overlay->setParent(parent);
                QCOMPARE(overlay->size(), parent->size());
                (parent == panel ? &other : panel)->resize(300, 170); // no longer its parent
                new QLabel(parent == panel ? &other : panel);
                parent->resize(parent->size() + QSize(50, 10));
                QCOMPARE(overlay->size(), parent->size());
                new QLabel(parent);
                QCOMPARE(parent->children().constLast(), overlay);
            }
        }
        QVERIFY(!overlay);
    }

    void keyboard()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        BusyIndicator overlay(window.panel);
        BusyIndicator another(window.panel);
        overlay.show();
        QCOMPARE(focus(), &overlay);
        QTest::keyClicks(focus(), u"ab"_s);
        QTest::keyClicks(window.second, u"c"_s);
        QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
        QCOMPARE(window.first->text() + window.second->text(), QString());
        QVERIFY(!window.button->isDown());

        // Tab leaves for what is not covered, and comes back to the overlay.
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            QTest::keyClick(focus(), key);
            QCOMPARE(focus(), window.outside);
            QTest::keyClick(focus(), key);
            QCOMPARE(focus(), &overlay);
        }
        window.second->setFocus();
        QCOMPARE(focus(), &overlay);
        // Two of them hand the focus on instead of fighting for it.
        another.show();
        overlay.hide();
        QCOMPARE(focus(), &another);
        another.hide();
        QCOMPARE(focus(), window.second);
        QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
        QVERIFY(window.button->isDown());
    }

    void focusGoesBack()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto* overlay = new BusyIndicator(window.panel);
        overlay->show();
        overlay->hide();
        QCOMPARE(focus(), window.first);
        // Not from where the user went, and not to what is gone.
        overlay->show();
        window.outside->setFocus();
        overlay->hide();
        QCOMPARE(focus(), window.outside);
        window.first->setFocus();
        overlay->show();
        delete window.first;
        overlay->hide();
        QVERIFY(focus() != overlay);
        // When the overlay moves away, when it is deleted, and when all of it is.
        for (const bool moves : {true, false}) {
            window.second->setFocus();
            overlay->setParent(window.panel);
            overlay->show();
            QCOMPARE(focus(), overlay);
            if (moves)
                overlay->setParent(nullptr);
            else
                delete overlay;
            QTRY_COMPARE(focus(), window.second);
        }
        (new BusyIndicator(window.panel))->show();
        delete window.panel;
        QCoreApplication::processEvents();
    }

    void percentage()
    {
        PFractionalProgressBar bar;
        for (const auto& [minimum, maximum, value, text] : {std::tuple(0, 100, -1, "-1.0%"),
                                                            {0, 3, 1, "33.3%"},
                                                            {0, 3, 2, "66.7%"},
                                                            {-7, -3, -3, "100.0%"},
                                                            {INT_MIN, INT_MAX, 0, "50.0%"},
                                                            {5, 5, 5, ""}}) {
            bar.setRange(minimum, maximum);
            bar.setValue(value);
            QCOMPARE(bar.text(), QString::fromLatin1(text));
        }
    }
};

QTEST_MAIN(TestBusyIndicator)
#include "tst_busyindicator.moc"
