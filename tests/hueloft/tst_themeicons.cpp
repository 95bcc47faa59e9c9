#include "colormetrics.h"
#include "testsupport.h"

#include <Hueloft/PIconHelper16x16>
#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>
#include <Hueloft/PPlayerIconHelper>
#include <Hueloft/PTarvoPlayerIconHelper>

#include <QBitmap>
#include <QSet>

using namespace Hueloft;

namespace {

enum class Ground { Look, Any, Dark };

QImage picture(const QIcon& icon, int side, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(side, side), 1.0, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

// All pixels, row by row.
QList<QRgb> pixels(const QImage& image)
{
    const auto* first = reinterpret_cast<const QRgb*>(image.constBits());
    return QList<QRgb>(first, first + image.width() * image.height());
}

// The most frequent opaque colour; the rim of outlined icons does not count.
QColor inkOf(const QImage& image)
{
    QHash<QRgb, int> counts;
    QRgb ink = 0;
    for (const QRgb pixel : pixels(image)) {
        if (qAlpha(pixel) > 100 && pixel != qRgb(16, 18, 20) && ++counts[pixel] > counts.value(ink))
            ink = pixel;
    }
    return QColor::fromRgb(ink);
}

using Player = PTarvoPlayerIconHelper;

constexpr QIcon (*playerIcons[])() = {
    Player::GetPlay_32x32,        Player::GetPlayReverse_32x32, Player::GetPause_32x32,
    Player::GetFastForward_32x32, Player::GetFastRewind_32x32,  Player::GetStartSingle_32x32,
    Player::GetEndSingle_32x32,   Player::GetStartDouble_32x32, Player::GetEndDoubleIcon_32x32};

} // namespace

class TestThemeIcons : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void drawsOnItsGround()
    {
        using Icons = PIconHelper;
        QList<std::tuple<const char*, QIcon, int, Ground>> icons{
            {"marker", Icons::GetMarkerOutlined_48x48(true), 48, Ground::Dark},
            {"marker, neutral", Icons::GetMarkerOutlined_48x48(false), 48, Ground::Any},
            {"merged", Icons::GetMergerd_48x48(true), 48, Ground::Dark},
            {"plus", Icons::GetPlusIcon_32x32(true), 32, Ground::Look},
            {"minus", Icons::GetMinusIcon_32x32(true), 32, Ground::Look},
            {"copy", Icons::GetCopyIcon_32x32(true), 32, Ground::Look},
            {"copy rows", Icons::GetCopyRowsIcon_32x32(true), 32, Ground::Look},
            {"open", Icons::GetOpenIcon_32x32(true), 32, Ground::Look},
            {"refresh", Icons::GetRefreshIcon_256x256(true), 256, Ground::Look},
            {"settings", Icons::GetSettingsIconOriginal_32x32(true), 32, Ground::Look},
            {"settings, neutral", Icons::GetSettingsIconOriginal_32x32(false), 32, Ground::Any},
            {"close tab", PIconHelper16x16::GetTabCloseIcon(), 16, Ground::Look},
            {"visible", PIconHelper16x16::GetVisibleIcon(), 16, Ground::Look},
            {"invisible", PIconHelper16x16::GetInVisibleIcon(), 16, Ground::Look},
            {"date and time", PPlayerIconHelper::GetDateTimeIcon_32x32(false), 32, Ground::Any}};
        for (const auto& make : playerIcons)
            icons.append({"player", make(), 32, Ground::Dark});
        for (const auto& [name, icon, nominalSize, ground] : std::as_const(icons)) {
            QCOMPARE(icon.availableSizes().constFirst(), QSize(nominalSize, nominalSize));
            QCOMPARE(icon.pixmap(QSize(40, 20), 1.0).size(), QSize(20, 20));
            for (const int side : {16, 33, 1000}) {
                const QImage image = picture(icon, side);
                QCOMPARE(image.size(), QSize(side, side));
                const QRect drawn =
                    QRegion(QBitmap::fromImage(image.createAlphaMask())).boundingRect();
                QVERIFY2(drawn.height() >= side / 8 && drawn.width() >= side / 3, name);
                const bool isCut = !image.rect().adjusted(1, 1, -1, -1).contains(drawn);
                QVERIFY2(side < 1000 || !isCut, name);
            }

            // Painted again after the look has changed.
            QHash<bool, QColor> inks;
            for (const bool dark : {true, false}) {
                POrvGuiTheme::bPantherTheme = dark;
                const QColor surface = dark || ground == Ground::Dark ? POrvGuiTheme::colorShark
                                                                      : QColor(239, 239, 239);
                QSet<QRgb> modeInks;
                for (const QIcon::Mode mode :
                     {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected})
                    modeInks << inkOf(picture(icon, 64, mode)).rgba();
                QVERIFY2(modeInks.size() >= 3, name);
                inks[dark] = inkOf(picture(icon, 64));
                QVERIFY2(contrast(inks[dark], surface) >= 3, name);
                QVERIFY2(contrast(inkOf(picture(icon, 64, QIcon::Active)), surface) >= 3, name);
            }
            QVERIFY2((inks[true] != inks[false]) == (ground == Ground::Look), name);
        }
    }

    void playerIconsDiffer()
    {
        QList<QImage> pictures;
        for (const auto& make : playerIcons) {
            const QImage image = picture(make(), 64);
            QVERIFY(!pictures.contains(image));
            pictures.append(image);
        }
        QVERIFY2(qAlpha(pictures[0].pixel(50, 10)) == 0 && qAlpha(pictures[1].pixel(13, 10)) == 0,
                 "play points to the right, reverse to the left");
    }

    void straightEdgesAreCrisp()
    {
        for (const QIcon& icon :
             {PIconHelper::GetPlusIcon_32x32(true), PTarvoPlayerIconHelper::GetPause_32x32(),
              PIconHelper::GetCopyIcon_32x32(true), PIconHelper::GetCopyRowsIcon_32x32(true)}) {
            for (const int side : {12, 16, 20, 24, 32, 48})
                QVERIFY(std::ranges::all_of(pixels(picture(icon, side)),
                                            [](QRgb pixel) { return qAlpha(pixel) % 255 == 0; }));
        }
    }

    void paintsInDevicePixels()
    {
        const QIcon icon = PIconHelper::GetCopyIcon_32x32(true);
        QImage screen(80, 80, QImage::Format_ARGB32);
        screen.fill(Qt::transparent);
        screen.setDevicePixelRatio(2);
        QPainter painter(&screen);
        icon.paint(&painter, QRect(5, 7, 20, 20));
        painter.end();
        screen.setDevicePixelRatio(1);
        QCOMPARE(screen.copy(10, 14, 40, 40), picture(icon, 40));
    }

    void addedPixmapReplacesOneMode()
    {
        const QIcon original = PTarvoPlayerIconHelper::GetPlay_32x32();
        QIcon hovered = original;
        hovered.addPixmap(original.pixmap(QSize(1000, 1000), 1.0, QIcon::Active), QIcon::Normal);
        const QColor active = inkOf(picture(original, 24, QIcon::Active));
        QCOMPARE(inkOf(picture(hovered, 24)), active);
        QVERIFY(inkOf(picture(original, 24)) != active);
        QCOMPARE(picture(hovered, 24, QIcon::Disabled), picture(original, 24, QIcon::Disabled));
    }

    void lockFollowsLook()
    {
        POrvGuiTheme::bPantherTheme = true;
        const QImage dark = PIconHelper::GetLockImage_32x32();
        QCOMPARE(dark.size(), QSize(32, 32));
        POrvGuiTheme::bPantherTheme = false;
        const QImage light = PIconHelper::GetLockImage_32x32();
        QVERIFY(inkOf(dark) != inkOf(light));
        QCOMPARE(dark.createAlphaMask(), light.createAlphaMask());
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
