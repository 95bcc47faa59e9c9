#include "testsupport.h"
#include "visibletexts.h"
#include "whenshown.h"

#include <CorvelGui/AppUpdaterDialog>
#include <CorvelGui/BusyIndicator>
#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/OptionsDialog>
#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PChangeLogDialog>
#include <CorvelGui/PCheckVersionUpdateDialog>
#include <CorvelGui/PCsvDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PLanguage>
#include <CorvelGui/PLanguageDialog>
#include <CorvelGui/PPasswordInputDialog>
#include <CorvelGui/PPlaybar>
#include <CorvelGui/TarvoDateTimeView>
#include <CorvelGui/TranslatorList>
#include <CorvelGui/ZoomTimeline>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QVersionNumber>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

// A text that only the application translates, and one that the library translates, too.
QStringList texts()
{
    return {QCoreApplication::translate("App", "Colour"),
            QCoreApplication::translate("CorvelGui::OptionsDialog", "Options")};
}

const QStringList untranslated{u"Colour"_s, u"Options"_s};
// corvelgui_de comes after app_de.
const QStringList german{u"Farbe"_s, u"Optionen"_s};
const QStringList american{u"Color"_s, u"from app_en_US"_s};

class LanguageChanges : public QObject
{
public:
    LanguageChanges() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += watched == qApp && event->type() == QEvent::LanguageChange;
        return false;
    }
    int count = 0;
};

using Maker = std::function<QWidget*()>;

} // namespace

Q_DECLARE_METATYPE(Maker)

class TestLanguage : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void switches();
    void unreadableFilesAreReported();
    void theLaterSwitchHolds();
    void copiesShareTranslators();
    void dialogListsSupportedLanguages_data();
    void dialogListsSupportedLanguages();
    void dialogAppliesTheChoice();
    void widgetsFollow_data();
    void widgetsFollow();

private:
    void provide(const QString& name) const;
    void switchTo(const QString& key, QWidget* parent = nullptr) const
    {
        PLanguage::SetLanguage(parent, key, m_folder->path());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestLanguage::init()
{
    WarningFreeTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    for (const auto& name : {u"app_de.qm"_s, u"app_en_US.qm"_s, u"corvelgui_de.qm"_s})
        provide(name);
}

void TestLanguage::cleanup()
{
    PLanguage::SetLanguage(nullptr, QString(), QString());
}

// A translation of the build; by any other name a file that is none.
void TestLanguage::provide(const QString& name) const
{
    const QDir root(QCoreApplication::applicationDirPath() + u"/.."_s);
    for (const auto& folder :
         {u"tests/settings/translations/"_s, u"share/CorvelGui/translations/"_s}) {
        if (QFile::copy(root.filePath(folder + name), m_folder->filePath(name)))
            return;
    }
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no translation") > 0);
}

void TestLanguage::switches()
{
    const LanguageChanges changes;
    for (int round = 0; round < 100; ++round) {
        switchTo(u"de"_s);
        QCOMPARE(texts(), german);
        switchTo(u"en_US"_s);
        QCOMPARE(texts(), american);
    }
    // None stays behind: each translator comes once and goes once, but for the last.
    QCOMPARE(changes.count, 100 * 2 * (2 + 1) - 1);
    PLanguage::SetLanguage(nullptr, u"de"_s, m_folder->filePath(u"missing"_s));
    QCOMPARE(texts(), untranslated);
}

void TestLanguage::unreadableFilesAreReported()
{
    provide(u"broken_de.qm"_s);
    QStringList said;
    whenShown<QMessageBox>(this, [&](QMessageBox& box) {
        said << box.windowTitle() << box.text();
        box.accept();
    });
    switchTo(u"de"_s);
    QCOMPARE(said,
             QStringList({u"Warning"_s, u"Can not load German translations from file\n\"%1\""_s.arg(
                                            m_folder->filePath(u"broken_de.qm"_s))}));
    QCOMPARE(texts(), german);
}

void TestLanguage::theLaterSwitchHolds()
{
    provide(u"broken_de.qm"_s);
    auto* parent = new QWidget;
    whenShown<QMessageBox>(this, [&](QMessageBox&) {
        switchTo(u"en_US"_s);
        delete parent;
    });
    switchTo(u"de"_s, parent);
    QCOMPARE(texts(), american);
}

void TestLanguage::copiesShareTranslators()
{
    TranslatorList list;
    const QPointer<QTranslator> translator = new QTranslator;
    list.getList() << translator << nullptr;
    TranslatorList copy(list);
    TranslatorList assigned;
    assigned = copy;
    copy.cleanUpList();
    QVERIFY(!translator);
    QVERIFY(copy.getList().isEmpty());
    QCOMPARE(list.getList().size(), 2); // which is not deleted again
}

void TestLanguage::dialogListsSupportedLanguages_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QStringList>("supported");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QString>("chosen"); // en_US is current
    using List = QStringList;
    QTest::newRow("with and without a country")
        << u"app"_s << List{u"de"_s, u"en_US"_s} << List{u"German"_s, u"English"_s} << u"en_US"_s;
    QTest::newRow("longer prefix") << u"app"_s << List{u"fr"_s} << List{u"French"_s} << u"fr"_s;
    QTest::newRow("pattern for a prefix") // longer than the names that it finds
        << u"[a][p][p]"_s << List{u"de"_s} << List{u"German"_s} << u"de"_s;
    QTest::newRow("one per language")
        << u"app"_s << List{u"de"_s, u"de_AT"_s} << List{u"German"_s} << u"de"_s;
    QTest::newRow("none supported") << u"app"_s << List() << List() << QString();
    QTest::newRow("none there") << u"missing"_s << List{u"de"_s}
                                << List{u"There are no translations available."_s} << QString();
}

void TestLanguage::dialogListsSupportedLanguages()
{
    QFETCH(QString, prefix);
    QFETCH(QStringList, supported);
    for (const auto& name : {u"app_extra_fr.qm"_s, u"app_de_AT.qm"_s})
        provide(name);
    PLanguageDialog dialog(nullptr, prefix, m_folder->path(), u"en_US"_s, false);
    for (const QString& key : supported)
        dialog.addSupportedLanguageKey(key);
    for (int round = 0; round < 2; ++round) // the second adds nothing
        QVERIFY(QMetaObject::invokeMethod(&dialog, "slotInitLanguages"));

    const auto* box = dialog.findChild<QComboBox*>(u"CB_Language"_s);
    QStringList items;
    for (int index = 0; index < box->count(); ++index)
        items << box->itemText(index);
    QTEST(items, "items");
    QTEST(dialog.getCurrentKey(), "chosen");
    const auto* buttons = dialog.findChild<QDialogButtonBox*>();
    QCOMPARE(buttons->button(QDialogButtonBox::Ok)->isEnabled(), prefix != u"missing"_s);
}

void TestLanguage::dialogAppliesTheChoice()
{
    for (const bool apply : {false, true}) {
        PLanguageDialog dialog(nullptr, u"app"_s, m_folder->path(), u"de"_s, apply);
        dialog.addSupportedLanguageKey(u"de"_s);
        dialog.show();
        QTRY_COMPARE(dialog.getCurrentKey(), u"de"_s);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(texts(), apply ? german : untranslated);
        QTRY_COMPARE(dialog.windowTitle() == u"Spracheinstellungen der Anwendung"_s, apply);
    }
}

void TestLanguage::widgetsFollow_data()
{
    QTest::addColumn<Maker>("make");
    const auto row = [](const char* name, const Maker& make) {
        QTest::newRow(name) << make;
    };
    row("refresh",
        [] { return new PAskRefreshDialog(nullptr, QDateTime::currentDateTime(), true); });
    row("CSV", [] { return new PCsvDialog; });
    row("range", [] { return new PIpRangeDialog; });
    row("password", [] { return new PPasswordInputDialog({}); });
    row("filter", [] { return new FilterLineEdit; });
    row("playbar", [] { return new PPlaybar; });
    row("time", [] { return new TarvoDateTimeView; });
    row("timeline", [] { return new ZoomTimeline; });
    row("busy", [] { return new BusyIndicator; });
    row("language", [] { return new PLanguageDialog(nullptr, {}, {}, {}, false); });
    row("options", [] { return OptionsDialog::getSettingsDialog(nullptr, {}, {}); });
    row("update", [] {
        return new AppUpdaterDialog(u"App"_s, QVersionNumber(1), QVersionNumber(2), {},
                                    QDateTime::currentDateTime());
    });
    row("version", [] { return new PCheckVersionUpdateDialog({}, {}); });
    row("change log", [] { return new PChangeLogDialog; });
}

void TestLanguage::widgetsFollow()
{
    QFETCH(const Maker, make);
    std::unique_ptr<QWidget> widget(make());
    const QStringList before = visibleTexts(*widget);
    switchTo(u"de"_s);
    QCoreApplication::sendPostedEvents();
    const QStringList after = visibleTexts(*widget);
    QVERIFY(after != before);
    widget.reset();
    widget.reset(make());
    QCOMPARE(after, visibleTexts(*widget));
}

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
