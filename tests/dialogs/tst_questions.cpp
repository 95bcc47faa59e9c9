#include "testsupport.h"
#include "whenshown.h"

#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PPasswordInputDialog>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

QPushButton* buttonOf(const QDialog& dialog, QDialogButtonBox::StandardButton button)
{
    return dialog.findChild<QDialogButtonBox*>(u"buttonBox"_s)->button(button);
}

} // namespace

class TestQuestions : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void ipRangeNeedsAnAddress();
    void ipRangeTakesNothingUnlessAccepted();
    void passwords_data();
    void passwords();
    void passwordStaysHidden();
    void passwordDialogDeletedBehindTheWarning();
    void lastUpdates_data();
    void lastUpdates();
    void askAgain();
};

void TestQuestions::ipRangeNeedsAnAddress()
{
    PIpRangeDialog dialog;
    const QPushButton* ok = buttonOf(dialog, QDialogButtonBox::Ok);
    auto* address = dialog.findChild<QLineEdit*>(u"lineEditIp"_s);
    QVERIFY(!ok->isEnabled());
    dialog.show();
    QVERIFY(!ok->isEnabled());
    QTest::keyClick(address, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QTest::keyClicks(address, u"10.1.2.3"_s);
    QVERIFY(ok->isEnabled());
    QTest::keyClick(address, Qt::Key_Backspace);
    QVERIFY(!ok->isEnabled());
    address->setText(u"256.1.1.1"_s);
    QVERIFY(!ok->isEnabled());
}

void TestQuestions::ipRangeTakesNothingUnlessAccepted()
{
    PIpRangeDialog dialog;
    auto* address = dialog.findChild<QLineEdit*>(u"lineEditIp"_s);
    auto* mask = dialog.findChild<QComboBox*>(u"comboBoxMask"_s);
    QCOMPARE(mask->currentText(), u"255.254.0.0 /15"_s);
    dialog.show();
    QTest::keyClicks(address, u"010.1.2.3"_s);
    mask->setCurrentText(u"255.255.255.0 /24"_s);
    buttonOf(dialog, QDialogButtonBox::Cancel)->click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.getIp(), QString());
    QCOMPARE(dialog.getMask(), 0);

    dialog.show();
    QTest::keyClick(address, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.getIp(), u"010.1.2.3"_s);
    QCOMPARE(dialog.getMask(), 24);
}

void TestQuestions::passwords_data()
{
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("right");

    QTest::newRow("right") << u"Secret"_s << u"Secret"_s << true;
    QTest::newRow("case") << u"Secret"_s << u"secret"_s << false;
    QTest::newRow("blank") << u"Secret"_s << u"Secret "_s << false;
    QTest::newRow("nothing") << u"Secret"_s << QString() << false;
    QTest::newRow("none expected") << QString() << QString() << true;
    QTest::newRow("too much") << QString() << u" "_s << false;
}

void TestQuestions::passwords()
{
    QFETCH(QString, expected);
    QFETCH(QString, typed);
    QFETCH(bool, right);
    PPasswordInputDialog dialog(expected);
    auto* field = dialog.findChild<QLineEdit*>(u"lineEditEncryptPassword"_s);
    dialog.show();
    QTest::keyClicks(field, typed);
    QStringList warnings;
    if (!right) {
        whenShown<QMessageBox>(this, [&warnings](QMessageBox& box) {
            warnings << box.text();
            QCOMPARE(box.icon(), QMessageBox::Warning);
            QCOMPARE(box.standardButtons(), QMessageBox::Ok);
            box.button(QMessageBox::Ok)->click();
        });
    }
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(warnings, right ? QStringList() : QStringList{u"Wrong Password!"_s});
    QCOMPARE(dialog.isVisible(), !right);
    QCOMPARE(dialog.getEncryptPassword(), typed);
    QVERIFY(!dialog.useEncryptPasswordNextTime());
}

void TestQuestions::passwordStaysHidden()
{
    PPasswordInputDialog dialog(u"Secret"_s);
    auto* field = dialog.findChild<QLineEdit*>(u"lineEditEncryptPassword"_s);
    field->setText(u"Secret"_s);
    const QList<QWidget*> widgets = dialog.findChildren<QWidget*>() << &dialog;
    QStringList told;
    for (QWidget* widget : widgets) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        for (int text = QAccessible::Name; text <= QAccessible::Accelerator; ++text)
            told << accessible->text(QAccessible::Text(text));
        told << widget->toolTip() << widget->statusTip() << widget->whatsThis();
    }
    QVERIFY(told.contains(u"Password:"_s));
    QVERIFY(told.filter(u"Secret"_s).isEmpty());
    QCOMPARE(field->displayText().count(u'S'), 0);
}

void TestQuestions::passwordDialogDeletedBehindTheWarning()
{
    auto* parent = new QWidget;
    auto* dialog = new PPasswordInputDialog(u"Secret"_s, parent);
    dialog->show();
    whenShown<QMessageBox>(this, [parent](QMessageBox&) { delete parent; });
    buttonOf(*dialog, QDialogButtonBox::Ok)->click();
}

void TestQuestions::lastUpdates_data()
{
    QTest::addColumn<QVariant>("lastUpdate");
    QTest::addColumn<QString>("sentence");

    const QString known =
        u"The last update of device information was on Sat Mar 30 07:15:00 2024"_s;
    QTest::newRow("date and time")
        << QVariant(QDateTime(QDate(2024, 3, 30), QTime(7, 15))) << known;
    QTest::newRow("stored as text") << QVariant(u"2024-03-30T07:15:00"_s) << known;
    QTest::newRow("never") << QVariant() << QString();
    QTest::newRow("no time in it") << QVariant(QDateTime()) << QString();
    QTest::newRow("no time at all") << QVariant(u"<b>soon</b>"_s) << QString();
}

void TestQuestions::lastUpdates()
{
    QFETCH(QVariant, lastUpdate);
    PAskRefreshDialog dialog(nullptr, lastUpdate, true);
    QTEST(dialog.findChild<QLabel*>(u"labelRefresh"_s)->text(), "sentence");
    QVERIFY(!dialog.findChild<QLabel*>(u"labelRefreshIcon"_s)->pixmap().isNull());
}

void TestQuestions::askAgain()
{
    QVERIFY(!PAskRefreshDialog(nullptr, {}, false).ShowNextTime());
    PAskRefreshDialog dialog(nullptr, {}, true);
    QVERIFY(dialog.ShowNextTime());
    dialog.show();
    dialog.findChild<QCheckBox*>(u"checkBoxShowNextTime"_s)->click();
    buttonOf(dialog, QDialogButtonBox::Cancel)->click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(!dialog.ShowNextTime());
    dialog.show();
    buttonOf(dialog, QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

QTEST_MAIN(TestQuestions)
#include "tst_questions.moc"
