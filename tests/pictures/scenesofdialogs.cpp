// SPDX-License-Identifier: MIT
#include "memorypasswordstore.h"
#include "scenes.h"
#include "sheet.h"
#include "testsupport.h"

#include <Corvel/ProxyUserSettings>
#include <CorvelGui/AboutInfo7>
#include <CorvelGui/AppUpdaterDialog>
#include <CorvelGui/ISettingsPage>
#include <CorvelGui/Info3rdLicences>
#include <CorvelGui/OptionsDialog>
#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PChangeLogDialog>
#include <CorvelGui/PCheckVersionUpdateDialog>
#include <CorvelGui/PCsvDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PPasswordInputDialog>
#include <CorvelGui/ProxySettingsWidget>
#include <CorvelGui/RSSFeedDialog>
#include <CorvelGui/SettingsBaseWidget>
#include <CorvelGui/SettingsManager>
#include <Hueloft/PMessageBox>
#include <Hueloft/PPlayerIconHelper>

#include <QFormLayout>
#include <QTreeWidget>
#include <QVersionNumber>

using namespace CorvelGui;
using Hueloft::PMessageBox;

namespace {

class Page : public ISettingsPage
{
public:
    Page(const QString& category, const QString& icon, const QString& name)
    {
        setCategory(category);
        setDisplayCategory(category);
        setCategoryIcon(u":/CorvelGui/common/"_s + icon);
        setId(name);
        setDisplayName(name);
    }

    QWidget* createWidget(QWidget* parent) override
    {
        auto* widget = new SettingsBaseWidget(parent);
        auto* form = new QFormLayout(widget);
        form->addRow(u"Time &zone:"_s, new QComboBox);
        form->addRow(new QCheckBox(u"Show &milliseconds"_s));
        m_widget = widget;
        return widget;
    }

    void apply() override {}
    void finish() override {}
};

/// As a part of the window of the picture.
template <typename Dialog>
Dialog* embedded(Dialog* dialog)
{
    dialog->setWindowFlags(Qt::Widget);
    return dialog;
}

const QString changeLog =
    u"<h2>Version 2.1</h2><p>The <b>timeline</b> is <a href='https://example.org/'>faster</a>.</p>"
    "<ul><li>Markers merge <i>sooner</i></ul><table border=5><tr><th>Level<th>Now<tr><td>Hour"
    "<td>2 ms</table><p><font color=yellow>Tracks</font></p>"_s;

} // namespace

void Scenes::messages(Sheet& sheet)
{
    const auto answer = [&sheet](const QString& name) {
        whenShown<QMessageBox>(qApp, [&sheet, name](QMessageBox& box) {
            sheet.grab(name, box);
            box.defaultButton()->click();
        });
    };
    const auto buttons = QMessageBox::Retry | QMessageBox::Cancel;
    answer(u"critical"_s);
    PMessageBox::Critical(nullptr, u"Export"_s, u"The disk is full."_s, buttons,
                          QMessageBox::Cancel);
    answer(u"warning"_s);
    PMessageBox::Warning(nullptr, u"Export"_s, u"The disk is <nearly> full."_s, buttons,
                         QMessageBox::Retry, u"Two clips\nwere written."_s);
    answer(u"information"_s);
    PMessageBox::Information(nullptr, u"Export"_s, u"Done."_s, QMessageBox::Ok, QMessageBox::Ok, {},
                             u"All of it"_s);
    answer(u"question"_s);
    PMessageBox::Question(nullptr, u"Export"_s, u"Export again?"_s, QMessageBox::No);
}

void Scenes::dialogs(Sheet& sheet)
{
    QTreeWidget events;
    events.setHeaderLabels({u"Time"_s, u"Kind"_s, u"Text"_s});
    new QTreeWidgetItem(&events, {u"08:15"_s, u"Door"_s, u"Gate"_s});
    for (const QString& file : {u"/tmp/events.csv"_s, QString()}) {
        auto* csv = embedded(new PCsvDialog);
        csv->InitWithTreeWidget(&events);
        csv->findChild<QLineEdit*>(u"lineEditExportToFile"_s)->setText(file);
        sheet.show(u"CSV"_s, csv, {340, 250});
    }
    auto* range = embedded(new PIpRangeDialog);
    range->setMask(24);
    sheet.show(u"IP range"_s, range);
    sheet.show(u"password"_s, embedded(new PPasswordInputDialog(u"corvel"_s)));
    sheet.show(u"refresh"_s, embedded(new PAskRefreshDialog(
                                 nullptr, QDateTime(QDate(2024, 3, 30), QTime(7, 15)), true)));
}

void Scenes::options(Sheet& sheet)
{
    Page look(u"Display"_s, u"fit.png"_s, u"Look"_s);
    Page time(u"Display"_s, u"fit.png"_s, u"Time"_s);
    Page playback(u"Playback"_s, u"rightarrow.png"_s, u"Speed"_s);
    SettingsManager::m_listPages = {&look, &time, &playback};
    const std::unique_ptr<OptionsDialog> dialog(
        OptionsDialog::getSettingsDialog(nullptr, u"Display"_s, u"Look"_s));
    dialog->resize(470, 200);
    dialog->show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    sheet.grab(u"options"_s, *dialog);
    dialog->findChild<QLineEdit*>()->setText(u"speed"_s);
    sheet.grab(u"searched options"_s, *dialog);
    SettingsManager::m_listPages.clear();

    using Corvel::ProxyUserSettings;
    ProxyUserSettings proxy{.mode = ProxyUserSettings::Mode::Http,
                            .host = u"proxy.example"_s,
                            .port = 3128,
                            .user = u"operator"_s,
                            .password = u"not a secret"_s,
                            .excludedHosts = {u"*.cameras.example"_s, u"10.0.0.0/8"_s}};
    MemoryPasswordStore store;
    for (const bool isGood : {true, false}) {
        if (!isGood) {
            proxy.mode = ProxyUserSettings::Mode::Socks5;
            proxy.host = u"proxy example"_s;
            proxy.excludedHosts = {u"10.0.0.0/33"_s};
        }
        auto* widget = new ProxySettingsWidget;
        widget->setSettings(proxy);
        widget->setPasswordStore(&store);
        widget->setTestAddress(QUrl(u"http://127.0.0.1:1/"_s));
        sheet.show(u"proxy"_s, widget, {360, 0});
    }
}

void Scenes::updates(Sheet& sheet)
{
    auto* log = embedded(new PChangeLogDialog);
    log->setHtml(changeLog);
    sheet.show(u"change log"_s, log, {300, 210});
    sheet.show(
        u"version"_s,
        embedded(new PCheckVersionUpdateDialog(
            u"Gallery\n\nCurrent version: 2.0.9\nA new version is available: 2.1.0"_s, changeLog)));
    sheet.show(u"update"_s,
               embedded(new AppUpdaterDialog(u"Gallery"_s, QVersionNumber(2, 0, 9),
                                             QVersionNumber(2, 1), u"https://example.org/notes"_s,
                                             QDateTime(QDate(2026, 5, 1), QTime(12, 0)))));
    sheet.show(u"news"_s, embedded(new RSSFeedDialog), {400, 200});
    auto* about = new AboutInfo7;
    about->setVersion(u"0.1.0"_s);
    about->setBuild(u"2026-03-02"_s);
    about->setCopyright(u"Copyright © 2026 the authors"_s);
    about->setLogo(Hueloft::PPlayerIconHelper::GetDateTimeIcon_32x32(false));
    about->addLink(u"Product page"_s, QUrl(u"https://example.org/"_s));
    sheet.show(u"about"_s, about);
    auto* licences = new Info3rdLicences;
    licences->setComponents({{.name = u"One"_s, .version = u"1.2"_s, .licence = u"BSD"_s},
                             {.name = u"Two"_s,
                              .licence = u"Apache License 2.0"_s,
                              .note = u"Its text is long."_s,
                              .homepage = QUrl(u"https://example.org/"_s)}});
    sheet.show(u"licences"_s, licences, {440, 200});
}
