#include "colormetrics.h"
#include "testsupport.h"

#include <Hueloft/POrvGuiTheme>

#include <CorvelGui/PBaseDialog>

#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

class TestIconBundle : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void isComplete_data();
    void isComplete();
};

void TestIconBundle::isComplete_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"zoomout", "new", "save", "open", "fit", "binoculars", "rightarrow",
                             "zoomin", "leftarrow", "saveas", "copy", "onetoone", "paste"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestIconBundle::isComplete()
{
    // Keeps a linker that drops unused libraries from dropping the one with the resources.
    const CorvelGui::PBaseDialog dialog;

    QFETCH(const QString, name);
    const QImage image(u":/CorvelGui/common/%1.png"_s.arg(name));
    QCOMPARE(image.size(), QSize(32, 32));
    QCOMPARE(QImage(u":/CorvelGui/common/%1@2x.png"_s.arg(name)).size(), QSize(64, 64));

    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 255)
                continue;
            ++inked;
            QVERIFY(contrast(pixel, Hueloft::POrvGuiTheme::colorShark) >= 3);
            QVERIFY(contrast(pixel, Qt::white) >= 3);
        }
    }
    QVERIFY2(inked > 50, "too thin to be seen at half the size");
}

QTEST_MAIN(TestIconBundle)
#include "tst_iconbundle.moc"
