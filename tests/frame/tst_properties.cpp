// SPDX-License-Identifier: MIT
#include "testsupport.h"
#include "widgets.h"

#include <Corvel/CheckAppUpdate>
#include <Corvel/FileDownloader>
#include <Corvel/ProxyNetworkAccessManager>
#include <CorvelGui/AboutInfo7>
#include <CorvelGui/BusyIndicator>
#include <CorvelGui/ImageFromRequestDescriptor>
#include <CorvelGui/Indicator>
#include <CorvelGui/Info3rdLicences>
#include <CorvelGui/PCheckVersionUpdate>
#include <CorvelGui/PColorComboBox>
#include <CorvelGui/PCsvDialog>
#include <CorvelGui/PDateEdit>
#include <CorvelGui/PDateTimeSelectionDialog>
#include <CorvelGui/PFilterButton>
#include <CorvelGui/PLastActionToolButton>
#include <CorvelGui/PPlaybar>
#include <CorvelGui/PRowFilterModel>
#include <CorvelGui/PSlider>
#include <CorvelGui/PStringComboBox>
#include <CorvelGui/RSSFeedDialog>
#include <CorvelGui/RangeSlider>
#include <CorvelGui/Ruler>
#include <CorvelGui/TarvoToolButton>
#include <CorvelGui/TaskbarProgress>
#include <CorvelGui/TextCursor>
#include <CorvelGui/TimelineLanes>
#include <CorvelGui/VideoSlider>
#include <CorvelGui/ZoomTimeline>
#include <CorvelGui/Zoomer>

#include <Hueloft/POrvGuiTheme>

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QMetaProperty>
#include <QPageLayout>
#include <QWindow>

using namespace CorvelGui;

namespace {

using Made = std::shared_ptr<QObject>;

template <typename T>
Made made()
{
    return std::make_unique<T>();
}

template <typename T>
Made madeAnd(const std::function<void(T&)>& prepare)
{
    auto object = std::make_unique<T>();
    prepare(*object);
    return Made(std::move(object));
}

/// Classes that need something before they take any value, and those that stand in no form.
const QList<std::function<Made()>> preparedClasses{
    made<AboutInfo7>,
    made<BusyIndicator>,
    [] { return std::make_unique<Corvel::CheckAppUpdate>(QString()); },
    made<Corvel::FileDownloader>,
    made<Corvel::ProxyNetworkAccessManager>,
    made<ImageFromRequestDescriptor>,
    made<Indicator>,
    [] {
        return madeAnd<Info3rdLicences>([](auto& licences) {
            licences.setComponents({{.name = u"a"_s}, {.name = u"other"_s}});
        });
    },
    [] {
        return std::make_unique<PCheckVersionUpdate>(nullptr, u"1"_s, QString(), QString(), false);
    },
    [] { return madeAnd<PColorComboBox>([](auto& box) { box.addThemeColors(); }); },
    [] { return madeAnd<PDateEdit>([](auto& edit) { edit.setEmptyAllowed(true); }); },
    made<PCsvDialog>,
    made<PDateTimeSelectionDialog>,
    [] {
        return madeAnd<PFilterButton>([](auto& button) { button.setFilters({{u"other"_s, {}}}); });
    },
    [] {
        return madeAnd<PLastActionToolButton>([](auto& button) {
            for (const QString& name : {u"first"_s, u"other"_s})
                button.menu()->addAction(name)->setObjectName(name);
        });
    },
    [] {
        return madeAnd<PPlaybar>([](auto& bar) { bar.setPlaybackState(PPlaybar::FastForward); });
    },
    made<PRowFilterModel>,
    [] {
        return madeAnd<PStringComboBox>([](auto& box) {
            box.setEntries({{u"a"_s, {}}, {u"other"_s, {}}});
        });
    },
    made<RSSFeedDialog>,
    [] { return madeAnd<RangeSlider>([](auto& slider) { slider.setValues(10, 20); }); },
    [] {
        return madeAnd<Ruler>(
            [](auto& ruler) { ruler.setTimeLimits(1'000'000'000, 2'000'000'000); });
    },
    made<TaskbarProgress>,
    made<TextCursor>,
    [] {
        auto* ruler = new Ruler;
        auto lanes = std::make_unique<TimelineLanes>(ruler);
        ruler->setParent(lanes.get());
        return lanes;
    },
    [] { return madeAnd<VideoSlider>([](auto& slider) { slider.setDuration(1000); }); },
    [] {
        return madeAnd<ZoomTimeline>(
            [](auto& timeline) { timeline.setTimeLimits(1'000'000'000, 2'000'000'000); });
    },
    [] { return std::make_unique<Zoomer>(8); },
};

/// What makes one of each class with properties.
QList<std::function<Made()>> allClasses()
{
    QList<std::function<Made()>> all = preparedClasses;
    QSet<QString> names;
    for (const auto& make : preparedClasses)
        names.insert(QString::fromLatin1(make()->metaObject()->className()));
    for (const FormWidget& widget : formWidgets()) {
        if (!names.contains(QString::fromLatin1(widget.meta->className())))
            all.append([create = widget.create] { return Made(create(nullptr)); });
    }
    return all;
}

/// Setters of one argument that set no property, and why not.
const QHash<QString, QStringList> actions{
    {u"functions"_s,
     {u"prowfiltermodel setFilter"_s, u"prowfiltermodel setComparison"_s, u"pslider setValueText"_s,
      u"rangeslider setValueText"_s, u"videoslider setPositionText"_s}},
    {u"what is shown, in structures"_s,
     {u"info3rdlicences setComponents"_s, u"pfilterbutton setFilters"_s,
      u"pstringcombobox setEntries"_s, u"videoslider setMarks"_s, u"ruler setTrackDescriptions"_s,
      u"proxysettingswidget setSettings"_s, u"imagefromrequestdescriptor setLimits"_s}},
    {u"of others"_s,
     {u"plineeditdelegate setValidator"_s, u"proxysettingswidget setPasswordStore"_s,
      u"fancylineedit setSpecialCompleter"_s}},
    {u"for one time, or answered otherwise"_s,
     {u"busyindicator setDelay"_s, u"piprangedialog setMask"_s, u"pchangelogdialog setHtml"_s,
      u"zoomgraphicsview setVisibleRect"_s, u"ruler setSelectedRangeBegin"_s,
      u"ruler setSelectedRangeEnd"_s, u"zoomtimeline setZoomerEnabled"_s}},
    {u"the ruler's"_s,
     {u"rulermarkerbutton setMerge"_s, u"rulermarkerbutton setBadge"_s,
      u"rulermarkerbutton setHovered"_s, u"rulermarkerbutton setAlternativeHover"_s,
      u"rulermarkerbutton setOrvaneGuiTheme"_s}},
};

/// Properties whose signals are for what the user does.
const QStringList usersOnly{u"playbackState"_s, u"playbackSpeed"_s, u"level"_s, u"centerPosition"_s,
                            u"indicatorMSecs"_s};

bool isOurs(const QMetaObject* meta)
{
    const QByteArray name = meta->className();
    return name.startsWith("Corvel") || name == "PTabWidget";
}

/// Another value than @p value that every property of the type takes.
QVariant otherValue(const QMetaProperty& property, const QVariant& value, QObject* object)
{
    const QByteArray what = property.name();
    if (property.isEnumType()) {
        const QMetaEnum codes = property.enumerator();
        QVariant other = codes.value(value.toInt() == codes.value(0) ? 1 : 0);
        if (what == "playbackSpeed")
            other = PPlaybar::Speed4; // while something is played fast
        other.convert(property.metaType());
        return other;
    }
    if (what == "timeZone" && property.typeId() == QMetaType::QString)
        return u"Asia/Tokyo"_s;
    const QByteArray type = property.typeName();
    const QHash<QByteArray, QVariant> values{
        {"QString", u"other"_s},
        {"QStringList", QStringList(u"other"_s)},
        {"QColor", QVariant::fromValue(QColor(Hueloft::POrvGuiTheme::colorGreen))},
        {"QSize", QSize(30, 31)},
        {"QUrl", QUrl(u"http://127.0.0.1:9/"_s)},
        {"QDate", QDate(2020, 2, 2)},
        {"QDateTime", QDateTime(QDate(2020, 2, 2), QTime(1, 2, 3))},
        {"QTimeZone", QVariant::fromValue(QTimeZone("Asia/Tokyo"))},
        {"QImage", QImage(8, 8, QImage::Format_RGB32)},
        {"QPixmap", QPixmap(8, 8)},
        {"QIcon", QIcon(QPixmap(8, 8))},
        {"QPageLayout", QVariant::fromValue(QPageLayout(QPageSize(QPageSize::A6),
                                                        QPageLayout::Landscape, QMarginsF()))},
        {"QAction*", QVariant::fromValue(object->findChild<QAction*>(u"other"_s))},
        {"Qt::Alignment", int(Qt::AlignRight)},
        {QMetaType::fromType<std::chrono::milliseconds>().name(),
         QVariant::fromValue(std::chrono::milliseconds(30))},
        {"Corvel::RequestLimits", QVariant::fromValue(Corvel::RequestLimits{.size = 30})},
        {"CorvelGui::TimeSpan", QVariant::fromValue(TimeSpan{1'200'000'000, 1'300'000'000})},
        {"QMap<int,QString>", QVariant::fromValue(PSlider::TickTexts{{1, {}}})},
    };
    if (type == "QWindow*") {
        auto* window = new QWindow;
        QObject::connect(object, &QObject::destroyed, window, [window] { delete window; });
        return QVariant::fromValue(window);
    }
    if (values.contains(type))
        return values.value(type);
    if (type == "bool")
        return !value.toBool();
    QVariant next = value.toDouble() + 1;
    return next.convert(value.metaType()) ? next : QVariant();
}

bool isSame(const QVariant& a, const QVariant& b)
{
    if (a.typeId() == QMetaType::QPixmap)
        return a.value<QPixmap>().cacheKey() == b.value<QPixmap>().cacheKey();
    if (a.typeId() == QMetaType::QIcon)
        return a.value<QIcon>().cacheKey() == b.value<QIcon>().cacheKey();
    return a == b;
}

QString read(const QString& path)
{
    QFile file(QStringLiteral(SOURCES) + u'/' + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TestProperties : public WarningFreeTest
{
    Q_OBJECT

public Q_SLOTS:
    void note() { m_noted.append(m_property.read(sender())); }

private Q_SLOTS:
    void whatIsWrittenIsRead_data()
    {
        QTest::addColumn<std::function<Made()>>("make");
        for (const auto& make : allClasses())
            QTest::newRow(make()->metaObject()->className()) << make;
    }

    void whatIsWrittenIsRead()
    {
        QFETCH(const std::function<Made()>, make);
        const QMetaObject* meta = make()->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (!property.isWritable() || !isOurs(property.enclosingMetaObject()))
                continue;
            const Made object = make();
            const QVariant before = property.read(object.get());
            const QVariant value = otherValue(property, before, object.get());
            const std::string what = std::string(property.typeName()) + ' ' + property.name();
            QVERIFY2(value.isValid() && !isSame(value, before), what.c_str());

            m_property = property;
            m_noted.clear();
            std::optional<QSignalSpy> changes;
            if (property.hasNotifySignal()) {
                changes.emplace(object.get(), property.notifySignal());
                connect(object.get(), property.notifySignal(), this,
                        metaObject()->method(metaObject()->indexOfSlot("note()")));
            }
            for (int time = 0; time < 2; ++time) {
                QVERIFY2(property.write(object.get(), value), what.c_str());
                QVERIFY2(isSame(property.read(object.get()), value), what.c_str());
            }
            const bool isTold = changes && !usersOnly.contains(QLatin1StringView(property.name()));
            QVERIFY2(m_noted.size() == (isTold ? 1 : 0), what.c_str());
            QVERIFY2(!isTold || isSame(m_noted.first(), value), what.c_str());
            QVERIFY2(!isTold || !property.isStored() || changes->first().isEmpty() ||
                         changes->first().contains(value),
                     what.c_str());
        }
    }

    /// A form sets an icon by the property; the button must take it for its normal one.
    void iconOfAFormIsTheNormalOne()
    {
        TarvoToolButton button;
        const QIcon icon(QPixmap(8, 8));
        button.setProperty("icon", icon);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&button, &leave);
        QCOMPARE(button.icon().cacheKey(), icon.cacheKey());
    }

    void everySetterHasAProperty()
    {
        QStringList tried;
        for (const auto& make : allClasses()) {
            const Made object = make();
            for (const QMetaObject* meta = object->metaObject(); meta; meta = meta->superClass())
                tried.append(QString::fromLatin1(meta->className()).section(u"::"_s, -1).toLower());
        }
        QStringList known;
        for (const QStringList& setters : actions)
            known.append(setters);
        const QRegularExpression setter(u"void (set\\w+)\\([^,()]+\\)(?! override)"_s);
        const QRegularExpression hidden(
            u"\n(protected|private)( Q_SLOTS)?:.*?(?=\npublic|\nQ_SIGNALS|\n};)"_s,
            QRegularExpression::DotMatchesEverythingOption);
        QStringList missing;
        int count = 0;
        const QString list = read(u"cmake/PublicHeaders.cmake"_s);
        for (const QString& entry : list.split(QRegularExpression(u"[\\s)]+"_s))) {
            const QString name = entry.section(u'/', -1).toLower();
            QString text;
            for (const QString& folder :
                 {u"src/"_s + entry.section(u'/', 0, 0), u"companions/corvel"_s})
                text += read(folder + u'/' + name + u".h"_s);
            if (!text.contains("Q_OBJECT"_L1))
                continue;
            ++count;
            if (text.contains("WRITE"_L1) && !tried.contains(name))
                missing.append(name);
            text.remove(hidden);
            for (auto match = setter.globalMatch(text); match.hasNext();) {
                const QString function = match.next().captured(1);
                if (!text.contains(QRegularExpression(u"WRITE\\s+"_s + function + u"\\b"_s)) &&
                    !known.removeOne(name + u' ' + function))
                    missing.append(name + u' ' + function);
            }
        }
        QVERIFY(count > 60);
        QCOMPARE(missing.join(u", "_s), QString());
        QCOMPARE(known.join(u", "_s), QString());
    }

private:
    QMetaProperty m_property;
    QVariantList m_noted;
};

QTEST_MAIN(TestProperties)
#include "tst_properties.moc"
