// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PPasswordInputDialog>

using namespace CorvelGui;

class TestQuestions : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void ipRange()
    {
        PIpRangeDialog dialog;
        const QPushButton* ok = buttonOf(dialog, QDialogButtonBox::Ok);
        auto* address = dialog.findChild<QLineEdit*>(u"lineEditIp"_s);
        auto* mask = dialog.findChild<QComboBox*>(u"comboBoxMask"_s);
        dialog.show();
        QVERIFY(!ok->isEnabled() && address->styleSheet().isEmpty()); // no mistake yet
        QTest::keyClick(address, Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        QTest::keyClicks(address, u"010.1.2.3"_s);
        QVERIFY(ok->isEnabled());
        QTest::keyClick(address, Qt::Key_Backspace);
        QVERIFY(!ok->isEnabled() && !address->styleSheet().isEmpty());
        QTest::keyClicks(address, u"3"_s);
        mask->setCurrentText(u"255.255.255.0 /24"_s);
        buttonOf(dialog, QDialogButtonBox::Cancel)->click();
        QVERIFY(!dialog.isVisible() && dialog.getIp().isEmpty() && dialog.getMask() == 0);

        dialog.show();
        QTest::keyClick(address, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.getIp(), u"010.1.2.3"_s);
        QCOMPARE(dialog.getMask(), 24);
    }

    void passwords()
    {
        const std::tuple<QString, QString, bool> cases[] = {{u"Secret"_s, u"Secret"_s, true},
                                                            {u"Secret"_s, u"secret"_s, false},
                                                            {u"Secret"_s, QString(), false},
                                                            {QString(), u" "_s, false}};
        for (const auto& [expected, typed, right] : cases) {
            PPasswordInputDialog dialog(expected);
            auto* field = dialog.findChild<QLineEdit*>();
            dialog.show();
            QTest::keyClicks(field, typed);
            QString warning;
            if (!right) {
                whenShown<QMessageBox>(this, [&warning](QMessageBox& box) {
                    warning = box.windowTitle() + u'|' + box.text();
                    box.button(QMessageBox::Ok)->click();
                });
            }
            QTest::keyClick(field, Qt::Key_Return);
            QCOMPARE(warning, right ? QString() : u"tst_questions|Wrong Password!"_s);
            QCOMPARE(dialog.isVisible(), !right);
            QCOMPARE(dialog.getEncryptPassword(), typed);
            QCOMPARE(field->selectedText().size(), right ? 0 : typed.size());
            QVERIFY(!dialog.useEncryptPasswordNextTime());
        }
    }

    void passwordDialogDeletedBehindTheWarning()
    {
        auto* parent = new QWidget;
        auto* dialog = new PPasswordInputDialog(u"Secret"_s, parent);
        dialog->show();
        whenShown<QMessageBox>(this, [parent](QMessageBox&) { delete parent; });
        buttonOf(*dialog, QDialogButtonBox::Ok)->click();
    }

    void refresh()
    {
        const QString known =
            u"The last update of device information was on Sat Mar 30 07:15:00 2024"_s;
        const std::pair<QVariant, QString> cases[] = {
            {QDateTime(QDate(2024, 3, 30), QTime(7, 15)), known},
            {u"2024-03-30T07:15:00"_s, known},
            {{}, {}},
            {QDateTime(), {}},
            {u"<b>soon</b>"_s, {}}};
        for (const auto& [lastUpdate, sentence] : cases) {
            PAskRefreshDialog dialog(nullptr, lastUpdate, true);
            const auto* label = dialog.findChild<QLabel*>(u"labelRefresh"_s);
            QCOMPARE(label->text(), sentence);
            QCOMPARE(label->isHidden(), sentence.isEmpty());
            dialog.show();
            dialog.findChild<QCheckBox*>()->click();
            buttonOf(dialog, QDialogButtonBox::Cancel)->click();
            QVERIFY(!dialog.isVisible() && !dialog.ShowNextTime());
        }
    }
};

QTEST_MAIN(TestQuestions)
#include "tst_questions.moc"
