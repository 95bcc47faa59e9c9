// SPDX-License-Identifier: MIT
#include "aboutdialog.h"

#include "video/ffmpeg.h"

#include <CorvelGui/AboutInfo7>
#include <CorvelGui/PSystemInfoWidget>
#include <Hueloft/PPlayerIconHelper>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

using CorvelGui::AboutInfo7;
using CorvelGui::Info3rdLicences;
using CorvelGui::PSystemInfoWidget;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

/// Beside the program where it brings the texts with it, else where Debian has them.
QString licenceFile(const QString& name)
{
    const QString own =
        QDir(QCoreApplication::applicationDirPath()).filePath(u"../licences/%1.txt"_s.arg(name));
    return QFileInfo::exists(own) ? QDir::cleanPath(own) : u"/usr/share/common-licenses/"_s + name;
}

/// FFmpeg says which licence holds for the way in which it was built.
QStringList ffmpegLicenceFiles(const QString& licence)
{
    if (licence.startsWith(u"LGPL version 2.1"_s))
        return {licenceFile(u"LGPL-2.1"_s)};
    if (licence.startsWith(u"LGPL version 3"_s))
        return {licenceFile(u"LGPL-3"_s), licenceFile(u"GPL-3"_s)};
    if (licence.startsWith(u"GPL version 2"_s))
        return {licenceFile(u"GPL-2"_s)};
    return {licenceFile(u"GPL-3"_s)};
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : Translated(parent)
    , m_about(new AboutInfo7)
    , m_licences(new Info3rdLicences)
    , m_tabs(new QTabWidget)
{
    resize(720, 480);
    setSizeGripEnabled(true);
    m_about->setLogo(Hueloft::PPlayerIconHelper::GetDateTimeIcon_32x32(false));
    m_about->setBuild(u"Qt %1"_s.arg(QLatin1StringView(QT_VERSION_STR)));
    m_tabs->addTab(m_about, QString());
    m_tabs->addTab(m_licences, QString());
    m_tabs->addTab(new PSystemInfoWidget, QString());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(buttons);
    retranslate();
}

QList<Info3rdLicences::Component> AboutDialog::components()
{
    const QString ffmpeg = QString::fromUtf8(avformat_license());
    QList<Info3rdLicences::Component> all{
        {.name = u"Qt"_s,
         .version = QString::fromLatin1(qVersion()),
         .licence = u"LGPL version 3"_s,
         .note = tr("Windows, texts, pictures and network. Copyright The Qt Company Ltd. and "
                    "other contributors."),
         .homepage = QUrl(u"https://www.qt.io/"_s),
         .textFiles = {licenceFile(u"LGPL-3"_s), licenceFile(u"GPL-3"_s)}},
        {.name = u"FFmpeg"_s,
         .version = QString::fromUtf8(av_version_info()),
         .licence = ffmpeg,
         .note = tr("Reads and writes recordings. Copyright the FFmpeg developers."),
         .homepage = QUrl(u"https://ffmpeg.org/"_s),
         .textFiles = ffmpegLicenceFiles(ffmpeg)}};
#ifdef __GLIBCXX__
    all.append({.name = tr("GCC runtime library"),
                .version = QString::number(__GNUC__),
                .licence = tr("GPL version 3 with the GCC Runtime Library Exception"),
                .note = tr("The C++ standard library. Copyright Free Software Foundation, Inc."),
                .homepage = QUrl(u"https://gcc.gnu.org/"_s),
                .textFiles = {licenceFile(u"GPL-3"_s)}});
#endif
#ifdef __GLIBC__
    all.append({.name = tr("GNU C library"),
                .version = u"%1.%2"_s.arg(__GLIBC__).arg(__GLIBC_MINOR__),
                .licence = u"LGPL version 2.1 or later"_s,
                .note = tr("Copyright Free Software Foundation, Inc."),
                .homepage = QUrl(u"https://www.gnu.org/software/libc/"_s),
                .textFiles = {licenceFile(u"LGPL-2.1"_s)}});
#endif
    return all;
}

void AboutDialog::retranslate()
{
    setWindowTitle(tr("About %1").arg(m_about->productName()));
    m_about->setCopyright(tr("Copyright © 2026 the CorvelGui authors, under the MIT licence."));
    m_licences->setComponents(components());
    m_tabs->setTabText(0, tr("Program"));
    m_tabs->setTabText(1, tr("Licences"));
    m_tabs->setTabText(2, tr("System"));
}

} // namespace Review
