// SPDX-License-Identifier: MIT
#include "psysteminfowidget.h"

#include <CorvelGui/StringHelper>

#include <Corvel/SystemInformation>
#include <Hueloft/PIconHelper>

#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QTimeZone>
#include <QTreeWidget>

#include <utility>

using Corvel::NetworkInterfaceData;
using Corvel::SystemInformation;
using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

enum FactColumn { FactName, FactValue };

struct InfoSection
{
    QString title;
    QList<std::pair<QString, QString>> facts;
};

QString memoryText(const SystemInformation& system)
{
    const QString all = StringHelper::size(system.memory);
    return all.isEmpty() || system.availableMemory < 0
               ? all
               : PSystemInfoWidget::tr("%1, of which %2 are available")
                     .arg(all, StringHelper::size(system.availableMemory));
}

QString zoneText(const QString& zone)
{
    const QDateTime now = QDateTime::currentDateTime();
    const QString offset = now.toOffsetFromUtc(now.offsetFromUtc()).timeZoneAbbreviation();
    return zone.isEmpty() ? offset : u"%1 (%2)"_s.arg(zone, offset);
}

QString screenText(const QScreen& screen)
{
    const QLocale locale;
    const QRect area = screen.geometry();
    QStringList parts{
        PSystemInfoWidget::tr("%1 × %2 at (%3, %4)")
            .arg(QString::number(area.width()), QString::number(area.height()),
                 QString::number(area.x()), QString::number(area.y())),
        PSystemInfoWidget::tr("scale %1 %").arg(locale.toString(screen.devicePixelRatio() * 100)),
        PSystemInfoWidget::tr("%1 Hz").arg(locale.toString(screen.refreshRate(), 'f', 0))};
    if (&screen == QGuiApplication::primaryScreen())
        parts.append(PSystemInfoWidget::tr("primary"));
    return parts.join(u", "_s);
}

InfoSection programSection()
{
    return {PSystemInfoWidget::tr("Program"),
            {{PSystemInfoWidget::tr("Name"), QGuiApplication::applicationDisplayName()},
             {PSystemInfoWidget::tr("Version"), QCoreApplication::applicationVersion()},
             {u"Qt"_s, QString::fromLatin1(qVersion())},
             {PSystemInfoWidget::tr("Platform"), QGuiApplication::platformName()}}};
}

InfoSection systemSection(const SystemInformation& system)
{
    const QString processor = system.processor.isEmpty()
                                  ? system.architecture
                                  : u"%1 (%2)"_s.arg(system.processor, system.architecture);
    return {PSystemInfoWidget::tr("System"),
            {{PSystemInfoWidget::tr("Name"), system.system},
             {PSystemInfoWidget::tr("Kernel"), system.kernel},
             {PSystemInfoWidget::tr("Computer"), system.hostName},
             {PSystemInfoWidget::tr("Processor"), processor},
             {PSystemInfoWidget::tr("Threads"), QString::number(system.threads)},
             {PSystemInfoWidget::tr("Memory"), memoryText(system)},
             {PSystemInfoWidget::tr("Time zone"), zoneText(system.timeZone)},
             {PSystemInfoWidget::tr("Language"), QLocale().bcp47Name()}}};
}

InfoSection screenSection(const SystemInformation& system)
{
    InfoSection section{PSystemInfoWidget::tr("Screens and graphics"), {}};
    for (const QScreen* screen : QGuiApplication::screens())
        section.facts.append(
            {screen->name().isEmpty() ? PSystemInfoWidget::tr("Screen") : screen->name(),
             screenText(*screen)});
    const QString none = PSystemInfoWidget::tr("Software: no graphics adapter was found");
    section.facts.append({PSystemInfoWidget::tr("Graphics"),
                          system.graphics.isEmpty() ? none : system.graphics.join(u", "_s)});
    return section;
}

InfoSection networkSection(const SystemInformation& system)
{
    InfoSection section{PSystemInfoWidget::tr("Network"), {}};
    for (const NetworkInterfaceData& data : system.networkInterfaces.getList())
        section.facts.append({data.getReadableName(),
                              data.getHostAddress().toString() + u" / "_s + data.getNetmask()});
    if (section.facts.isEmpty())
        section.facts.append(
            {PSystemInfoWidget::tr("Interfaces"), PSystemInfoWidget::tr("None that is up")});
    return section;
}

} // namespace

struct PSystemInfoWidget::Private
{
    QTreeWidget* const tree = new QTreeWidget;
    QPushButton* const copy = new QPushButton;
    QPushButton* const refresh = new QPushButton;
    QList<InfoSection> sections{};

    void show()
    {
        tree->clear();
        for (const InfoSection& section : std::as_const(sections)) {
            auto* group = new QTreeWidgetItem(tree, {section.title});
            group->setFirstColumnSpanned(true);
            QFont bold = tree->font();
            bold.setBold(true);
            group->setFont(FactName, bold);
            for (const auto& [name, value] : section.facts)
                (new QTreeWidgetItem(group, {name, value}))->setToolTip(FactValue, value);
        }
        tree->expandAll();
        tree->resizeColumnToContents(FactName);
    }
};

PSystemInfoWidget::PSystemInfoWidget(QWidget* parent) : PWidget(parent), d(new Private)
{
    d->tree->setColumnCount(2);
    d->tree->setHeaderHidden(true);
    d->tree->setRootIsDecorated(false);
    d->tree->setUniformRowHeights(true);
    d->copy->setIcon(Hueloft::PIconHelper::GetCopyIcon_32x32(true));
    d->refresh->setIcon(Hueloft::PIconHelper::GetRefreshIcon_256x256(true));
    for (QPushButton* button : {d->copy, d->refresh})
        button->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(d->refresh);
    buttons->addWidget(d->copy);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(d->tree);
    layout->addLayout(buttons);

    const auto refreshIfShown = [this] {
        if (isVisible())
            refresh();
    };
    // A screen that goes is still in the list while it says so.
    connect(qGuiApp, &QGuiApplication::screenAdded, this, refreshIfShown, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, refreshIfShown, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, refreshIfShown,
            Qt::QueuedConnection);
    connect(d->copy, &QPushButton::clicked, this, &PSystemInfoWidget::copy);
    connect(d->refresh, &QPushButton::clicked, this, &PSystemInfoWidget::refresh);
    retranslate();
}

PSystemInfoWidget::~PSystemInfoWidget() = default;

QString PSystemInfoWidget::toPlainText() const
{
    QStringList lines;
    for (const InfoSection& section : std::as_const(d->sections)) {
        lines.append(section.title);
        for (const auto& [name, value] : section.facts)
            lines.append(u"  %1: %2"_s.arg(name, value));
    }
    return lines.join(u'\n');
}

void PSystemInfoWidget::refresh()
{
    const SystemInformation system = SystemInformation::current();
    d->sections = {programSection(), systemSection(system), screenSection(system),
                   networkSection(system)};
    for (InfoSection& section : d->sections)
        section.facts.removeIf([](const auto& fact) { return fact.second.isEmpty(); });
    d->show();
    Q_EMIT refreshed();
}

void PSystemInfoWidget::copy()
{
    QGuiApplication::clipboard()->setText(toPlainText());
}

void PSystemInfoWidget::showEvent(QShowEvent* event)
{
    PWidget::showEvent(event);
    refresh();
}

void PSystemInfoWidget::retranslate()
{
    d->tree->setAccessibleName(tr("System information"));
    d->copy->setText(tr("&Copy"));
    d->refresh->setText(tr("&Refresh"));
    if (isVisible())
        refresh();
}

} // namespace CorvelGui
