// SPDX-License-Identifier: MIT
#include "labelledfield.h"
#include "look/languages.h"
#include "memorypasswordstore.h"
#include "options/settingsstore.h"
#include "testsupport.h"
#include "visibletexts.h"
#include "window/clientoptions.h"
#include "window/reviewwindow.h"

#include <CorvelGui/OptionsDialog>

#include <QKeySequenceEdit>
#include <QListView>
#include <QMenu>
#include <QSet>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>

using namespace Review;
using Corvel::ProxyUserSettings;
using CorvelGui::OptionsDialog;

namespace {

struct Client
{
    explicit Client(const QString& path, MemoryPasswordStore* shared = nullptr)
        : store(path), window({}, true), options(store, window, shared ? *shared : passwords)
    {
        QSignalSpy loaded(&window, &ReviewWindow::loaded);
        window.load({});
        window.show();
        loaded.wait();
    }

    void speak(const QString& language)
    {
        ReviewSettings settings = store.settings();
        settings.language = language;
        store.change(settings);
        QCoreApplication::processEvents();
    }

    SettingsStore store;
    MemoryPasswordStore passwords;
    ReviewWindow window;
    ClientOptions options;
};

/// The entries of menus that no letter stands for, or one that stands for another one as well;
/// without the choice of a speed.
QStringList entriesWithoutLetters(const ReviewWindow& window)
{
    QStringList entries;
    for (const QMenu* menu : window.menuBar()->findChildren<QMenu*>()) {
        QSet<QKeySequence> keys;
        for (const QAction* action : menu->actions()) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            if (!action->text().isEmpty() && !action->text().startsWith(u'×') &&
                (key.isEmpty() || keys.contains(key)))
                entries.append(action->text());
            keys.insert(key);
        }
    }
    return entries;
}

void visit(const QString& category, const QString& page)
{
    OptionsDialog::getSettingsDialog(nullptr, category, page);
}

void fill(const OptionsDialog& dialog)
{
    visit(u"display"_s, u"look"_s);
    field<QComboBox>(dialog, u"Look:"_s).setCurrentIndex(1);
    visit(u"display"_s, u"time"_s);
    field<QComboBox>(dialog, u"Date and time:"_s).setCurrentIndex(1);
    visit(u"playback"_s, u"playback"_s);
    for (QCheckBox* box : dialog.findChildren<QCheckBox*>())
        box->setChecked(box->text() != "&Skip what is not recorded"_L1 && box->isChecked());
    visit(u"playback"_s, u"keyboard"_s);
    field<QKeySequenceEdit>(dialog, u"Frame Forward:"_s).setKeySequence(Qt::Key_F7);
    // Taken by the menu, and by another button.
    field<QKeySequenceEdit>(dialog, u"Track End:"_s).setKeySequence(Qt::CTRL | Qt::Key_O);
    field<QKeySequenceEdit>(dialog, u"Frame Backward:"_s).setKeySequence(Qt::ALT | Qt::Key_Home);
    visit(u"network"_s, u"updates"_s);
    field<QLineEdit>(dialog, u"Internal server:"_s).setText(u"http://updates.example/in"_s);
    field<QLineEdit>(dialog, u"Public server:"_s).setText(u"http://not an address"_s);
    field<QLineEdit>(dialog, u"Update server:"_s).clear();
    field<QLineEdit>(dialog, u"News feed:"_s).setText(u"http://news.example/feed"_s);
    visit(u"network"_s, u"proxy"_s);
    field<QComboBox>(dialog, u"Connection:"_s).setCurrentText(u"SOCKS5 proxy"_s);
    field<QLineEdit>(dialog, u"Host:"_s).setText(u"proxy.example"_s);
    field<QSpinBox>(dialog, u"Port:"_s).setValue(1080);
    field<QLineEdit>(dialog, u"Password:"_s).setText(u"secret, really"_s);
}

ReviewSettings filled()
{
    ReviewSettings settings;
    settings.language = u"en"_s;
    settings.dark = false;
    settings.timeFormat.order = TimeFormat::Order::YearFirst;
    settings.skipGaps = false;
    settings.shortcuts[CorvelGui::PPlaybar::FrameForwardButton] = Qt::Key_F7;
    settings.servers.internalChannel = u"http://updates.example/in/"_s;
    settings.servers.queryServer.clear();
    settings.servers.news = u"http://news.example/feed"_s;
    settings.proxy = {.mode = ProxyUserSettings::Mode::Socks5,
                      .host = u"proxy.example"_s,
                      .port = 1080,
                      .password = u"secret, really"_s};
    return settings;
}

} // namespace

class TestReviewOptions : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WarningFreeTest::init();
        m_dir = std::make_unique<QTemporaryDir>();
        m_path = m_dir->filePath(u"settings.ini"_s);
    }

    void buttons()
    {
        for (const bool taken : {true, false}) {
            init();
            Client client(m_path);
            client.speak(u"en"_s);
            const ReviewSettings before = client.store.settings();
            const int darkness = client.window.palette().window().color().lightness();

            bool untouched = false;
            QString message;
            whenShown<OptionsDialog>(this, [&](OptionsDialog& dialog) {
                fill(dialog);
                for (const QLabel* label : dialog.findChildren<QLabel*>())
                    message += label->text().contains(u"belongs to"_s) ? label->text() : QString();
                untouched = client.store.settings() == before;
                buttonOf(dialog, taken ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
            });
            client.options.run();

            QVERIFY(untouched);
            QVERIFY2(
                message.contains(u"Track End: Ctrl+O belongs to “Open folder…”."_s) &&
                    message.contains(u"Frame Backward: Alt+Home is also set for “Track Begin”."_s),
                qPrintable(message));
            QVERIFY(client.store.settings() == (taken ? filled() : before));
            QCOMPARE(ProxyUserSettings::m_Settings.host, taken ? u"proxy.example"_s : QString());
            QCOMPARE(client.window.palette().window().color().lightness() > darkness, taken);
            QCOMPARE(visibleTexts(client.window).filter(u"2026-03-02 "_s).isEmpty(), !taken);

            ReviewSettings stored = taken ? filled() : before;
            stored.proxy.password.clear();
            QVERIFY(Client(m_path).store.settings() == stored);
            QVERIFY(!content().contains("secret"));
        }
    }

    void passwordIsKeptOnRequest()
    {
        MemoryPasswordStore passwords;
        Client client(m_path, &passwords);
        ReviewSettings settings = client.store.settings();
        const auto change = [&](const QString& password, bool remember) {
            settings.proxy.password = password;
            settings.rememberPassword = remember;
            client.store.change(settings);
        };
        change(u"secret"_s, true);
        QTRY_COMPARE(passwords.passwords.values(), QStringList{u"secret"_s});
        {
            const Client next(m_path, &passwords);
            QTRY_COMPARE(next.store.settings().proxy.password, u"secret"_s);
            QCOMPARE(ProxyUserSettings::m_Settings.password, u"secret"_s);
        }
        {
            // An answer that comes late does not replace what was typed meanwhile.
            passwords.isSlow = true;
            Client next(m_path, &passwords);
            ReviewSettings typed = next.store.settings();
            typed.proxy.password = u"typed"_s;
            next.store.change(typed);
            passwords.answerAll();
            QCOMPARE(next.store.settings().proxy.password, u"typed"_s);
        }
        change(u"secret"_s, false);
        QTRY_VERIFY(passwords.passwords.isEmpty());
        QVERIFY(!content().contains("secret") && !content().contains("typed"));
    }

    void passwordLeavesTheFile()
    {
        for (const bool works : {true, false}) {
            for (const bool remember : {true, false}) {
                init();
                writeFile(m_path, QByteArray("[Proxy]\nPassword=old\nUser=me\nRememberPassword=") +
                                      (remember ? "true" : "false"));
                MemoryPasswordStore passwords;
                passwords.isSlow = true;
                if (!works)
                    passwords.refusal = {MemoryPasswordStore::Status::Unavailable, {}, u"<none>"_s};
                Client client(m_path, &passwords);
                QCOMPARE(content().contains("old"), remember);
                QStringList told;
                whenShown<QMessageBox>(&client.window, [&](QMessageBox& box) {
                    told.append(box.text());
                    box.accept();
                });
                passwords.answerAll();
                QTRY_COMPARE(told.size(), remember && !works ? 1 : 0);
                QVERIFY(told.isEmpty() || told.first().contains(u"&lt;none&gt;"_s));
                QVERIFY(!content().contains("old") && content().contains("User=me"));
                QCOMPARE(client.store.settings().proxy.password, remember ? u"old"_s : QString());
                QCOMPARE(passwords.passwords.size(), remember && works ? 1 : 0);
            }
        }
    }

    void windowItselfSets()
    {
        Client client(m_path);
        client.speak(u"en"_s);
        const QStringList set{u"Dark look"_s,
                              u"Activity in the overview"_s,
                              u"Cameras on the timeline"_s,
                              u"Number and severity of events"_s,
                              u"Zoom freely"_s,
                              u"Drag to select a range"_s,
                              u"Smoothly"_s};
        for (QAction* action : client.window.findChildren<QAction*>()) {
            if (set.contains(action->text().remove(u'&')))
                action->trigger();
        }
        auto* zone = client.window.statusBar()->findChild<QComboBox*>();
        zone->setCurrentText(u"Asia/Tokyo"_s);
        QTest::keyClick(zone, Qt::Key_Return);
        const ReviewSettings stored = SettingsStore(m_path).settings();
        QCOMPARE(stored.dark, false);
        QVERIFY(!stored.activity && !stored.lanes && !stored.eventDetails);
        QVERIFY(!stored.freeZoom && stored.dragSelects);
        QCOMPARE(stored.followMode, CorvelGui::Ruler::FollowMode::Smooth);
        QCOMPARE(stored.zone, u"Asia/Tokyo"_s);
    }

    void stateOfTheWindowSurvives()
    {
        QSize size;
        QList<int> widths;
        {
            Client client(m_path);
            client.window.move(40, 50);
            // No larger than the screen of these tests, on which the window would be made to fit.
            client.window.resize(620, 600);
            size = client.window.size();
            client.window.findChild<QToolBar*>()->hide();
            QCoreApplication::processEvents();
            auto* tables = client.window.findChild<QSplitter*>();
            tables->setSizes({150, 250, 200});
            QCoreApplication::processEvents();
            widths = tables->sizes();
            client.window.close();
        }
        const Client client(m_path);
        QCOMPARE(client.window.size(), size);
        QVERIFY(client.window.findChild<QToolBar*>()->isHidden());
        QCOMPARE(client.window.findChild<QSplitter*>()->sizes(), widths);
    }

    void damagedFiles()
    {
        const std::pair<QByteArray, bool> rows[] = {
            {{}, false},
            {QByteArray("\x7f\x45LF\x02 garbage\n[[\0]\n=\n", 22), false},
            {"[Look]\nDark=false\n]garbage[\n[Other]\nName=kept\n", true},
            {"[Look]\nDark=false\nLanguage=klingon\n[Time]\nZone=Mars/Base\nOrder=7\n"
             "Milliseconds=perhaps\n[Proxy]\nMode=3\nPort=99999\nPassword=old\n"
             "[Shortcuts]\nPlayButton=Hyper+Q+Q\n[Window]\nGeometry=1\nState=2\n"
             "Tables=x\n[Other]\nName=kept\n",
             true}};
        for (const auto& [bytes, readable] : rows) {
            init();
            writeFile(m_path, bytes);
            Client client(m_path);
            QVERIFY(client.window.width() > 300 && client.window.height() > 200);
            ReviewSettings expected;
            expected.dark = !readable;
            QVERIFY(client.store.settings() == expected);
            const bool damaged =
                QSettings(m_path, QSettings::IniFormat).status() != QSettings::NoError ||
                bytes.contains("garbage");
            client.window.close();
            if (damaged)
                QCOMPARE(content(), bytes);

            ReviewSettings changed = expected;
            changed.skipGaps = false;
            client.store.change(changed);
            QCOMPARE(content(u"settings.ini.damaged"_s), damaged ? bytes : QByteArray());
            const SettingsStore again(m_path);
            QVERIFY(again.settings() == changed);
            if (readable)
                QCOMPARE(QSettings(m_path, QSettings::IniFormat).value(u"Other/Name"_s), u"kept"_s);
        }
    }

    void unwritableFileIsToldOnce()
    {
        writeFile(m_path, {});
        // No folder, whoever runs the test.
        Client client(m_path + u"/settings.ini"_s);
        const QSignalSpy failures(&client.store, &SettingsStore::saveFailed);
        int boxes = 0;
        whenShown<QMessageBox>(this, [&](QMessageBox& box) {
            ++boxes;
            box.accept();
        });
        client.speak(u"de"_s);
        client.speak(u"en"_s);
        QTRY_COMPARE(boxes, 1);
        QCOMPARE(failures.size(), 1);
        QCOMPARE(client.store.settings().language, u"en"_s);
        client.window.close();
    }

    void languages()
    {
        Client client(m_path);
        client.speak(u"en"_s);
        const SourceTexts sources(
            {QStringLiteral(REVIEW_TRANSLATION), QStringLiteral(LIBRARY_TRANSLATION)});
        QStringList english, german, again, ambiguous;
        int found = 0;
        whenShown<OptionsDialog>(this, [&](OptionsDialog& dialog) {
            // Searching builds all pages.
            auto* search = dialog.findChild<QLineEdit*>();
            search->setText(u"a"_s);
            search->clear();
            visit(u"playback"_s, u"keyboard"_s);
            QCoreApplication::processEvents(); // the store of passwords has answered
            english = visibleTexts();
            client.speak(u"de"_s);
            german = visibleTexts();
            ambiguous += entriesWithoutLetters(client.window);
            client.speak(u"en"_s);
            again = visibleTexts();
            ambiguous += entriesWithoutLetters(client.window);
            client.speak(u"de"_s);
            search->setText(u"kennwort"_s);
            found = dialog.findChild<QListView*>()->model()->rowCount();
            buttonOf(dialog, QDialogButtonBox::Cancel)->click();
        });
        client.options.run();
        QCOMPARE(found, 1);
        QStringList left = sources.foundIn(german);
        left.removeDuplicates();
        QCOMPARE(left.join(u'\n'), QString());
        QCOMPARE(ambiguous.join(u'\n'), QString());
        // Not blind: it sees what it looks for.
        QVERIFY(sources.foundIn(english).size() > 150);
        QCOMPARE(again.join(u'\n'), english.join(u'\n'));
    }

private:
    QByteArray content(const QString& name = u"settings.ini"_s) const
    {
        return readFile(m_dir->filePath(name));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
};

QTEST_MAIN(TestReviewOptions)
#include "tst_reviewoptions.moc"
