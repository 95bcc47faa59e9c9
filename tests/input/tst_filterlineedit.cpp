#include "testsupport.h"
#include "userhand.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/IconButton>

#include <QDialog>
#include <QPropertyAnimation>
#include <QShortcut>

using namespace CorvelGui;

class TestFilterLineEdit : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void inADialog()
    {
        if (!UserHand::isAvailable())
            QFAIL("xdotool is missing");
        UserHand hand;
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
        QCOMPARE(filter->placeholderText(), u"Filter"_s);
        auto* clear = filter->findChildren<IconButton*>()[FancyLineEdit::Right];
        QVERIFY(clear->isVisible() && !clear->pixmap().isNull());
        QCOMPARE(clear->toolTip(), u"Clear text"_s);
        QCOMPARE(clear->iconOpacity(), 0.0F);
        QSignalSpy filtered(filter, &FilterLineEdit::filterChanged);

        hand.strike(u"a"_s);
        QTRY_COMPARE(clear->iconOpacity(), 1.0F);
        QTRY_VERIFY(filter->findChildren<QPropertyAnimation*>().isEmpty());
        hand.strike(u"b"_s);
        QTRY_COMPARE(filter->text(), u"ab"_s);
        QVERIFY(filter->findChildren<QPropertyAnimation*>().isEmpty());
        {
            const QSignalBlocker unseen(filter);
            filter->clear();
        }
        filter->setText(u"ab"_s);
        hand.moveTo(clear, clear->rect().center());
        hand.click();
        QTRY_COMPARE(filtered, (QList<QVariantList>{{u"a"_s}, {u"ab"_s}, {QString()}}));
        QVERIFY(filter->hasFocus());
        QTRY_COMPARE(clear->iconOpacity(), 0.0F);

        // Escape clears before it means anything to the window.
        auto* shortcut = new QShortcut(Qt::Key_Escape, &dialog);
        QSignalSpy taken(shortcut, &QShortcut::activated);
        filter->setText(u"north"_s);
        hand.strike(u"Escape"_s);
        QTRY_VERIFY(filter->text().isEmpty());
        QVERIFY(dialog.isVisible());
        QCOMPARE(taken.count(), 0);
        hand.strike(u"Escape"_s);
        QTRY_COMPARE(taken.count(), 1);
        delete shortcut;
        hand.strike(u"Escape"_s);
        QTRY_VERIFY(!dialog.isVisible());

        // Neither for a field without focus nor against its will.
        filter->setText(u"north"_s);
        QVERIFY(open(button));
        hand.strike(u"Escape"_s);
        QTRY_VERIFY(!dialog.isVisible());
        filter->setClearOnEscape(false);
        QVERIFY(open(filter));
        hand.strike(u"Escape"_s);
        QTRY_VERIFY(!dialog.isVisible());
        QCOMPARE(filter->text(), u"north"_s);
        filter->setPlaceholderText(u"Find"_s);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(filter, &change);
        QCOMPARE(filter->placeholderText(), u"Find"_s);
    }
};

QTEST_MAIN(TestFilterLineEdit)
#include "tst_filterlineedit.moc"
