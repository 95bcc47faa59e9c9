// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>
#include <Hueloft/PTarvoPlayerIconHelper>

using namespace Hueloft;

namespace {

QImage picture(const QIcon& icon, int side, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(side, side), 1.0, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class TestThemeIcons : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void iconsFollowTheLook()
    {
        const QIcon icon = PIconHelper::GetCopyIcon_32x32(true);
        QCOMPARE(icon.availableSizes().constFirst(), QSize(32, 32));
        QCOMPARE(icon.pixmap(QSize(40, 20), 1.0).size(), QSize(20, 20));
        POrvGuiTheme::bPantherTheme = true;
        const QImage dark = picture(icon, 64);
        POrvGuiTheme::bPantherTheme = false;
        QVERIFY(picture(icon, 64) != dark);
    }

    void addedPixmapReplacesOneMode()
    {
        const QIcon original = PTarvoPlayerIconHelper::GetPlay_32x32();
        QIcon hovered = original;
        hovered.addPixmap(original.pixmap(QSize(24, 24), 1.0, QIcon::Active), QIcon::Normal);
        QCOMPARE(picture(hovered, 24), picture(original, 24, QIcon::Active));
        QVERIFY(picture(hovered, 24) != picture(original, 24));
        QCOMPARE(picture(hovered, 24, QIcon::Disabled), picture(original, 24, QIcon::Disabled));
    }

    void iconFromImage()
    {
        QTemporaryDir folder;
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(QColor(40, 120, 200));
        const QString path = folder.filePath(u"blue.png"_s);
        QVERIFY(image.save(path));
        image.fill(QColor(200, 120, 40));
        QVERIFY(image.scaled(32, 32).save(folder.filePath(u"blue@2x.png"_s)));

        const QIcon icon = PIconHelperBase::GetIcon(path, true);
        QCOMPARE(picture(icon, 16).pixelColor(8, 8), QColor(40, 120, 200));
        QCOMPARE(icon.pixmap(QSize(16, 16), 2.0).toImage().pixelColor(8, 8), QColor(200, 120, 40));
        const QColor disabled = picture(icon, 16, QIcon::Disabled).pixelColor(8, 8);
        QVERIFY(disabled.hsvSaturation() == 0 && disabled.alpha() < 255);
        QVERIFY(picture(icon, 16, QIcon::Active).pixelColor(8, 8).lightness() >
                QColor(40, 120, 200).lightness());

        const QIcon plain = PIconHelperBase::GetIcon(path, false);
        QCOMPARE(picture(plain, 16, QIcon::Active), picture(plain, 16));

        QVERIFY(PIconHelperBase::GetIcon(folder.filePath(u"none.png"_s), true).isNull());
        QVERIFY(PIconHelperBase::GetIcon(QString(), false).isNull());
    }
};

QTEST_MAIN(TestThemeIcons)
#include "tst_themeicons.moc"
