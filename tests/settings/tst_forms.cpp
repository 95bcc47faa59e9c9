// SPDX-License-Identifier: MIT
#include "testsupport.h"
#include "visibletexts.h"
#include "widgets.h"

#include <CorvelGui/AboutInfo7>
#include <CorvelGui/AppUpdaterDialog>
#include <CorvelGui/BusyIndicator>
#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/Info3rdLicences>
#include <CorvelGui/OptionsDialog>
#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PChangeLogDialog>
#include <CorvelGui/PCheckVersionUpdateDialog>
#include <CorvelGui/PColorButton>
#include <CorvelGui/PColorComboBox>
#include <CorvelGui/PCsvDialog>
#include <CorvelGui/PFilterButton>
#include <CorvelGui/PInputDateTimeWithRange>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PLanguage>
#include <CorvelGui/PLanguageDialog>
#include <CorvelGui/PPasswordInputDialog>
#include <CorvelGui/PPlaybar>
#include <CorvelGui/PRecentComboBox>
#include <CorvelGui/PSystemInfoWidget>
#include <CorvelGui/PTreeWidget>
#include <CorvelGui/ProxySettingsWidget>
#include <CorvelGui/RSSFeedDialog>
#include <CorvelGui/TarvoDateTimeView>
#include <CorvelGui/ZoomTimeline>

#include <QDateTimeEdit>
#include <QGroupBox>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVersionNumber>

using namespace CorvelGui;

namespace {

using Maker = std::function<QWidget*()>;

template <typename... Widgets>
QList<Maker> makersOf()
{
    return {[] {
        return new Widgets;
    }...};
}

/// Of the widgets that have texts of their own.
QList<Maker> translated()
{
    const QVersionNumber version(1);
    const QDateTime time({2026, 3, 1}, {12, 0}, Qt::UTC);
    const auto colors = [] {
        auto* box = new PColorComboBox;
        box->addThemeColors();
        box->setOtherColors(true);
        return box;
    };
    const auto tree = [] {
        auto* made = new PTreeWidget;
        made->InitCopyMenus(true);
        return made;
    };
    return QList<Maker>{[=] { return new PAskRefreshDialog(nullptr, time, true); },
                        [] { return new PPasswordInputDialog({}); },
                        [] { return new PLanguageDialog(nullptr, {}, {}, {}, false); },
                        [] { return OptionsDialog::getSettingsDialog(nullptr, {}, {}); },
                        [=] { return new AppUpdaterDialog(u"App"_s, version, version, {}, {}); },
                        [] { return new PCheckVersionUpdateDialog({}, {}); },
                        colors,
                        tree} +
           makersOf<PCsvDialog, PIpRangeDialog, PChangeLogDialog, RSSFeedDialog, AboutInfo7,
                    Info3rdLicences, PSystemInfoWidget, ProxySettingsWidget, FilterLineEdit,
                    PColorButton, PFilterButton, PRecentComboBox, PPlaybar, TarvoDateTimeView,
                    ZoomTimeline, BusyIndicator>();
}

/// A widget of Qt's class that @p widget is, as nobody has changed it.
template <typename... Classes>
std::unique_ptr<QWidget> unchanged(const QWidget& widget)
{
    std::unique_ptr<QWidget> plain;
    ((plain || !qobject_cast<const Classes*>(&widget) ? void() : void(plain.reset(new Classes))),
     ...);
    return plain;
}

QString textOf(const QWidget& widget, const QMetaProperty& property)
{
    const QVariant value = property.read(&widget);
    if (property.isEnumType() && !property.isFlagType())
        return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
    return property.isFlagType() ? QString::number(value.toInt())
                                 : value.toString().replace(u'\n', u"\\n"_s);
}

/// What a user can do with a widget and hears of it, where it is not as usual in Qt, and below it
/// the same of those inside.
QStringList told(const QWidget& widget, const QString& indent = {})
{
    static const QByteArrayList properties =
        QByteArray(
            "windowTitle title text placeholderText toolTip accessibleName accessibleDescription "
            "enabled focusPolicy mouseTracking readOnly maxLength echoMode default autoDefault "
            "checkable checked editable insertPolicy maxCount minimum maximum specialValueText "
            "wordWrap textFormat textInteractionFlags alignment tabChangesFocus acceptRichText "
            "openLinks popupMode toolButtonStyle selectionMode selectionBehavior editTriggers "
            "uniformRowHeights rootIsDecorated allColumnsShowFocus headerHidden "
            "verticalScrollMode childrenCollapsible sizeGripEnabled movable tabsClosable "
            "usesScrollButtons calendarPopup displayFormat")
            .split(' ');
    const auto plain = unchanged<QTreeWidget, QTableWidget, QListWidget, QListView, QTextBrowser,
                                 QTextEdit, QPlainTextEdit, QComboBox, QDateTimeEdit, QSpinBox,
                                 QLineEdit, QLabel, QCheckBox, QPushButton, QToolButton, QSlider,
                                 QSplitter, QGroupBox, QTabWidget, QDialog, QWidget>(widget);
    const QMetaObject& type = *widget.metaObject();
    QString line = indent + QString::fromLatin1(type.className()).section(u':', -1);
    for (const QByteArray& name : properties) {
        const QMetaProperty property = type.property(type.indexOfProperty(name.constData()));
        if (!property.isValid() ||
            (qobject_cast<const QAbstractSpinBox*>(&widget) && name == "text")) // the date of today
            continue;
        QString text = textOf(widget, property);
        if (qobject_cast<const QDialogButtonBox*>(widget.parent()))
            text.remove(u'&'); // depends on the platform
        const int usual = plain->metaObject()->indexOfProperty(name.constData());
        if (usual < 0 ? !text.isEmpty() && text != u"false"
                      : text != textOf(*plain, plain->metaObject()->property(usual)))
            line += u' ' + QString::fromLatin1(name) + u'=' + text;
    }
    const auto* area = qobject_cast<const QAbstractScrollArea*>(&widget);
    if (area && area->viewport()->hasMouseTracking() !=
                    static_cast<QAbstractScrollArea*>(plain.get())->viewport()->hasMouseTracking())
        line += u" tracksMouse"_s;
    if (widget.parentWidget() && !widget.isVisibleTo(widget.parentWidget()))
        line += u" hidden"_s;
    if (indent.isEmpty() && widget.isWindow())
        line += u" %1×%2"_s.arg(widget.width()).arg(widget.height());
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label && label->buddy())
        line += u" of "_s + QString::fromLatin1(label->buddy()->metaObject()->className());
    QStringList lines{line};
    if (!area && !qobject_cast<const QComboBox*>(&widget) &&
        !qobject_cast<const QAbstractSpinBox*>(&widget))
        for (const QObject* child : widget.children())
            if (child->isWidgetType() && !child->objectName().startsWith(u"qt_"_s))
                lines += told(*static_cast<const QWidget*>(child), indent + u"  "_s);
    return lines;
}

} // namespace

class TestForms : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void controlsAreAsListed()
    {
        QStringList now;
        QList<Maker> makers = translated();
        for (const FormWidget& widget : formWidgets())
            makers.append([create = widget.create] { return create(nullptr); });
        // What this one says depends on the season.
        QSet<const QMetaObject*> done{&PInputDateTimeWithRange::staticMetaObject};
        for (const Maker& make : std::as_const(makers)) {
            QDialog around; // in which buttons are defaults
            const std::unique_ptr<QWidget> widget(make());
            if (done.contains(widget->metaObject()))
                continue;
            done.insert(widget->metaObject());
            if (!qobject_cast<QDialog*>(widget.get()))
                widget->setParent(&around);
            now += told(*widget);
        }
        if (const QString path = qEnvironmentVariable("FORMS"); !path.isEmpty())
            writeFile(path, now.join(u'\n').toUtf8() + '\n');
        const QStringList listed =
            QString::fromUtf8(readFile(u":/forms.txt"_s)).split(u'\n', Qt::SkipEmptyParts);
        for (qsizetype line = 0; line < std::max(now.size(), listed.size()); ++line)
            QCOMPARE(now.value(line), listed.value(line));
    }

    void textsFollowTheLanguage()
    {
        const auto switchTo = [](const QString& key) {
            PLanguage::SetLanguage(nullptr, key,
                                   QCoreApplication::applicationDirPath() +
                                       u"/../share/CorvelGui/translations"_s);
        };
        for (const Maker& make : translated()) {
            std::unique_ptr<QWidget> widget(make());
            const char* name = widget->metaObject()->className();
            const QStringList before = visibleTexts(*widget);
            switchTo(u"de"_s);
            QCoreApplication::sendPostedEvents();
            const QStringList after = visibleTexts(*widget);
            QVERIFY2(after != before, name);
            widget.reset();
            widget.reset(make());
            QVERIFY2(after == visibleTexts(*widget), name);
            widget.reset();
            switchTo({});
        }
    }
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
