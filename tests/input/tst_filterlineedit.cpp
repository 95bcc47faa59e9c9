#include "testsupport.h"
#include "userhand.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/IconButton>

#include <QAction>
#include <QDialog>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

/// A filter field in a dialog, which Escape closes.
class TestFilterLineEdit : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_dialog.reset(); }
    void typingAndClearing();
    void escapeClearsBeforeItCloses();
    void escapeThatIsNotForTheField();

private:
    std::unique_ptr<QDialog> m_dialog;
    FilterLineEdit* m_filter = nullptr;
    QPushButton* m_button = nullptr;
    UserHand m_hand;
};

void TestFilterLineEdit::init()
{
    WarningFreeTest::init();
    if (!UserHand::isAvailable())
        QFAIL("xdotool is missing");
    m_dialog = std::make_unique<QDialog>();
    auto* layout = new QVBoxLayout(m_dialog.get());
    m_filter = new FilterLineEdit;
    m_button = new QPushButton(u"Close"_s);
    layout->addWidget(m_filter);
    layout->addWidget(m_button);
    m_dialog->show();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    QTRY_VERIFY(m_filter->hasFocus());
}

void TestFilterLineEdit::typingAndClearing()
{
    QCOMPARE(m_filter->placeholderText(), u"Filter"_s);
    IconButton* clear = m_filter->findChildren<IconButton*>()[FancyLineEdit::Right];
    QCOMPARE(clear->toolTip(), u"Clear text"_s);
    QVERIFY(clear->isVisible());
    QVERIFY(!clear->pixmap().isNull());
    QCOMPARE(clear->iconOpacity(), 0.0F);
    QSignalSpy filtered(m_filter, &FilterLineEdit::filterChanged);

    m_hand.strike(u"a"_s);
    QTRY_COMPARE(filtered, (QList<QVariantList>{{u"a"_s}}));
    QTRY_COMPARE(clear->iconOpacity(), 1.0F);
    m_hand.strike(u"b"_s);
    QTRY_COMPARE(filtered.count(), 2);
    QVERIFY(m_filter->findChildren<QPropertyAnimation*>().isEmpty());
    m_filter->setText(u"ab"_s);
    QCOMPARE(filtered.count(), 2);

    m_hand.moveTo(clear, clear->rect().center());
    m_hand.click();
    QTRY_COMPARE(filtered.count(), 3);
    QCOMPARE(filtered[2][0], QString());
    QVERIFY(m_filter->text().isEmpty());
    QVERIFY(m_filter->hasFocus());
    QTRY_COMPARE(clear->iconOpacity(), 0.0F);
}

void TestFilterLineEdit::escapeClearsBeforeItCloses()
{
    // A shortcut of the window must not take the key either.
    QAction action;
    action.setShortcut(Qt::Key_Escape);
    m_dialog->addAction(&action);
    QSignalSpy taken(&action, &QAction::triggered);
    QSignalSpy filtered(m_filter, &FilterLineEdit::filterChanged);
    m_filter->setText(u"north"_s);
    m_hand.strike(u"Escape"_s);
    QTRY_COMPARE(filtered.count(), 2);
    QVERIFY(m_filter->text().isEmpty());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(taken.count(), 0);
    m_hand.strike(u"Escape"_s);
    QTRY_COMPARE(taken.count(), 1);
    m_dialog->removeAction(&action);
    m_hand.strike(u"Escape"_s);
    QTRY_VERIFY(!m_dialog->isVisible());
}

void TestFilterLineEdit::escapeThatIsNotForTheField()
{
    m_filter->setText(u"north"_s);
    m_filter->setClearOnEscape(false);
    m_hand.strike(u"Escape"_s);
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(m_filter->text(), u"north"_s);

    m_filter->setClearOnEscape(true);
    m_dialog->show();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    m_button->setFocus();
    QTRY_VERIFY(m_button->hasFocus());
    m_hand.strike(u"Escape"_s);
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(m_filter->text(), u"north"_s);
}

QTEST_MAIN(TestFilterLineEdit)
#include "tst_filterlineedit.moc"
