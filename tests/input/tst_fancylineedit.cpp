#include "menuplacement.h"
#include "testsupport.h"

#include <CorvelGui/FancyLineEdit>
#include <CorvelGui/IconButton>

#include <QAccessible>
#include <QMenu>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Qt::LayoutDirection)

namespace {

QPixmap redPixmap(QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::red);
    return pixmap;
}

IconButton* buttonOf(const FancyLineEdit& edit, FancyLineEdit::Side side)
{
    return edit.findChildren<IconButton*>()[side];
}

} // namespace

class TestFancyLineEdit : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void roomForIcons_data();
    void roomForIcons();
    void fades();
    void clicks();
    void menus();
    void menuPlaces_data();
    void menuPlaces();
    void painting();
};

void TestFancyLineEdit::roomForIcons_data()
{
    QTest::addColumn<QSize>("pixmap");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QRect>("button");

    QTest::newRow("square") << QSize(16, 16) << Qt::LeftToRight << QMargins(0, 0, 28, 0)
                            << QRect(176, 0, 20, 20);
    QTest::newRow("twice as wide")
        << QSize(32, 16) << Qt::LeftToRight << QMargins(0, 0, 48, 0) << QRect(156, 0, 40, 20);
    QTest::newRow("right to left")
        << QSize(32, 16) << Qt::RightToLeft << QMargins(48, 0, 0, 0) << QRect(4, 0, 40, 20);
    QTest::newRow("a little wider")
        << QSize(20, 16) << Qt::LeftToRight << QMargins(0, 0, 28, 0) << QRect(176, 0, 20, 20);
    QTest::newRow("narrow") << QSize(8, 16) << Qt::LeftToRight << QMargins(0, 0, 8, 0)
                            << QRect(196, 0, 0, 20);
    QTest::newRow("none") << QSize() << Qt::LeftToRight << QMargins(0, 0, 28, 0)
                          << QRect(176, 0, 20, 20);
}

void TestFancyLineEdit::roomForIcons()
{
    QFETCH(QSize, pixmap);
    QFETCH(Qt::LayoutDirection, direction);
    // As in a dialog: all is set before the layout decides the size.
    FancyLineEdit edit;
    edit.setButtonPixmap(FancyLineEdit::Right, pixmap.isEmpty() ? QPixmap() : redPixmap(pixmap));
    QCOMPARE(edit.textMargins(), QMargins());
    edit.setButtonVisible(FancyLineEdit::Right, true);
    edit.setLayoutDirection(direction);
    edit.setFixedSize(200, 20);
    edit.show();
    QTEST(edit.textMargins(), "margins");
    QTEST(buttonOf(edit, FancyLineEdit::Right)->geometry(), "button");
    edit.setButtonVisible(FancyLineEdit::Right, false);
    QCOMPARE(edit.textMargins(), QMargins());
}

void TestFancyLineEdit::fades()
{
    FancyLineEdit edit;
    edit.setButtonVisible(FancyLineEdit::Left, true);
    edit.setAutoHideButton(FancyLineEdit::Left, true);
    IconButton* button = buttonOf(edit, FancyLineEdit::Left);
    const auto animations = [&edit] {
        return edit.findChildren<QPropertyAnimation*>();
    };
    QCOMPARE(button->iconOpacity(), 0.0F);

    edit.setText(u"a"_s);
    QCOMPARE(animations().size(), 1); // not for the side without auto-hide
    QPropertyAnimation* fadeIn = animations()[0];
    QCOMPARE(fadeIn->duration(), 160);
    fadeIn->setCurrentTime(80);
    QCOMPARE(button->iconOpacity(), 0.5F);
    edit.setText(u"ab"_s);
    QCOMPARE(animations().size(), 1);

    // Emptied on the way: it fades out from where it is, and the fade-in gives up.
    edit.clear();
    QCOMPARE(fadeIn->state(), QAbstractAnimation::Stopped);
    QPropertyAnimation* fadeOut = animations().constLast();
    fadeOut->setCurrentTime(80);
    QCOMPARE(button->iconOpacity(), 0.25F);
    fadeOut->setCurrentTime(160);
    QCOMPARE(button->iconOpacity(), 0.0F);
    QTRY_VERIFY(animations().isEmpty());

    edit.setAutoHideButton(FancyLineEdit::Left, false);
    QCOMPARE(button->iconOpacity(), 1.0F);
    edit.setText(u"a"_s);
    QVERIFY(animations().isEmpty());
    edit.setAutoHideButton(FancyLineEdit::Left, true);
    QCOMPARE(button->iconOpacity(), 1.0F);
}

void TestFancyLineEdit::clicks()
{
    auto* edit = new FancyLineEdit;
    edit->setButtonVisible(FancyLineEdit::Left, true);
    edit->setButtonVisible(FancyLineEdit::Right, true);
    edit->show();
    QStringList log;
    connect(edit, &FancyLineEdit::buttonClicked, this,
            [&log](FancyLineEdit::Side side) { log << u"side %1"_s.arg(side); });
    connect(edit, &FancyLineEdit::leftButtonClicked, this, [&log] { log << u"left"_s; });
    connect(edit, &FancyLineEdit::rightButtonClicked, this, [&log] { log << u"right"_s; });
    QTest::mouseClick(buttonOf(*edit, FancyLineEdit::Right), Qt::LeftButton);
    QTest::mouseClick(buttonOf(*edit, FancyLineEdit::Left), Qt::LeftButton);
    QCOMPARE(log, (QStringList{u"side 1"_s, u"right"_s, u"side 0"_s, u"left"_s}));

    const QPointer<FancyLineEdit> alive(edit);
    connect(edit, &FancyLineEdit::buttonClicked, this, [edit] { delete edit; });
    QTest::mouseClick(buttonOf(*edit, FancyLineEdit::Left), Qt::LeftButton);
    QVERIFY(!alive);
    QCOMPARE(log.size(), 5);
}

void TestFancyLineEdit::menus()
{
    QWidget window;
    FancyLineEdit edit(&window);
    edit.setButtonVisible(FancyLineEdit::Left, true);
    auto menu = std::make_unique<QMenu>();
    menu->addAction(u"Case sensitive"_s);
    edit.setButtonMenu(FancyLineEdit::Left, menu.get());
    edit.setMenuTabFocusTrigger(FancyLineEdit::Left, true);
    edit.setFocus();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy clicked(&edit, &FancyLineEdit::buttonClicked);
    QSignalSpy shown(menu.get(), &QMenu::aboutToShow);
    bool focusReturned = false;
    const auto closeMenu = [&] {
        QTimer::singleShot(0, menu.get(), [&] {
            focusReturned = edit.hasFocus();
            menu->close();
        });
    };

    closeMenu();
    QTest::mouseClick(buttonOf(edit, FancyLineEdit::Left), Qt::LeftButton);
    QCOMPARE(shown.count(), 1);
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    closeMenu();
    QTest::keyClick(&edit, Qt::Key_Tab);
    QCOMPARE(shown.count(), 2);
    QVERIFY(focusReturned);
    QCOMPARE(clicked.count(), 0);

    menu.reset();
    QCOMPARE(edit.buttonMenu(FancyLineEdit::Left), nullptr);
    QTest::mouseClick(buttonOf(edit, FancyLineEdit::Left), Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

void TestFancyLineEdit::menuPlaces_data()
{
    QTest::addColumn<QRect>("button");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QPoint>("place");

    QTest::newRow("below") << QRect(300, 100, 20, 20) << Qt::LeftToRight << QPoint(300, 120);
    QTest::newRow("below, from the right")
        << QRect(300, 100, 20, 20) << Qt::RightToLeft << QPoint(219, 120);
    QTest::newRow("just room") << QRect(300, 532, 20, 20) << Qt::LeftToRight << QPoint(300, 552);
    QTest::newRow("above") << QRect(300, 533, 20, 20) << Qt::LeftToRight << QPoint(300, 484);
    QTest::newRow("above, from the right")
        << QRect(300, 533, 20, 20) << Qt::RightToLeft << QPoint(219, 484);
    QTest::newRow("at the right edge")
        << QRect(780, 100, 20, 20) << Qt::LeftToRight << QPoint(699, 120);
    QTest::newRow("at the left edge")
        << QRect(10, 100, 20, 20) << Qt::RightToLeft << QPoint(0, 120);
}

void TestFancyLineEdit::menuPlaces()
{
    QFETCH(QRect, button);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QPoint, place);
    const QRect screen(0, 0, 800, 601);
    const QSize menu(100, 50);
    QCOMPARE(menuPosition(button, screen, menu, direction), place);
    // The same on a second screen, below and to the right of the first one.
    const QPoint offset(800, 600);
    QCOMPARE(menuPosition(button.translated(offset), screen.translated(offset), menu, direction),
             place + offset);
}

void TestFancyLineEdit::painting()
{
    FancyLineEdit edit;
    edit.setFixedSize(200, 30);
    edit.setButtonPixmap(FancyLineEdit::Right, redPixmap(QSize(16, 16)));
    edit.setButtonVisible(FancyLineEdit::Right, true);
    edit.setButtonToolTip(FancyLineEdit::Right, u"More"_s);
    IconButton* button = buttonOf(edit, FancyLineEdit::Right);
    const auto colorAt = [&](QPoint position) {
        return edit.grab().toImage().pixelColor(button->pos() + position);
    };
    QCOMPARE(colorAt(QPoint(0, 0)), QColor(Qt::red));
    QCOMPARE(colorAt(QPoint(29, 29)), QColor(Qt::red));
    button->setIconOpacity(0.0F);
    QCOMPARE(colorAt(QPoint(15, 15)), QColor(Qt::red)); // opacity is for auto-hide
    button->setAutoHide(true);
    QVERIFY(colorAt(QPoint(15, 15)) != QColor(Qt::red));

    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button);
    QCOMPARE(accessible->role(), QAccessible::Button);
    QCOMPARE(accessible->text(QAccessible::Name), u"More"_s);
}

QTEST_MAIN(TestFancyLineEdit)
#include "tst_fancylineedit.moc"
