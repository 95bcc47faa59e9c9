// SPDX-License-Identifier: MIT
#include "menuplacement.h"
#include "testsupport.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/IconButton>

#include <QDialog>
#include <QMenu>
#include <QPropertyAnimation>
#include <QShortcut>

using namespace CorvelGui;

namespace {

IconButton* buttonOf(const FancyLineEdit& edit, FancyLineEdit::Side side)
{
    return edit.findChildren<IconButton*>()[side];
}

QPixmap redPixmap(QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class TestFancyLineEdit : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void icons()
    {
        const std::tuple<QSize, Qt::LayoutDirection, QMargins, QRect> cases[] = {
            {{16, 16}, Qt::LeftToRight, {0, 0, 28, 0}, {176, 0, 20, 20}},
            {{32, 16}, Qt::LeftToRight, {0, 0, 48, 0}, {156, 0, 40, 20}},
            {{32, 16}, Qt::RightToLeft, {48, 0, 0, 0}, {4, 0, 40, 20}},
            {{20, 16}, Qt::LeftToRight, {0, 0, 28, 0}, {176, 0, 20, 20}},
            {{8, 16}, Qt::LeftToRight, {0, 0, 8, 0}, {196, 0, 0, 20}},
            {{0, 0}, Qt::LeftToRight, {0, 0, 28, 0}, {176, 0, 20, 20}}};
        for (const auto& [pixmap, direction, margins, place] : cases) {
            // As in a dialog: all is set before the layout decides the size.
            FancyLineEdit edit;
            edit.setButtonPixmap(FancyLineEdit::Right, redPixmap(pixmap));
            edit.setButtonToolTip(FancyLineEdit::Right, u"More"_s);
            QCOMPARE(edit.textMargins(), QMargins());
            edit.setButtonVisible(FancyLineEdit::Right, true);
            edit.setLayoutDirection(direction);
            edit.setFixedSize(200, 20);
            edit.show();
            IconButton* button = buttonOf(edit, FancyLineEdit::Right);
            QCOMPARE(edit.textMargins(), margins);
            QCOMPARE(button->geometry(), place);
            button->setIconOpacity(0.0F);
            for (const bool hides : {true, false}) {
                button->setAutoHide(hides);
                QCOMPARE(edit.grab().toImage().pixelColor(place.center()) == QColor(Qt::red),
                         !hides && !pixmap.isEmpty() && !place.isEmpty());
            }
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button);
            QCOMPARE(accessible->role(), QAccessible::Button);
            QCOMPARE(accessible->text(QAccessible::Name), u"More"_s);

            // What comes later counts at once.
            edit.setLayoutDirection(direction == Qt::LeftToRight ? Qt::RightToLeft
                                                                 : Qt::LeftToRight);
            QCOMPARE(edit.textMargins(), QMargins(margins.right(), 0, margins.left(), 0));
            QCOMPARE(button->geometry().left(), 199 - place.right());
            edit.setButtonPixmap(FancyLineEdit::Right, redPixmap({48, 16}));
            QCOMPARE(button->width(), 60);
            QCOMPARE(edit.textMargins().left() + edit.textMargins().right(), 68);
            edit.setButtonVisible(FancyLineEdit::Right, false);
            QCOMPARE(edit.textMargins(), QMargins());
        }
        FancyLineEdit unsized;
        unsized.setButtonVisible(FancyLineEdit::Right, true);
        for (const auto& sheet : {QString(), u"QLineEdit{padding:30px}"_s}) {
            unsized.setStyleSheet(sheet);
            QCOMPARE(unsized.textMargins().right(), unsized.sizeHint().height() + 8);
        }
    }

    void fades()
    {
        FancyLineEdit edit;
        edit.setAutoHideButton(FancyLineEdit::Left, true);
        const IconButton* button = buttonOf(edit, FancyLineEdit::Left);
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
        edit.setButtonMenu(FancyLineEdit::Left, nullptr);
        QCOMPARE(button->iconOpacity(), 1.0F);
        for (const auto& [text, hides, opacity] :
             {std::tuple(u""_s, true, 0.0F), {u""_s, false, 1.0F}, {u"a"_s, true, 1.0F}}) {
            edit.setText(text);
            edit.setAutoHideButton(FancyLineEdit::Left, hides);
            QCOMPARE(button->iconOpacity(), opacity);
        }
    }

    void clicks()
    {
        QPointer<FancyLineEdit> edit = new FancyLineEdit;
        QStringList log;
        connect(edit, &FancyLineEdit::buttonClicked, this,
                [&log](FancyLineEdit::Side side) { log << u"side %1"_s.arg(side); });
        connect(edit, &FancyLineEdit::leftButtonClicked, this, [&log] { log << u"left"_s; });
        connect(edit, &FancyLineEdit::rightButtonClicked, this, [&log] { log << u"right"_s; });
        buttonOf(*edit, FancyLineEdit::Right)->click();
        connect(edit, &FancyLineEdit::buttonClicked, this, [edit] { delete edit; });
        buttonOf(*edit, FancyLineEdit::Left)->click();
        QVERIFY(!edit);
        QCOMPARE(log, (QStringList{u"side 1"_s, u"right"_s, u"side 0"_s}));
    }

    void menus()
    {
        QWidget window;
        FancyLineEdit edit(&window);
        QPushButton next(&window);
        auto menu = std::make_unique<QMenu>();
        menu->addAction(u"Case sensitive"_s);
        for (const auto side : {FancyLineEdit::Left, FancyLineEdit::Right}) {
            edit.setButtonVisible(side, true);
            edit.setButtonMenu(side, menu.get());
            edit.setMenuTabFocusTrigger(side, true);
        }
        window.show();
        edit.setFocus();
        QSignalSpy clicked(&edit, &FancyLineEdit::buttonClicked);
        QList<bool> fieldHadFocus;
        connect(menu.get(), &QMenu::aboutToShow, this, [&] {
            fieldHadFocus << edit.hasFocus();
            QTimer::singleShot(0, menu.get(), &QWidget::close);
        });
        // The two menus, then out of the field; on the way back the same again.
        for (const int shown : {1, 2, 2}) {
            window.activateWindow(); // not every platform does so after a menu
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QTest::keyClick(&edit, Qt::Key_Tab);
            QCOMPARE(fieldHadFocus, QList<bool>(shown, true));
        }
        QVERIFY(next.hasFocus());
        QTest::keyClick(&next, Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(window.focusWidget(), &edit);
        QCOMPARE(fieldHadFocus.size(), 3);
        buttonOf(edit, FancyLineEdit::Left)->click();
        QCOMPARE(fieldHadFocus.size(), 4);
        QCOMPARE(clicked.count(), 0);
        menu.reset();
        buttonOf(edit, FancyLineEdit::Left)->click();
        QCOMPARE(clicked.count(), 1);

        const auto policy = [&edit] {
            return buttonOf(edit, FancyLineEdit::Right)->focusPolicy();
        };
        for (const auto& [on, expected] :
             {std::pair(true, Qt::ClickFocus), {false, Qt::NoFocus}, {true, Qt::TabFocus}}) {
            if (on == edit.hasMenuTabFocusTrigger(FancyLineEdit::Right))
                edit.setButtonFocusPolicy(FancyLineEdit::Right, Qt::ClickFocus);
            edit.setMenuTabFocusTrigger(FancyLineEdit::Right, on);
            QCOMPARE(policy(), expected);
        }
    }

    void menuPlaces()
    {
        constexpr auto leftToRight = Qt::LeftToRight;
        constexpr auto rightToLeft = Qt::RightToLeft;
        const std::tuple<QPoint, Qt::LayoutDirection, QPoint> cases[] = {
            {{300, 100}, leftToRight, {300, 120}}, {{300, 100}, rightToLeft, {219, 120}},
            {{300, 532}, leftToRight, {300, 552}}, {{300, 533}, leftToRight, {300, 484}},
            {{300, 533}, rightToLeft, {219, 484}}, {{780, 100}, leftToRight, {699, 120}},
            {{10, 100}, rightToLeft, {0, 120}}};
        for (const auto& [button, direction, place] : cases) {
            // The second screen stands below and to the right of the first one.
            for (const QPoint screen : {QPoint(0, 0), QPoint(800, 600)}) {
                QCOMPARE(menuPosition(QRect(screen + button, QSize(20, 20)),
                                      QRect(screen, QSize(800, 601)), QSize(100, 50), direction),
                         screen + place);
            }
        }
    }

    void filterInADialog()
    {
        QDialog dialog;
        auto* layout = new QVBoxLayout(&dialog);
        auto* filter = new FilterLineEdit;
        auto* button = new QPushButton(u"Close"_s);
        layout->addWidget(filter);
        layout->addWidget(button);
        const auto open = [&dialog](QWidget* focus) {
            dialog.show();
            dialog.activateWindow();
            focus->setFocus();
            return QTest::qWaitForWindowActive(&dialog) && focus->hasFocus();
        };
        QVERIFY(open(filter));
        QSignalSpy filtered(filter, &FilterLineEdit::filterChanged);

        QTest::keyClick(filter, Qt::Key_A);
        QTest::keyClick(filter, Qt::Key_B);
        {
            const QSignalBlocker unseen(filter);
            filter->clear();
        }
        filter->setText(u"ab"_s);
        QTest::mouseClick(buttonOf(*filter, FancyLineEdit::Right), Qt::LeftButton);
        QCOMPARE(filtered, (QList<QVariantList>{{u"a"_s}, {u"ab"_s}, {QString()}}));
        QVERIFY(filter->hasFocus());

        // Escape clears before it means anything to the window.
        auto* shortcut = new QShortcut(Qt::Key_Escape, &dialog);
        QSignalSpy taken(shortcut, &QShortcut::activated);
        filter->setText(u"north"_s);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        QVERIFY(filter->text().isEmpty());
        QVERIFY(dialog.isVisible());
        QCOMPARE(taken.count(), 0);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        QCOMPARE(taken.count(), 1);
        delete shortcut;
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());

        // Neither for a field without focus nor against its will.
        filter->setText(u"north"_s);
        QVERIFY(open(button));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        filter->setClearOnEscape(false);
        QVERIFY(open(filter));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(filter->text(), u"north"_s);
        filter->setPlaceholderText(u"Find"_s);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(filter, &change);
        QCOMPARE(filter->placeholderText(), u"Find"_s);
    }
};

QTEST_MAIN(TestFancyLineEdit)
#include "tst_fancylineedit.moc"
