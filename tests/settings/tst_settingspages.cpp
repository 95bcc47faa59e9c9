#include "testfiles.h"
#include "testsupport.h"

#include <CorvelGui/ISettingsPage>
#include <CorvelGui/OptionPageProvider>
#include <CorvelGui/SettingsBaseWidget>
#include <CorvelGui/SettingsManager>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

class Page : public ISettingsPage
{
public:
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
    void apply() override {}
    void finish() override {}
    using ISettingsPage::setCategoryIcon;
};

class Provider : public OptionPageProvider
{
public:
    explicit Provider(const QList<ISettingsPage*>& pages) { m_pages = pages; }
};

} // namespace

class TestSettingsPages : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreFound()
    {
        Page page;
        QVERIFY(!page.matches(u"proxy"_s)); // there is no widget yet
        std::unique_ptr<QWidget> widget(page.createWidget(nullptr));
        for (const auto& text : {u"proxy"_s, u"AB"_s, u"rememb"_s, u"TEST"_s, u"server"_s, u""_s})
            QVERIFY2(page.matches(text), qPrintable(text));
        QVERIFY(!page.matches(u"direct"_s));
        const QStringList all{u"&Server"_s,  u"&Proxy"_s, u"A&&B"_s,
                              u"Remember"_s, u"Te&st"_s,  u"Dir&ect"_s};
        QCOMPARE(static_cast<SettingsBaseWidget*>(widget.get())->searchKeywords(), all);

        widget->findChild<QLabel*>()->setText(u"Gateway"_s);
        QVERIFY(!page.matches(u"gateway"_s));
        widget.reset();
        QVERIFY(page.matches(u"proxy"_s));
    }

    void iconsOfMissingPicturesAreNull()
    {
        const QTemporaryDir folder;
        const QString broken = writeFile(folder.filePath(u"broken.png"_s), "no picture");
        Page page;
        for (const auto& path : {QString(), folder.filePath(u"missing.png"_s), broken}) {
            page.setCategoryIcon(path);
            QVERIFY2(page.categoryIcon().isNull(), qPrintable(path));
        }
        page.setCategoryIcon(u":/CorvelGui/common/open.png"_s);
        QVERIFY(!page.categoryIcon().isNull());
    }

    void whatIsDeletedLeavesTheLists()
    {
        auto* first = new Page;
        const QPointer<Page> second = new Page;
        SettingsManager::m_listPages << first << second;
        auto* provider = new Provider({first, nullptr, second});
        SettingsManager::m_listProvider << provider;
        QCOMPARE(provider->pages().size(), 3);
        delete first;
        QCOMPARE(provider->pages(), QList<ISettingsPage*>({nullptr, second}));
        QCOMPARE(SettingsManager::GetPages(), QList<ISettingsPage*>({second}));
        delete provider;
        QVERIFY(!second);
        QVERIFY(SettingsManager::GetProvider().isEmpty());
    }
};

QTEST_MAIN(TestSettingsPages)
#include "tst_settingspages.moc"
