// SPDX-License-Identifier: MIT
#include "categorylistview.h"
#include "testsupport.h"

#include <CorvelGui/ISettingsPage>
#include <CorvelGui/OptionPageProvider>
#include <CorvelGui/OptionsDialog>
#include <CorvelGui/SettingsBaseWidget>

#include <CorvelGui/SettingsManager>

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>
#include <QBitmap>
#include <QGroupBox>
#include <QRadioButton>

#include <QTabWidget>

using namespace CorvelGui;

namespace {

QStringList calls; // what was asked of all pages

class Page : public ISettingsPage
{
public:
    Page(const QString& category, const QString& id, const QString& text = {}) : m_text(text)
    {
        setCategory(category);
        setId(id);
        setDisplayName(u"Page "_s + id);
        setDisplayCategory(u"Category "_s + category);
    }
    QWidget* createWidget(QWidget* parent) override
    {
        calls << u"create "_s + id();
        if (m_text == u"none")
            return nullptr;
        m_widget = new QWidget(parent);
        new QLabel(m_text, m_widget);
        return m_widget;
    }
    void apply() override
    {
        calls << u"apply "_s + id();
        if (const auto act = onApply) // which may delete this page
            act();
    }
    void finish() override { calls << u"finish "_s + id(); }

    using ISettingsPage::forgetTexts;
    using ISettingsPage::setAcceptable;
    using ISettingsPage::setCategoryIcon;
    using ISettingsPage::setDisplayCategory;
    using ISettingsPage::setDisplayName;
    std::function<void()> onApply;

private:
    const QString m_text;
};

struct TextPage : Page
{
    using Page::Page;
    QWidget* createWidget(QWidget* parent) override
    {
        m_widget = new SettingsBaseWidget(parent);
        new QLabel(u"&Proxy"_s, m_widget);
        new QLabel(u"A&&B"_s, m_widget);
        new QCheckBox(u"Remember"_s, m_widget);
        auto* group = new QGroupBox(u"&Server"_s, m_widget);
        new QRadioButton(u"Dir&ect"_s, group);
        new QPushButton(u"Te&st"_s, group);
        return m_widget;
    }
};

class Provider : public OptionPageProvider
{
public:
    Provider(const QString& category, const QList<ISettingsPage*>& pages)
    {
        setCategory(category);
        setDisplayCategory(u"Provided "_s + category);
        m_pages = pages;
    }
};

struct Parts
{
    explicit Parts(OptionsDialog& dialog)
        : list(dialog.findChild<CategoryListView*>())
        , search(dialog.findChild<QLineEdit*>())
        , header(dialog.findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
    {}
    QStringList captions() const
    {
        QStringList all;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            all << list->model()->index(row, 0).data().toString();
        return all;
    }
    QString caption() const { return list->currentIndex().data().toString(); }
    QTabWidget* tabs() const
    {
        for (auto* tabs : list->window()->findChildren<QTabWidget*>()) {
            if (!tabs->isHidden())
                return tabs;
        }
        return nullptr;
    }
    QString tab() const { return tabs()->tabText(tabs()->currentIndex()); }

    CategoryListView* list;
    QLineEdit* search;
    QLabel* header;
};

void ok(const OptionsDialog& dialog)
{
    QTest::mouseClick(buttonOf(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
}

template <typename... Pages>
void provide(const QString& category, Pages*... pages)
{
    SettingsManager::m_listProvider << new Provider(category, {pages...});
}

} // namespace

class TestOptionsDialog : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WarningFreeTest::init();
        calls.clear();
    }

    void cleanup()
    {
        delete open();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const QPointer<Page>& page : std::exchange(m_pages, {}))
            delete page;
        QVERIFY(SettingsManager::GetPages().isEmpty());
        QVERIFY(SettingsManager::GetProvider().isEmpty());
    }

    void tellsThePages()
    {
        const QStringList finish{u"finish a1"_s, u"finish a2"_s, u"finish b1"_s};
        const QStringList all = QStringList{u"apply a1"_s, u"apply a2"_s, u"apply p1"_s} + finish;
        // OK, Cancel, Escape, the title bar, and Apply before Cancel.
        for (const auto& [end, told] : {std::pair(u"O"_s, all),
                                        {u"C"_s, finish},
                                        {u"E"_s, {}},
                                        {u"T"_s, {}},
                                        {u"AC"_s, all}}) {
            init();
            add(u"b"_s, u"b1"_s);
            add(u"a"_s, u"a2"_s);
            add(u"a"_s, u"a1"_s);
            const QPointer<Page> provided = new Page(u"p"_s, u"p1"_s);
            provide(u"p"_s, provided.data(), new Page(u"p"_s, u"p2"_s));
            provide(u"q"_s, new Page(u"q"_s, u"q1"_s));

            const QPointer<OptionsDialog> dialog = open();
            QVERIFY(calls.isEmpty());
            whenShown<OptionsDialog>(this, [&, end = end](OptionsDialog& shown) {
                const Parts parts(shown);
                QCOMPARE(parts.caption(), u"Category a"_s);
                QCOMPARE(calls.join(u' '), u"create a1 create a2"_s);
                for (const int tab : {1, 0, 1})
                    parts.tabs()->setCurrentIndex(tab);
                parts.list->setCurrentIndex(parts.list->model()->index(2, 0));
                QCOMPARE(calls.mid(2), QStringList({u"create p1"_s, u"create p2"_s}));
                calls.clear();
                if (end.startsWith(u'A'))
                    QMetaObject::invokeMethod(&shown, "slotApply");
                if (end == u'O')
                    ok(shown);
                else if (end.endsWith(u'C'))
                    buttonOf(shown, QDialogButtonBox::Cancel)->click();

                else if (end == u'E')
                    QTest::keyClick(&shown, Qt::Key_Escape);
                else
                    shown.close();
            });
            QCOMPARE(dialog->execDialog(), end == u'O' || end == u"AC"_s);
            QCOMPARE(calls, told);
            QVERIFY(open() != dialog);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!dialog);
            QVERIFY(!provided);
            cleanup();
        }
    }

    void refusedPagesAreShown()
    {
        Page* page = add(u"a"_s, u"a1"_s);
        add(u"b"_s, u"b1"_s);
        whenShown<OptionsDialog>(this, [&](OptionsDialog& shown) {
            const Parts parts(shown);
            page->setAcceptable(false);
            parts.list->setCurrentIndex(parts.list->model()->index(1, 0));
            calls.clear();
            ok(shown);
            QVERIFY(shown.isVisible() && calls.isEmpty());
            QCOMPARE(parts.caption(), u"Category a"_s);
            page->setAcceptable(true);
            ok(shown);
        });
        QVERIFY(open()->execDialog());
    }

    void furtherCallersWait()
    {
        Page* page = add(u"a"_s, u"a1"_s);
        add(u"b"_s, u"b1"_s);
        OptionsDialog* first = open(u"a"_s, u"a1"_s);
        page->onApply = [first] {
            ok(*first);
        }; // once is enough
        QStringList returned;
        whenShown<OptionsDialog>(this, [&](OptionsDialog&) {
            QCOMPARE(open(u"b"_s, u"b1"_s), first);
            QCOMPARE(Parts(*first).caption(), u"Category b"_s);
            QTimer::singleShot(0, first, [&] { ok(*first); });
            QVERIFY(first->execDialog());
            returned << u"second"_s;
            QVERIFY(first->execDialog()); // which does not wait for a dialog that is closing
        });
        QVERIFY(first->execDialog());
        returned << u"first"_s;
        QCOMPARE(returned, QStringList({u"second"_s, u"first"_s}));
        QCOMPARE(calls.filter(u"apply"_s), QStringList({u"apply a1"_s, u"apply b1"_s}));
    }

    void parentGoesWhileItRuns()
    {
        add(u"a"_s, u"a1"_s);
        auto* parent = new QWidget;
        OptionsDialog* dialog = open(u"a"_s, u"a1"_s, parent);
        whenShown<OptionsDialog>(this, [&](OptionsDialog&) {
            QTimer::singleShot(0, this, [parent] { delete parent; });
            QVERIFY(!dialog->execDialog());
        });
        QVERIFY(!dialog->execDialog());
        QCOMPARE(calls, QStringList(u"create a1"_s));
    }

    void pagesThatDelete()
    {
        for (const auto& deleted : {u"page"_s, u"provided"_s, u"widget"_s, u"dialog"_s}) {
            init();
            Page* page = add(u"a"_s, u"a1"_s);
            add(u"a"_s, u"a2"_s);
            auto* provided = new Page(u"a"_s, u"a3"_s);
            provide(u"a"_s, provided);
            auto* parent = new QWidget;
            OptionsDialog* dialog = open(u"a"_s, u"a3"_s, parent);
            QCOMPARE(Parts(*dialog).tab(), u"Page a3"_s);
            page->onApply = [&] {
                if (deleted == u"page"_s)
                    delete page;
                else if (deleted == u"provided"_s)
                    delete provided;
                else if (deleted == u"widget"_s)
                    delete Parts(*dialog).tabs()->widget(0);
                else
                    delete parent;
            };
            whenShown<OptionsDialog>(this, [](OptionsDialog& shown) { ok(shown); });
            QVERIFY(dialog->execDialog());
            QCOMPARE(calls.contains(u"apply a3"_s), deleted == u"page"_s || deleted == u"widget"_s);
            QCOMPARE(calls.contains(u"finish a2"_s), deleted != u"dialog"_s);
            if (deleted != u"dialog"_s)
                delete parent;
            cleanup();
        }
    }

    void sortsIntoCategories()
    {
        provide(u"z"_s, new Page(u"z"_s, u"z1"_s));
        provide(u"C"_s, new Page(u"C"_s, u"C1"_s));
        Page* picture = add(u"b"_s, u"b2"_s);
        const QTemporaryDir folder;
        Page* broken = add(u"b"_s, u"b1"_s);
        broken->setCategoryIcon(writeFile(folder.filePath(u"broken.png"_s), "no picture"));
        QVERIFY(broken->categoryIcon().isNull());
        picture->setCategoryIcon(u":/CorvelGui/common/open.png"_s);
        SettingsManager::m_listPages << nullptr << picture;
        add(u"a"_s, u"a1"_s);

        OptionsDialog* dialog = open(u"b"_s, u"b2"_s);
        SettingsManager::m_listPages.removeAll(nullptr);
        const Parts parts(*dialog);
        const QAbstractItemModelTester tester(
            static_cast<QAbstractProxyModel*>(parts.list->model())->sourceModel(),
            QAbstractItemModelTester::FailureReportingMode::Fatal);
        QCOMPARE(dialog->focusWidget(), parts.list);
        QVERIFY(!dialog->windowIcon().isNull());
        QCOMPARE(parts.captions(),
                 QStringList({u"Category a"_s, u"Category b"_s, u"Provided z"_s, u"Provided C"_s}));
        QCOMPARE(parts.tabs()->count(), 2);
        QCOMPARE(parts.tab(), u"Page b2"_s);
        const auto isClear = [&](int row) {
            const auto icon =
                parts.list->model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>();
            const QImage mask = icon.pixmap(24).toImage().createAlphaMask();
            return QRegion(QBitmap::fromImage(mask)).isEmpty();
        };
        QVERIFY(isClear(0));
        QVERIFY(!isClear(1));

        // New captions are read when the language changes.
        QCOMPARE(parts.header->text(), u"Category b"_s);
        for (Page* page : {m_pages[0].data(), m_pages[1].data()}) {
            page->setDisplayName(u"Seite "_s + page->id());
            page->setDisplayCategory(u"Thema"_s);
        }
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(dialog, &change);
        QCOMPARE(parts.tab(), u"Seite b2"_s);
        QCOMPARE(parts.captions().join(u' '), u"Category a Thema Provided z Provided C"_s);
        QCOMPARE(parts.header->text(), u"Thema"_s);
    }

    void findsPagesById()
    {
        add(u"a"_s, u"same"_s);
        add(u"a"_s, u"same"_s);
        add(u"a"_s, u"other"_s);
        provide(u"p"_s, new Page(u"p"_s, u"p1"_s), new Page(u"p"_s, u"p2"_s));
        const Parts parts(*open(u"A"_s, u"same"_s));
        QVERIFY(!parts.tabs());
        const std::tuple<QString, QString, int> requests[] = {
            {u"a"_s, {}, 0},         {u"p"_s, u"p2"_s, 1},   {u"a"_s, u"same"_s, 2},
            {u"a"_s, u"other"_s, 0}, {u"a"_s, u"same"_s, 2}, {u"a"_s, u"wrong"_s, 2},
            {u"wrong"_s, u"p1"_s, 2}};
        for (const auto& [category, page, tab] : requests) {
            open(category, page);
            QCOMPARE(parts.tabs()->currentIndex(), tab);
            QCOMPARE(parts.tabs()->count(), category == u"p"_s ? 2 : 3);
        }
    }

    void searches()
    {
        add(u"a"_s, u"a1"_s, u"&C++ (x)"_s);
        add(u"a"_s, u"a2"_s);
        add(u"b"_s, u"b1"_s);
        add(u"b"_s, u"b2"_s, u"Gate&way"_s);
        provide(u"p"_s, new Page(u"p"_s, u"p1"_s, u"Secret"_s),
                new Page(u"p"_s, u"p2"_s, u"none"_s));
        OptionsDialog* dialog = open(u"a"_s);
        const Parts parts(*dialog);
        const auto* buttons = dialog->findChild<QDialogButtonBox*>();
        dialog->layout()->activate();
        QVERIFY(!parts.list->geometry().intersects(buttons->geometry()));
        // A text, the categories that have it, and which tabs of the one shown do. Of texts on
        // pages only the escaped form would be found. Where nothing is, the tabs stay.
        const char* const rows[][3] = {{"gateway", "Category b", "-x"},
                                       {"A2", "Category a", "-x"},
                                       {"gory b", "Category b", "xx"},
                                       {"secret", "Provided p", "x-"},
                                       {"VIDED", "Provided p", "--"},
                                       {"C++ (x", "", "x-"},
                                       {".*", "", "x-"},
                                       {"", "Category a, Category b, Provided p", "xx"}};
        for (const auto& [text, captions, enabled] : rows) {
            open(u"a"_s, u"a1"_s);
            parts.search->setText(u"x"_s);
            parts.search->setText(QString::fromLatin1(text));
            QCOMPARE(parts.captions().join(u", "_s), QString::fromLatin1(captions));
            QString marks;
            for (int tab = 0; tab < parts.tabs()->count(); ++tab)
                marks += parts.tabs()->isTabEnabled(tab) ? u'x' : u'-';
            QCOMPARE(marks, QString::fromLatin1(enabled));
        }
        for (const auto& page : {u"b2"_s, u"a2"_s}) { // what is asked for shows
            parts.search->setText(u"secret"_s);
            open(page.first(1), page);
            QCOMPARE(parts.tab(), u"Page "_s + page);
            QVERIFY(parts.tabs()->isTabEnabled(1));
        }
        QCOMPARE(calls.size(), 6);
    }

    void remembers()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(u"s.ini"_s), QSettings::IniFormat);
        settings.setValue(u"UserSettings/Mine"_s, 7);
        add(u"a"_s, u"a1"_s);
        QWidget parent;
        parent.setGeometry(1000, 700, 400, 300);
        for (const QString& category : {u"b"_s, QString(), u"a"_s}) {
            provide(u"b"_s, new Page(u"b"_s, u"b1"_s), new Page(u"b"_s, u"b2"_s));
            OptionsDialog* dialog =
                open(category, category.isEmpty() ? category : u"b2"_s, &parent);
            if (category == u"b"_s) {
                dialog->resize(1234, 777);
                dialog->writeUserSettings(settings);
            } else {
                dialog->readUserSettings(settings);
                QCOMPARE(dialog->geometry(), QRect(1199 - 616, 849 - 388, 1234, 777));
            }
            // What is asked for goes before what is remembered.
            QCOMPARE(Parts(*dialog).tab(), category == u"a"_s ? u"Page a1"_s : u"Page b2"_s);
            delete dialog;
        }
        QCOMPARE(settings.value(u"UserSettings/Mine"_s).toInt(), 7);

        // Wherever its owner is, it opens within the screen.
        for (const int corner : {-900, 1900}) {
            settings.setValue(u"UserSettings/LastSize"_s,
                              corner < 0 ? QSize(600, 400) : QSize(9000, 9000));
            parent.move(corner, corner);
            OptionsDialog* dialog = open({}, {}, &parent);
            dialog->readUserSettings(settings);
            QRect place;
            whenShown<OptionsDialog>(this, [&](OptionsDialog& shown) {
                place = {shown.pos(), shown.size()};
                ok(shown);
            });
            QVERIFY(dialog->execDialog());
            const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
            if (screen.size() == screen.size().expandedTo({1000, 600}))
                QVERIFY(screen.contains(place));
        }
    }

    void readsDamagedSettings()
    {
        for (const auto& [content, caption] :
             {std::pair(QByteArray(), u"Category a"_s),
              {QByteArray("\0\xff[[=\n@", 7), u"Category a"_s},
              {"[UserSettings]\nLastSize=@Size(-7 x)\nLastCategory=b\n=\n", u"Category b"_s},
              {"[UserSettings]\nLastCategory=x\nLastPage=y\n", u"Category a"_s}}) {
            add(u"a"_s, u"a1"_s);
            add(u"b"_s, u"b1"_s);
            const QTemporaryDir folder;
            const QString file = writeFile(folder.filePath(u"s.ini"_s), content);
            QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));

            QSettings settings(file, QSettings::IniFormat);
            OptionsDialog* dialog = open();
            dialog->readUserSettings(settings);
            QCOMPARE(dialog->size(), QSize(1000, 600));
            whenShown<OptionsDialog>(this, [expected = caption](OptionsDialog& shown) {
                QCOMPARE(Parts(shown).caption(), expected);
                ok(shown);
            });
            QVERIFY(dialog->execDialog());
            // A place where nothing can be written.
            QSettings nowhere(file + u"/s.ini"_s, QSettings::IniFormat);
            dialog->writeUserSettings(nowhere);
            nowhere.sync();
            QCOMPARE(readFile(file), content);
            cleanup();
        }
    }

    void textsAreFound()
    {
        TextPage page(u"a"_s, u"a1"_s);
        QVERIFY(!page.matches(u"proxy"_s)); // there is no widget yet
        std::unique_ptr<QWidget> widget(page.createWidget(nullptr));
        for (const auto& text : {u"proxy"_s, u"AB"_s, u"rememb"_s, u"TEST"_s, u"server"_s, u""_s})
            QVERIFY2(page.matches(text), qPrintable(text));
        QVERIFY(!page.matches(u"direct"_s));
        QCOMPARE(static_cast<SettingsBaseWidget*>(widget.get())->searchKeywords().join(u' '),
                 u"&Server &Proxy A&&B Remember Te&st Dir&ect"_s);

        widget->findChild<QLabel*>()->setText(u"Gateway"_s);
        QVERIFY(!page.matches(u"gateway"_s));
        page.forgetTexts();
        QVERIFY(page.matches(u"gateway"_s));
        widget.reset();
        QVERIFY(page.matches(u"gateway"_s));
    }

    void whatIsDeletedLeavesTheLists()
    {
        Page* first = add(u"a"_s, u"a1"_s);
        const QPointer<Page> second = add(u"a"_s, u"a2"_s);
        auto* provider = new Provider(u"a"_s, {first, nullptr, second});
        SettingsManager::m_listProvider << provider;
        QCOMPARE(provider->pages().size(), 3);
        delete first;
        QCOMPARE(provider->pages(), QList<ISettingsPage*>({nullptr, second}));
        QCOMPARE(SettingsManager::GetPages(), QList<ISettingsPage*>({second}));
        delete provider;
        QVERIFY(!second);
        QVERIFY(SettingsManager::GetProvider().isEmpty());
    }

private:
    Page* add(const QString& category, const QString& id, const QString& text = {})
    {
        m_pages << new Page(category, id, text);
        SettingsManager::m_listPages << m_pages.last();
        return m_pages.last();
    }
    static OptionsDialog* open(const QString& category = {}, const QString& page = {},
                               QWidget* parent = nullptr)
    {
        return OptionsDialog::getSettingsDialog(parent, category, page);
    }

    QList<QPointer<Page>> m_pages;
};

QTEST_MAIN(TestOptionsDialog)
#include "tst_optionsdialog.moc"
