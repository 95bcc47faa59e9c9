// SPDX-License-Identifier: MIT
#include "knownwidgets.h"

#include "widgets.h"

#include <CorvelGui/AboutInfo7>
#include <CorvelGui/AppUpdaterDialog>
#include <CorvelGui/BusyIndicator>
#include <CorvelGui/Indicator>
#include <CorvelGui/Info3rdLicences>
#include <CorvelGui/PAskRefreshDialog>
#include <CorvelGui/PChangeLogDialog>
#include <CorvelGui/PCheckVersionUpdateDialog>
#include <CorvelGui/PCsvDialog>
#include <CorvelGui/PDateTimeSelectionDialog>
#include <CorvelGui/PIpRangeDialog>
#include <CorvelGui/PLanguageDialog>
#include <CorvelGui/PPasswordInputDialog>
#include <CorvelGui/RSSFeedDialog>
#include <CorvelGui/Ruler>
#include <CorvelGui/TimelineLanes>
#include <CorvelGui/ToolBarWithLabel>
#include <CorvelGui/ZoomGraphicsView>
#include <CorvelGui/Zoomer>

#include <QDateTime>
#include <QVersionNumber>

#include <algorithm>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

template <typename Widget>
QWidget* created(QWidget* parent)
{
    return new Widget(parent);
}

QWidget* createdLanes(QWidget* parent)
{
    auto* ruler = new Ruler;
    auto* lanes = new TimelineLanes(ruler, parent);
    ruler->setParent(lanes);
    ruler->hide();
    return lanes;
}

QWidget* createdDateTimeDialog(QWidget* parent)
{
    auto* dialog = new PDateTimeSelectionDialog(parent);
    dialog->setDateTime(QDateTime::fromSecsSinceEpoch(0)); // the moment is never the same again
    return dialog;
}

QList<KnownWidget> knownDialogs()
{
    return {
        {&AppUpdaterDialog::staticMetaObject,
         [](QWidget* parent) { return new AppUpdaterDialog({}, {}, {}, {}, {}, parent); },
         u"productName, installedVersion, newVersion, notesAddress, releaseDate, parent"_s},
        {&PAskRefreshDialog::staticMetaObject,
         [](QWidget* parent) { return new PAskRefreshDialog(parent, {}, true); },
         u"parent, lastUpdate, true"_s},
        {&PChangeLogDialog::staticMetaObject, created<PChangeLogDialog>, u"parent"_s},
        {&PCheckVersionUpdateDialog::staticMetaObject,
         [](QWidget* parent) { return new PCheckVersionUpdateDialog({}, {}, parent); },
         u"message, changeLog, parent"_s},
        {&PCsvDialog::staticMetaObject, created<PCsvDialog>, u"list"_s},
        {&PDateTimeSelectionDialog::staticMetaObject, createdDateTimeDialog, u"parent"_s},
        {&PIpRangeDialog::staticMetaObject, created<PIpRangeDialog>, u"parent"_s},
        {&PLanguageDialog::staticMetaObject,
         [](QWidget* parent) { return new PLanguageDialog(parent, {}, {}, {}, false); },
         u"parent, prefix, folder, language, true"_s},
        {&PPasswordInputDialog::staticMetaObject,
         [](QWidget* parent) { return new PPasswordInputDialog({}, parent); },
         u"expectedPassword, parent"_s},
        {&RSSFeedDialog::staticMetaObject, created<RSSFeedDialog>, u"parent"_s},
    };
}

/// Those that stand in no form, and then all that do.
QList<KnownWidget> allKnownWidgets()
{
    QList<KnownWidget> all{
        {&AboutInfo7::staticMetaObject, created<AboutInfo7>},
        {&BusyIndicator::staticMetaObject, created<BusyIndicator>},
        {&Indicator::staticMetaObject, created<Indicator>},
        {&Info3rdLicences::staticMetaObject, created<Info3rdLicences>},
        {&TimelineLanes::staticMetaObject, createdLanes, u"ruler"_s},
        {&ToolBarWithLabel::staticMetaObject,
         [](QWidget* parent) { return new ToolBarWithLabel(QString(), parent); },
         u"QString(), parent"_s},
        {&ZoomGraphicsView::staticMetaObject,
         [](QWidget* parent) { return new ZoomGraphicsView(nullptr, QVariant(), parent); },
         u"scene, QVariant()"_s},
        {&Zoomer::staticMetaObject, [](QWidget* parent) { return new Zoomer(8, parent); }, u"8"_s},
    };
    all.append(knownDialogs());
    for (const FormWidget& widget : formWidgets())
        all.append({widget.meta, widget.create});
    return all;
}

} // namespace

QString KnownWidget::name() const
{
    return QString::fromLatin1(meta->className()).section(u"::"_s, -1);
}

const QList<KnownWidget>& knownWidgets()
{
    static const QList<KnownWidget> known = allKnownWidgets();
    return known;
}

const KnownWidget* knownWidget(const QWidget& widget)
{
    const QList<KnownWidget>& known = knownWidgets();
    for (const QMetaObject* meta = widget.metaObject(); meta; meta = meta->superClass()) {
        const auto found = std::ranges::find(known, meta, &KnownWidget::meta);
        if (found != known.end())
            return &*found;
    }
    return nullptr;
}

} // namespace Gallery
