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
    void isComplete();
};

void TestIconBundle::isComplete()
{
    // Keeps a linker that drops unused libraries from dropping the one with the resources.
    const CorvelGui::PBaseDialog dialog;

    for (const char* name : {"zoomout", "new", "save", "open", "fit", "binoculars", "rightarrow",
                             "zoomin", "leftarrow", "saveas", "copy", "onetoone", "paste"}) {
        const QString path = u":/CorvelGui/common/"_s + QLatin1StringView(name);
        const QImage image(path + u".png"_s);
        QVERIFY2(image.size() == QSize(32, 32), name);
        QVERIFY2(QImage(path + u"@2x.png"_s).size() == QSize(64, 64), name);

        int inked = 0;
        for (int pixel = 0; pixel < 32 * 32; ++pixel) {
            const QColor color = image.pixelColor(pixel % 32, pixel / 32);
            if (color.alpha() < 255)
                continue;
            ++inked;
            QVERIFY2(contrast(color, Hueloft::POrvGuiTheme::colorShark) >= 3, name);
            QVERIFY2(contrast(color, Qt::white) >= 3, name);
        }
        QVERIFY2(inked > 50, "too thin to be seen at half the size");
    }
}

QTEST_MAIN(TestIconBundle)
#include "tst_iconbundle.moc"
