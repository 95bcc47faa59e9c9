// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/ImageHelper>

#include <QBuffer>
#include <QtEndian>

using CorvelGui::ImageHelper;

namespace {

constexpr quint32 hostileSide = 50'000;

QImage halves(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QPainter(&image).fillRect(0, 0, size.width() / 2, size.height(), Qt::red);
    return image;
}

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray data;
    QBuffer buffer(&data);
    image.save(&buffer, format);
    return data;
}

QByteArray bigEndian(quint32 number, int bytes)
{
    const quint32 value = qToBigEndian(number);
    return QByteArray(reinterpret_cast<const char*>(&value), 4).right(bytes);
}

/// With the checksum that belongs to it, so that nothing but the size is strange.
QByteArray pngThatSays(quint32 side)
{
    QByteArray png = encoded(halves({40, 30}), "PNG");
    png.replace(16, 8, bigEndian(side, 4) + bigEndian(side, 4));
    quint32 sum = ~0U;
    for (const char byte : png.mid(12, 17)) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xedb88320 : 0);
    }
    return png.replace(29, 4, bigEndian(~sum, 4));
}

QByteArray jpegThatSays(quint32 side)
{
    QByteArray jpeg = encoded(halves({40, 30}), "JPG");
    return jpeg.replace(jpeg.indexOf("\xff\xc0") + 5, 4, bigEndian(side, 2) + bigEndian(side, 2));
}

QByteArray bmpThatSays(quint32 side)
{
    const quint32 little = qToLittleEndian(side);
    const QByteArray number(reinterpret_cast<const char*>(&little), 4);
    return encoded(halves({40, 30}), "BMP").replace(18, 8, number + number);
}

QByteArray gif(char low, char high)
{
    const QByteArray side = QByteArray(1, low) + high;
    return "GIF89a" + side + side + QByteArray("\x80\0\0\xff\xff\xff\0\0\0,\0\0\0\0", 14) + side +
           side + QByteArray("\0\2\2D\1\0;", 7);
}

QString said(const ImageHelper::Picture& picture)
{
    const QSize size = picture.image.size();
    return picture.error.isEmpty()
               ? u"%1x%2"_s.arg(QString::number(size.width()), QString::number(size.height()))
               : picture.error;
}

} // namespace

class TestImageHelper : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(u"en_US"_s)); }

    void picturesAreReadWithinLimits_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("said");
        const QByteArray png = encoded(halves({40, 30}), "PNG");
        const QByteArray jpeg = encoded(halves({40, 30}), "JPG");
        const QByteArray bmp = encoded(halves({40, 30}), "BMP");
        QTest::newRow("PNG") << png << u"40x30"_s;
        QTest::newRow("JPEG") << jpeg << u"40x30"_s;
        QTest::newRow("BMP") << bmp << u"40x30"_s;
        QTest::newRow("GIF") << gif(1, 0) << u"1x1"_s;
        QTest::newRow("reduced") << encoded(halves({400, 300}), "JPG") << u"100x75"_s;
        // More than Qt would hold in memory.
        for (const char* format : {"JPG", "PNG"})
            QTest::addRow("large %s", format)
                << encoded(halves({9'000, 4'000}), format) << u"100x44"_s;
        // Taken with the camera turned: 400 pixels high.
        QTest::newRow("turned")
            << encoded(halves({400, 300}), "JPG")
                   .insert(
                       2, QByteArray("\xff\xe1\0\x22"
                                     "Exif\0\0II*\0\x8\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0\0\0\0\0",
                                     36))
            << u"75x100"_s;
        QTest::newRow("flat") << encoded(halves({900, 1}), "PNG") << u"100x1"_s;

        const QString none = u"This is not a picture that can be shown."_s;
        QTest::newRow("nothing") << QByteArray() << none;
        QTest::newRow("vector") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\"/>")
                                << none;
        const QString damaged = u"The picture is damaged or not complete."_s;
        for (const QByteArray& whole : {png, jpeg, bmp}) {
            QTest::addRow("half a %s", whole.mid(0, 4).toHex().constData())
                << whole.first(whole.size() / 2) << damaged;
        }
        QTest::newRow("begin of a GIF") << gif(1, 0).first(12) << damaged;
        QTest::newRow("begin of a BMP") << bmp.first(20) << damaged;
        QTest::newRow("BMP without the rest") << bmpThatSays(hostileSide) << damaged;
        QTest::newRow("BMP of no width") << bmpThatSays(0) << damaged;
        QTest::newRow("many scans")
            << jpeg.chopped(2) + QByteArray("\xff\xda").repeated(300) + "\xff\xd9" << damaged;
        const QString large = u"The picture is too large: 50,000 × 50,000 pixels."_s;
        QTest::newRow("enormous PNG") << pngThatSays(hostileSide) << large;
        QTest::newRow("enormous JPEG") << jpegThatSays(hostileSide) << large;
        QTest::newRow("enormous GIF") << gif('\x50', '\xc3') << large;
        const QByteArray small = gif(1, 0);
        QTest::newRow("GIF of a small picture on a large canvas")
            << QByteArray(small).replace(6, 4, QByteArray("\x2c\1\x2c\1", 4)) << u"100x100"_s;
        QTest::newRow("GIF of a small picture on an enormous canvas")
            << QByteArray(small).replace(6, 4, "\x50\xc3\x50\xc3") << large;
    }

    void picturesAreReadWithinLimits()
    {
        const QFETCH(QByteArray, data);
        const QFETCH(QString, said);
        QCOMPARE(::said(ImageHelper::read(data, {.size = {100, 100}})), said);
    }

    void filesAreReadWithinLimits()
    {
        const QTemporaryDir folder;
        const QByteArray png = encoded(halves({400, 300}), "PNG");
        const QString path = writeFile(folder.filePath(u"a.txt"_s), png);
        const ImageHelper::Picture picture =
            ImageHelper::readFile(path, {.bytes = png.size(), .size = {40, 40}});
        QCOMPARE(said(picture), u"40x30"_s);
        QCOMPARE(picture.fullSize, QSize(400, 300));
        QCOMPARE(picture.image.pixel(2, 2), QColor(Qt::red).rgb());
        QCOMPARE(said(ImageHelper::readFile(path, {.bytes = 64})),
                 u"The file is larger than 64 bytes."_s);
        QCOMPARE(said(ImageHelper::readFile(folder.path())), u"This is not a file."_s);
        QVERIFY(!ImageHelper::readFile(folder.filePath(u"none"_s)).error.isEmpty());
    }

    void imagesAreScaled()
    {
        const QImage image = halves({40, 20});
        const QImage scaled = ImageHelper::scaled(image, {20, 20}, 2);
        QCOMPARE(scaled.size(), QSize(40, 20));
        QCOMPARE(scaled.devicePixelRatio(), 2);
        QCOMPARE(ImageHelper::scaled(image, {20, 20}, 1, Qt::IgnoreAspectRatio).size(),
                 QSize(20, 20));
        QVERIFY(ImageHelper::scaled(image, {20'000, 20'000}, 1).isNull());
        QVERIFY(ImageHelper::scaled({}, {20, 20}, 1).isNull());
    }
};

QTEST_MAIN(TestImageHelper)
#include "tst_imagehelper.moc"
