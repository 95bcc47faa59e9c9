// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/PInputDateTimeWithRange>
#include <CorvelGui/PLanguage>
#include <CorvelGui/PLanguageDialog>
#include <CorvelGui/TranslatorList>

#include <QDateEdit>

using namespace CorvelGui;

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

} // namespace

class TestLanguage : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WarningFreeTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
        for (const auto& name : {u"app_de.qm"_s, u"app_en_US.qm"_s, u"corvelgui_de.qm"_s})
            provide(name);
    }

    void cleanup() { PLanguage::SetLanguage(nullptr, QString(), QString()); }

    void switches()
    {
        for (int round = 0; round < 2; ++round) {
            switchTo(u"de"_s);
            QCOMPARE(texts(), german);
            switchTo(u"en_US"_s);
            QCOMPARE(texts(), american);
        }
        PLanguage::SetLanguage(nullptr, u"de"_s, m_folder->filePath(u"missing"_s));
        QCOMPARE(texts(), untranslated);
    }

    // With nothing named, Qt and the library speak it; with folders, the last one counts most.
    void wholeLanguage()
    {
        const QString other = m_folder->filePath(u"other"_s);
        QVERIFY(QDir().mkdir(other));
        QVERIFY(QFile::rename(m_folder->filePath(u"app_de.qm"_s), other + u"/app_de.qm"_s));
        const std::tuple<QString, QStringList, QStringList> rows[] = {
            {u"de"_s, {}, {u"Colour"_s, u"Optionen"_s, u"Abbrechen"_s, u"und 1 weiterer"_s}},
            {u"de_AT"_s,
             {other},
             {u"Farbe"_s, u"from app_de"_s, u"Abbrechen"_s, u"und 1 weiterer"_s}},
            {u"de"_s,
             {other, m_folder->path()},
             {u"Farbe"_s, u"Optionen"_s, u"Abbrechen"_s, u"und 1 weiterer"_s}},
            {u"en"_s, {other}, untranslated + QStringList{u"Cancel"_s, u"and 1 more"_s}},
        };
        const auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
        PInputDateTimeWithRange range;
        range.show();
        const QDateTime march(QDate(2026, 3, 1), QTime());
        range.setRange(march, march);
        const auto presets = [](const QWidget& of) {
            return QWidgetItem(of.findChild<QComboBox*>()).minimumSize();
        };
        for (const auto& [key, folders, expected] : rows) {
            QLocale::setDefault(QLocale(key));
            PLanguage::useLanguage(nullptr, key, folders);
            const bool isEnglish = key == u"en";
            QTRY_COMPARE(range.findChild<QDateEdit*>()->text(),
                         isEnglish ? u"3/1/2026"_s : u"01.03.2026"_s);
            QCOMPARE(range.locale(), QLocale());
            QTRY_COMPARE(presets(range), presets(PInputDateTimeWithRange()));
            QCOMPARE(texts() +
                         QStringList({QCoreApplication::translate("QPlatformTheme", "Cancel"),
                                      QCoreApplication::translate("CorvelGui::MarkerList",
                                                                  "and %n more", nullptr, 1)}),
                     expected);
        }
    }

    void unreadableFilesAreReported()
    {
        provide(u"broken_de.qm"_s);
        QStringList said;
        whenShown<QMessageBox>(this, [&](QMessageBox& box) {
            said << box.windowTitle() << box.text();
            box.accept();
        });
        switchTo(u"de"_s);
        QCOMPARE(said, QStringList({u"Warning"_s,
                                    u"Can not load German translations from file\n\"%1\""_s.arg(
                                        m_folder->filePath(u"broken_de.qm"_s))}));
        QCOMPARE(texts(), german);
    }

    void theLaterSwitchHolds()
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

    void copiesShareTranslators()
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

    void dialogListsSupportedLanguages()
    {
        for (const auto& name : {u"app_extra_fr.qm"_s, u"app_de_AT.qm"_s})
            provide(name);
        // While en_US is current.
        const std::tuple<QString, QStringList, QStringList, QString> rows[] = {
            {u"app"_s, {u"de"_s, u"en_US"_s}, {u"German"_s, u"English"_s}, u"en_US"_s},
            {u"app"_s, {u"fr"_s}, {u"French"_s}, u"fr"_s},       // of a longer prefix
            {u"[a][p][p]"_s, {u"de"_s}, {u"German"_s}, u"de"_s}, // longer than the names it finds
            {u"app"_s, {u"de"_s, u"de_AT"_s}, {u"German"_s}, u"de"_s}, // one per language
            {u"app"_s, {}, {}, {}},
            {u"missing"_s, {u"de"_s}, {u"There are no translations available."_s}, {}},
        };
        for (const auto& [prefix, supported, expected, chosen] : rows) {
            PLanguageDialog dialog(nullptr, prefix, m_folder->path(), u"en_US"_s, false);
            for (const QString& key : supported)
                dialog.addSupportedLanguageKey(key);
            for (int round = 0; round < 2; ++round) // the second adds nothing
                QVERIFY(QMetaObject::invokeMethod(&dialog, "slotInitLanguages"));
            const auto* box = dialog.findChild<QComboBox*>(u"CB_Language"_s);
            QStringList items;
            for (int index = 0; index < box->count(); ++index)
                items << box->itemText(index);
            QCOMPARE(items, expected);
            QCOMPARE(dialog.getCurrentKey(), chosen);
            QCOMPARE(buttonOf(dialog, QDialogButtonBox::Ok)->isEnabled(), prefix != u"missing"_s);
        }
    }

    void dialogAppliesTheChoice()
    {
        for (const bool apply : {false, true}) {
            PLanguageDialog dialog(nullptr, u"app"_s, m_folder->path(), u"de"_s, apply);
            dialog.addSupportedLanguageKey(u"de"_s);
            dialog.show();
            QTRY_COMPARE(dialog.getCurrentKey(), u"de"_s);
            buttonOf(dialog, QDialogButtonBox::Ok)->click();
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QCOMPARE(texts(), apply ? german : untranslated);
            QTRY_COMPARE(dialog.windowTitle() == u"Spracheinstellungen der Anwendung"_s, apply);
        }
    }

private:
    // A translation of the build; by any other name a file that is none.
    void provide(const QString& name) const
    {
        const QDir root(QCoreApplication::applicationDirPath() + u"/.."_s);
        for (const auto& folder :
             {u"tests/settings/translations/"_s, u"share/CorvelGui/translations/"_s}) {
            if (QFile::copy(root.filePath(folder + name), m_folder->filePath(name)))
                return;
        }
        writeFile(m_folder->filePath(name), "no translation");
    }

    void switchTo(const QString& key, QWidget* parent = nullptr) const
    {
        PLanguage::SetLanguage(parent, key, m_folder->path());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
