// SPDX-License-Identifier: MIT
#include "scenes.h"
#include "sheet.h"
#include "testsupport.h"

#include <CorvelGui/PMainWindow>

#include <QFontDatabase>
#include <QLibraryInfo>

namespace {

using Draw = void (*)(Sheet&);

/// What a scene depends on.
enum class Ground {
    Look,      ///< the look: it is drawn in both
    Dark,      ///< nothing: what is on it is dark in both looks
    QtVersion, ///< the look, and boxes or pages that Qt 6.8 lays out in another way than Qt 6.4
};

struct Scene
{
    const char* name;
    Draw draw;
    Ground ground = Ground::Look;
};

constexpr Scene scenes[] = {{"icons", Scenes::icons},
                            {"colours", Scenes::colours},
                            {"controls", Scenes::controls, Ground::QtVersion},
                            {"ruler-zooms", Scenes::rulerZooms, Ground::Dark},
                            {"ruler-ranges", Scenes::rulerRanges, Ground::Dark},
                            {"ruler-states", Scenes::rulerStates, Ground::Dark},
                            {"markers", Scenes::markers, Ground::Dark},
                            {"lanes", Scenes::lanes, Ground::Dark},
                            {"overview", Scenes::overview},
                            {"playbar", Scenes::playbar, Ground::Dark},
                            {"sliders", Scenes::sliders},
                            {"dates", Scenes::dates, Ground::QtVersion},
                            {"line-edits", Scenes::lineEdits},
                            {"small-inputs", Scenes::smallInputs, Ground::QtVersion},
                            {"lists", Scenes::lists},
                            {"tabs", Scenes::tabs},
                            {"images", Scenes::images},
                            {"progress", Scenes::progress},
                            {"report", Scenes::report, Ground::QtVersion},
                            {"messages", Scenes::messages},
                            {"dialogs", Scenes::dialogs},
                            {"options", Scenes::options, Ground::QtVersion},
                            {"updates", Scenes::updates, Ground::QtVersion}};

const QString referenceFolder = QStringLiteral(REFERENCE_FOLDER);

/// Which share of the pixels of a tile may differ by more than what in any channel.
struct Tolerance
{
    int channel;
    double share;
};

/// Whether this Qt draws the very pixels of the references, each time and whatever the compiler
/// does.
bool isQtOfReferences()
{
#ifdef Q_PROCESSOR_X86_64
    return QLibraryInfo::version().minorVersion() == 4;
#else
    return false;
#endif
}

/// Other Qts smooth edges a little differently.
Tolerance tolerance()
{
    return isQtOfReferences() ? Tolerance{0, 0} : Tolerance{32, 0.01};
}

int distance(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

/// A sheet, and where it stands in the picture of all looks.
struct Look
{
    QString name;
    Sheet sheet;
    int left = 0;
};

QImage besideEachOther(std::vector<Look>& looks)
{
    QList<QImage> images;
    QSize size(0, 0);
    for (Look& look : looks) {
        look.left = size.width();
        images.append(look.sheet.image());
        size = {look.left + images.last().width(), std::max(size.height(), images.last().height())};
    }
    QImage all(size, QImage::Format_RGB32);
    all.fill(Sheet::ground);
    QPainter painter(&all);
    for (std::size_t i = 0; i < looks.size(); ++i)
        painter.drawImage(looks[i].left, 0, images[qsizetype(i)]);
    return all;
}

/// Which tiles of @p look differ, and how much. What differs becomes red in @p marked.
QStringList differences(const Look& look, const QImage& found, const QImage& wanted, QImage& marked)
{
    const auto [channel, share] = tolerance();
    QStringList faults;
    const QList<QRect> places = look.sheet.places();
    for (qsizetype i = 0; i < places.size(); ++i) {
        const QRect place = places[i].translated(look.left, 0);
        int count = 0;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (distance(found.pixel(x, y), wanted.pixel(x, y)) > channel) {
                    marked.setPixel(x, y, qRgb(255, 0, 0));
                    ++count;
                }
            }
        }
        if (count > share * place.width() * place.height())
            faults.append(
                u"%1 (%2): %3 pixels"_s.arg(look.sheet.tiles()[i].name, look.name).arg(count));
    }
    return faults;
}

} // namespace

Q_DECLARE_METATYPE(Scene)

/// Compares what the libraries draw with pictures that somebody has looked at, in the dark and the
/// light look. With CORVELGUI_RECORD_PICTURES=1 it writes those pictures.
class TestPictures : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Each pixel is of a letter or is not: such text is the same everywhere, and packs well.
        QFont font(u"DejaVu Sans"_s, 9);
        font.setHintingPreference(QFont::PreferFullHinting);
        font.setStyleStrategy(QFont::NoAntialias);
        QCOMPARE(QFontInfo(font).family(), u"DejaVu Sans"_s);
        QApplication::setFont(font);
        QApplication::setCursorFlashTime(0);
    }

    void pictures_data()
    {
        QTest::addColumn<Scene>("scene");
        for (const Scene& scene : scenes)
            QTest::newRow(scene.name) << scene;
    }

    void pictures()
    {
        QFETCH(Scene, scene);
        if (scene.ground == Ground::QtVersion && !isQtOfReferences())
            QSKIP("This Qt lays it out in another way.");
        const bool isDarkOnly = scene.ground == Ground::Dark;
        CorvelGui::PMainWindow window;
        std::vector<Look> looks;
        for (const bool isDark : {true, false}) {
            if (!isDark && isDarkOnly)
                break;
            window.createDarkFusionStyle(isDark);
            Look look{.name = isDark ? u"dark"_s : u"light"_s,
                      .sheet = Sheet(isDarkOnly ? 960 : 480)};
            scene.draw(look.sheet);
            looks.push_back(look);
        }
        const QImage found = besideEachOther(looks);

        const QString file = QString::fromLatin1(scene.name) + u".png"_s;
        if (qEnvironmentVariableIntValue("CORVELGUI_RECORD_PICTURES")) {
            QVERIFY(found.save(referenceFolder + file, "PNG", 0));
            return;
        }
        const QImage wanted(referenceFolder + file);
        QStringList faults;
        QImage marked = found;
        if (wanted.size() != found.size())
            faults.append(u"another size"_s);
        else
            for (const Look& look : looks)
                faults += differences(look, found, wanted, marked);
        if (faults.isEmpty())
            return;
        const QString folder = QCoreApplication::applicationDirPath() + u"/pictures/"_s;
        QDir().mkpath(folder);
        found.save(folder + file);
        marked.save(folder + u"difference-"_s + file);
        QFAIL(qPrintable(faults.join(u"; "_s) + u". See "_s + folder + u"*"_s + file));
    }
};

int main(int argc, char* argv[])
{
    // What the system and the user have chosen changes no picture.
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "Europe/Brussels");
    qunsetenv("QT_SCALE_FACTOR");
    QApplication application(argc, argv);
    TestPictures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pictures.moc"
