// SPDX-License-Identifier: MIT
#include "updatespage.h"

#include <CorvelGui/AppUpdater>
#include <CorvelGui/AppUpdaterDialog>
#include <CorvelGui/PChangeLogDialog>
#include <CorvelGui/PCheckVersionUpdate>
#include <CorvelGui/PCheckVersionUpdateDialog>

#include <QDateTime>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVersionNumber>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

const QString changeLog =
    u"<style>body{color:#eee;background:#fff}</style><h2>Version 2.1</h2>"
    "<p>The <b>timeline</b> is twice as fast. See the <a href='https://example.org/'>notes</a>.</p>"
    "<ul><li>Markers merge <i>sooner</i><li>Export of pictures</ul>"
    "<table border=5><tr><th>Zoom level<th>Before<th>Now<tr><td>Hour<td>4 ms<td>2 ms</table>"
    "<p><font size=7 color=yellow>Tracks</font><img src='file:///etc/passwd'>"
    "<script>alert(1)</script> and <a href='file:///bin/sh'>programs</a> are left alone.</p>"_s;

/// The dialog as a part of the page; it goes away when it is accepted or rejected.
QDialog* embedded(QDialog* dialog)
{
    dialog->setWindowFlags(Qt::Widget);
    return dialog;
}

} // namespace

UpdatesPage::UpdatesPage(QWidget* parent) : QWidget(parent)
{
    auto* log = new PChangeLogDialog;
    log->setHtml(changeLog);
    auto* offer = new PCheckVersionUpdateDialog(
        u"Gallery (Internal Release Channel)\n\nCurrent version: 2.0.9\nA new version is "
        "available: 2.1.0\nRelease date: 1 May 2026\n\nWould you like to download this version?"_s,
        changeLog);
    auto* update =
        new AppUpdaterDialog(u"Gallery"_s, QVersionNumber(2, 0, 9), QVersionNumber(2, 1),
                             u"https://example.org/notes"_s, QDateTime::currentDateTime());

    const QString server = u"http://127.0.0.1:8480"_s;
    auto* versionCheck =
        new PCheckVersionUpdate(this, u"0.1.0.0"_s, server + u'/', server + u"/internal/"_s, true);
    auto* updater = new AppUpdater(u"Gallery"_s, server, this);
    auto* checkVersionFile = new QPushButton(tr("Check version file at %1").arg(server));
    auto* askServer = new QPushButton(tr("Ask update server at %1").arg(server));
    connect(checkVersionFile, &QPushButton::clicked, versionCheck,
            [versionCheck] { versionCheck->checkVersion(true); });
    connect(askServer, &QPushButton::clicked, updater,
            [updater] { updater->checkForUpdates(u"gallery"_s, QVersionNumber(0, 1), true); });

    auto* grid = new QGridLayout(this);
    grid->setSpacing(16);
    grid->addWidget(new QLabel(tr("From a version file")), 0, 0);
    grid->addWidget(embedded(offer), 1, 0);
    grid->addWidget(new QLabel(tr("From an update server")), 0, 1);
    grid->addWidget(embedded(update), 1, 1);
    grid->addWidget(new QLabel(tr("A change log with styles, pictures and scripts")), 2, 0);
    grid->addWidget(embedded(log), 3, 0, 1, 2);
    grid->addWidget(checkVersionFile, 4, 0, Qt::AlignLeft);
    grid->addWidget(askServer, 4, 1, Qt::AlignLeft);
}

} // namespace Gallery
