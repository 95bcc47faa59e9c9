#include "testsupport.h"

#include <CorvelGui/CheckDirLineEdit>
#include <CorvelGui/CheckFileNameLineEdit>
#include <CorvelGui/CountryCodeLineEdit>
#include <CorvelGui/FileNameValidatingLineEdit>
#include <CorvelGui/InputLengthLineEdit>
#include <CorvelGui/IpLineEdit>
#include <CorvelGui/NotEmptyLineEdit>
#include <CorvelGui/PFileCheckLineEdit>
#include <CorvelGui/PIpLineEdit>
#include <CorvelGui/PMainWindow>
#include <CorvelGui/UrlLineEdit>
#include <Hueloft/POrvGuiTheme>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>
#include <utility>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

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

bool canBeTyped(const QString& text)
{
    return text.size() < 100 && std::ranges::all_of(text, [](QChar character) {
               return character >= u' ' && character <= u'~';
           });
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
    void initTestCase();
    void evaluation();
    void switchingOff();
    void verdicts_data();
    void verdicts();
    void lengthRange();
    void urlParts();
    void typedAddress();
    void checkedFile();

private:
    QTemporaryDir m_dir;
    QString m_file = m_dir.filePath(u"a file.txt"_s);
};

void TestValidatingLineEdits::initTestCase()
{
    QVERIFY(QFile(m_file).open(QIODevice::WriteOnly));
    QDir::setCurrent(m_dir.path());
}

void TestValidatingLineEdits::evaluation()
{
    NotEmptyLineEdit field;
    QSignalSpy verdicts(&field, &ValidateBaseLineEdit::signalValidate);
    const auto taken = [&] {
        return std::exchange(static_cast<QList<QVariantList>&>(verdicts), {});
    };
    const QVariantList good{true};
    const QVariantList bad{false};
    using Signals = QList<QVariantList>;

    QVERIFY(field.isValid() && !isRed(field));
    field.show();
    QCOMPARE(taken(), Signals{bad});
    QVERIFY(!field.isValid() && isRed(field));
    QTest::keyClicks(&field, u"ab"_s);
    QCOMPARE(taken(), Signals({good, good, good, good}));
    QVERIFY(field.isValid() && !isRed(field));
    QTest::keySequence(&field, QKeySequence::Undo);
    QCOMPARE(taken(), Signals({bad, bad}));
    paste(field, u"cd"_s);
    QCOMPARE(taken(), Signals({good, good}));
    field.setText(u"e"_s);
    field.setText(u"e"_s);
    field.clear();
    QCOMPARE(taken(), Signals({good, bad}));
    field.hide();
    QCOMPARE(taken(), Signals());
    field.show();
    QCOMPARE(taken(), Signals{bad});
    field.Validate();
    QCOMPARE(taken(), Signals());
}

void TestValidatingLineEdits::switchingOff()
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

void TestValidatingLineEdits::verdicts_data()
{
    QTest::addColumn<Create>("create");
    QTest::addColumn<QStringList>("accepted");
    QTest::addColumn<QStringList>("refused");

    const QString folder = m_dir.path();
    const QString missing = m_dir.filePath(u"missing"_s);
    const QString null(QChar::Null);
    const QString longText(aMegabyte, u'a');
    const auto add = [](const char* name, Create create, const QString& accepted,
                        const QString& refused) {
        QTest::newRow(name) << create << accepted.split(u'|') << refused.split(u'|');
    };
    add("IpLineEdit", create<IpLineEdit>, u"|abc|192.168.1.1|1.2.3.4.|256.1.1.1|::g|"_s + longText,
        u"192.168.001.1|192.168.1|1| 1.2.3.4|::1|::ffff:1.2.3.4"_s);
    add("CheckDirLineEdit", create<CheckDirLineEdit>, folder + u'|' + folder + u"/|."_s,
        u'|' + m_file + u'|' + missing + u'|' + folder + null + u'|' + longText);
    add("CheckFileNameLineEdit", create<CheckFileNameLineEdit>, m_file + u"|a file.txt|"_s + folder,
        u'|' + missing + u'|' + m_file + null + u'|' + longText);
    add("CountryCodeLineEdit", create<CountryCodeLineEdit>, u"DE|ZZ"_s,
        u"|de|D|DEU|D1|ÄÖ|DE |DE\n|\nDE|D"_s + null + u'|' + longText.toUpper());
    add("InputLengthLineEdit", createWithLength, u"abc|äöüßé|   "_s, u"|ab|abcdef|"_s + longText);
    add("NotEmptyLineEdit", create<NotEmptyLineEdit>, u" |"_s + null + u'|' + longText, u""_s);
    add("UrlLineEdit", create<UrlLineEdit>, u"rtsp://camera:8554/a|camera"_s,
        u"|mailto:a@b|a b|"_s + longText);
    add("FileNameValidatingLineEdit", create<FileNameValidatingLineEdit>,
        QDir::toNativeSeparators(missing + u".csv"_s),
        u"|a.csv|"_s + missing + null + u'|' + longText);
}

// Each text arrives in each way, after a text of the other kind.
void TestValidatingLineEdits::verdicts()
{
    QFETCH(Create, create);
    QFETCH(QStringList, accepted);
    QFETCH(QStringList, refused);
    const std::unique_ptr<ValidateBaseLineEdit> field(create());
    field->setMaxLength(2 * aMegabyte);
    field->show();
    QElapsedTimer timer;
    timer.start();
    const auto judge = [&](const QStringList& texts, bool valid, const QString& other) {
        for (const QString& text : texts) {
            const auto judged = [&] {
                return field->isValid() == valid && isRed(*field) != valid;
            };
            const QByteArray shown = text.left(100).toUtf8();
            field->setText(text);
            QVERIFY2(judged(), shown.constData());
            field->setText(other);
            QVERIFY2(!judged(), shown.constData());
            paste(*field, text);
            if (field->text() != text)
                continue; // the clipboard is free to change what no keyboard has
            QVERIFY2(judged(), shown.constData());
            QTest::keySequence(field.get(), QKeySequence::Undo);
            if (!text.isEmpty())
                QVERIFY2(!judged(), shown.constData());
            field->clear();
            if (canBeTyped(text)) {
                QTest::keyClicks(field.get(), text);
                QVERIFY2(judged(), shown.constData());
            }
        }
    };
    judge(accepted, true, refused.last().left(100));
    judge(refused, false, accepted.first());
    QVERIFY2(timer.elapsed() < 30'000, "a long text takes too long");
}

void TestValidatingLineEdits::lengthRange()
{
    InputLengthLineEdit field;
    field.show();
    QVERIFY(field.isValid());
    field.setText(u"abcd"_s);
    field.setInputLengthRange(3, 5);
    QVERIFY(!field.isValid() && isRed(field));
}

void TestValidatingLineEdits::urlParts()
{
    UrlLineEdit field;
    QSignalSpy hosts(&field, &UrlLineEdit::signalHostValidate);
    const auto parts = [&] {
        return field.getHost() + u' ' + QString::number(field.getPort());
    };
    QCOMPARE(parts(), u" 0"_s);
    field.setText(u"https://camera"_s);
    QCOMPARE(parts(), u"camera 443"_s);
    field.setText(u"camera:x"_s);
    QCOMPARE(parts(), u" 0"_s);
    QCOMPARE(hosts.size(), 0);
}

void TestValidatingLineEdits::typedAddress()
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

void TestValidatingLineEdits::checkedFile()
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

QTEST_MAIN(TestValidatingLineEdits)
#include "tst_validatinglineedits.moc"
