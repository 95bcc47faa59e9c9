// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/CheckDirLineEdit>
#include <CorvelGui/CheckFileNameLineEdit>
#include <CorvelGui/CountryCodeLineEdit>
#include <CorvelGui/InputLengthLineEdit>
#include <CorvelGui/IpLineEdit>
#include <CorvelGui/NotEmptyLineEdit>
#include <CorvelGui/PFileCheckLineEdit>
#include <CorvelGui/PIpLineEdit>
#include <CorvelGui/PMainWindow>
#include <CorvelGui/UrlLineEdit>
#include <Hueloft/POrvGuiTheme>

using namespace CorvelGui;

namespace {

constexpr int aMegabyte = 1'000'000;

bool isRed(const QLineEdit& field)
{
    return field.styleSheet() == u"QLineEdit{background-color:#ff4d4d;}"_s;
}

void paste(QLineEdit& field, const QString& text)
{
    QApplication::clipboard()->setText(text);
    field.selectAll();
    QTest::keySequence(&field, QKeySequence::Paste);
}

using Create = ValidateBaseLineEdit* (*)();

template <typename Field>
ValidateBaseLineEdit* create()
{
    return new Field;
}

ValidateBaseLineEdit* createWithLength()
{
    auto* field = new InputLengthLineEdit;
    field->setInputLengthRange(3, 5);
    return field;
}

} // namespace

class TestValidatingLineEdits : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QFile(m_file).open(QIODevice::WriteOnly));
        QDir::setCurrent(m_dir.path());
    }

    void evaluation()
    {
        NotEmptyLineEdit field;
        QSignalSpy verdicts(&field, &ValidateBaseLineEdit::signalValidate);
        const auto taken = [&] {
            QString marks;
            for (; !verdicts.isEmpty(); verdicts.removeFirst())
                marks += verdicts.first().first().toBool() ? u'+' : u'-';
            return marks + (field.isValid() ? u" valid"_s : u" not"_s) +
                   (isRed(field) ? u" red"_s : QString());
        };
        QCOMPARE(taken(), u" valid"_s);
        field.show();
        QCOMPARE(taken(), u"- not red"_s);
        QTest::keyClicks(&field, u"ab"_s);
        QCOMPARE(taken(), u"++++ valid"_s);
        QTest::keySequence(&field, QKeySequence::Undo);
        QCOMPARE(taken(), u"-- not red"_s);
        paste(field, u"cd"_s);
        QCOMPARE(taken(), u"++ valid"_s);
        field.setText(u"e"_s);
        field.setText(u"e"_s);
        field.clear();
        QCOMPARE(taken(), u"+- not red"_s);
        field.hide();
        field.show();
        QCOMPARE(taken(), u"- not red"_s);
        field.Validate();
        QCOMPARE(taken(), u" not red"_s);
    }

    void switchingOff()
    {
        NotEmptyLineEdit field;
        field.show();
        QSignalSpy verdicts(&field, &ValidateBaseLineEdit::signalValidate);
        field.setValidationActive(false);
        QVERIFY(field.isValid() && isRed(field) && !field.validationActive());
        field.setText(u"a"_s);
        field.clear();
        field.hide();
        field.show();
        QVERIFY(field.isValid() && isRed(field));
        QCOMPARE(verdicts.size(), 0);
        for (int count = 1; count <= 2; ++count) {
            field.setValidationActive(true);
            QCOMPARE(verdicts.size(), count);
            QVERIFY(!field.isValid() && isRed(field));
        }
        // A verdict while validation is off is not shown.
        field.setValidationActive(false);
        field.Validate();
        QVERIFY(field.isValid() && !isRed(field));
    }

    void verdicts()
    {
        const QString folder = m_dir.path();
        const QString missing = m_dir.filePath(u"missing"_s);
        const QString null(QChar::Null);
        const QString longText(aMegabyte, u'a');
        const std::tuple<Create, QString, QString> rows[] = {
            {create<IpLineEdit>, u"|abc|192.168.1.1|1.2.3.4.|256.1.1.1|::g|"_s + longText,
             u"192.168.001.1|192.168.1|1| 1.2.3.4|::1|::ffff:1.2.3.4"_s},
            {create<CheckDirLineEdit>, folder + u'|' + folder + u"/|."_s,
             u'|' + m_file + u'|' + missing + u'|' + folder + null + u'|' + longText},
            {create<CheckFileNameLineEdit>, m_file + u"|a file.txt|"_s + folder,
             u'|' + missing + u'|' + m_file + null + u'|' + longText},
            {create<CountryCodeLineEdit>, u"DE|ZZ"_s,
             u"|de|D|DEU|D1|ÄÖ|DE |DE\n|\nDE|D"_s + null + u'|' + longText.toUpper()},
            {createWithLength, u"abc|äöüßé|   "_s, u"|ab|abcdef|"_s + longText},
            {create<NotEmptyLineEdit>, u" |"_s + null + u'|' + longText, u""_s},
            {create<UrlLineEdit>, u"rtsp://camera:8554/a|camera"_s,
             u"|mailto:a@b|a b|"_s + longText}};
        for (const auto& [create, accepted, refused] : rows) {
            const std::unique_ptr<ValidateBaseLineEdit> field(create());
            field->setMaxLength(2 * aMegabyte);
            const auto judge = [&](const QString& texts, bool valid, const QString& others) {
                for (const QString& text : texts.split(u'|')) {
                    // After a text of the other kind.
                    field->setText(others.section(u'|', 0, 0));
                    field->setText(text);
                    QVERIFY2(field->isValid() == valid && isRed(*field) != valid,
                             qPrintable(text.left(100)));
                }
            };
            judge(accepted, true, refused);
            judge(refused, false, accepted);
        }
    }

    void lengthRange()
    {
        InputLengthLineEdit field;
        field.show();
        QVERIFY(field.isValid());
        field.setText(u"abcd"_s);
        field.setInputLengthRange(3, 5);
        QVERIFY(!field.isValid() && isRed(field));
    }

    void urlParts()
    {
        UrlLineEdit field;
        QSignalSpy hosts(&field, &UrlLineEdit::signalHostValidate);
        for (const auto& [text, host, port] : {std::tuple(u""_s, u""_s, 0),
                                               {u"https://camera"_s, u"camera"_s, 443},
                                               {u"camera:x"_s, u""_s, 0}}) {
            field.setText(text);
            QCOMPARE(field.getHost(), host);
            QCOMPARE(field.getPort(), port);
        }
        QCOMPARE(hosts.size(), 0);
    }

    void typedAddress()
    {
        PIpLineEdit field;
        QVERIFY(isRed(field));
        QTest::keyClicks(&field, u"10.0.0"_s);
        QVERIFY(isRed(field));
        QTest::keyClicks(&field, u".1"_s);
        QVERIFY(!isRed(field));
        QTest::keySequence(&field, QKeySequence::Undo);
        QVERIFY(isRed(field));
        field.clear();
        QTest::keyClicks(&field, u"x256.255.01.0.-"_s);
        QCOMPARE(field.text(), u"25.255.01.0"_s);
        QVERIFY(!isRed(field));
        paste(field, u"1.2.3.4 "_s);
        QCOMPARE(field.text(), u"25.255.01.0"_s);
        for (const QString& text : {u"1.2.3"_s, u"1.2.3.256"_s, u"a"_s, QString(aMegabyte, u'1')}) {
            field.setText(text);
            QVERIFY2(isRed(field), qPrintable(text.left(100)));
        }
    }

    void checkedFile()
    {
        PFileCheckLineEdit field;
        const QPalette normal = field.palette();
        const auto base = [&] {
            return field.palette().color(QPalette::Base);
        };
        field.show();
        QCOMPARE(field.palette(), normal);
        for (const QString& text :
             {m_dir.path(), u"missing"_s, QString(QChar::Null), QString(aMegabyte, u'a'), u""_s}) {
            field.setText(m_file);
            QCOMPARE(field.palette(), normal);
            field.setText(text);
            QCOMPARE(base(), Hueloft::POrvGuiTheme::statusRed());
        }
        // A verdict follows the look.
        PMainWindow window;
        for (const bool dark : {true, false}) {
            window.createDarkFusionStyle(dark);
            QCOMPARE(base(), Hueloft::POrvGuiTheme::statusRed());
        }
        paste(field, u"a file.txt"_s);
        for (const bool dark : {true, false}) {
            window.createDarkFusionStyle(dark);
            QCOMPARE(base(), QApplication::palette().color(QPalette::Base));
        }
        qApp->setStyleSheet(QString());
    }

private:
    QTemporaryDir m_dir;
    QString m_file = m_dir.filePath(u"a file.txt"_s);
};

QTEST_MAIN(TestValidatingLineEdits)
#include "tst_validatinglineedits.moc"
