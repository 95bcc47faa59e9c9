// SPDX-License-Identifier: MIT
#include "pages.h"

#include "busyindicatorpage.h"
#include "colourspage.h"
#include "csvdialogpage.h"
#include "datespage.h"
#include "datetimeviewpage.h"
#include "dialogspage.h"
#include "fancylineeditspage.h"
#include "graphicsviewpage.h"
#include "helperspage.h"
#include "iconspage.h"
#include "imagespage.h"
#include "languagespage.h"
#include "lineeditspage.h"
#include "longlistpage.h"
#include "lookspage.h"
#include "networkboxespage.h"
#include "newspage.h"
#include "optionspage.h"
#include "overviewpage.h"
#include "playbarpage.h"
#include "printingpage.h"
#include "progresspage.h"
#include "proxysettingspage.h"
#include "rulerpage.h"
#include "sliderspage.h"
#include "smallinputspage.h"
#include "tableitemspage.h"
#include "tablepage.h"
#include "tabwidgetpage.h"
#include "tooltipspage.h"
#include "treepage.h"
#include "updatespage.h"
#include "zoomtimelinepage.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

template <typename Widget>
QWidget* create(QWidget* parent)
{
    return new Widget(parent);
}

} // namespace

const std::vector<Page>& pages()
{
    static const std::vector<Page> all{
        // Theme
        {u"Looks"_s, create<LooksPage>},
        {u"Colours"_s, create<ColoursPage>},
        {u"Icons"_s, create<IconsPage>},
        // Frame
        {u"Tooltips"_s, create<ToolTipsPage>},
        {u"Helpers"_s, create<HelpersPage>},
        // Timeline
        {u"Ruler"_s, create<RulerPage>},
        {u"Overview"_s, create<OverviewPage>},
        {u"Zoom timeline"_s, create<ZoomTimelinePage>},
        // Playback
        {u"Playbar"_s, create<PlaybarPage>},
        {u"Date-time view"_s, create<DateTimeViewPage>},
        {u"Sliders"_s, create<SlidersPage>},
        {u"Dates and times"_s, create<DatesPage>},
        // Input
        {u"Line edits"_s, create<LineEditsPage>},
        {u"Fancy line edits"_s, create<FancyLineEditsPage>},
        {u"Network boxes"_s, create<NetworkBoxesPage>},
        {u"Small inputs"_s, create<SmallInputsPage>},
        // Dialogs
        {u"Dialogs"_s, create<DialogsPage>},
        {u"CSV dialog"_s, create<CsvDialogPage>},
        // Item views
        {u"Tree widget"_s, create<TreePage>},
        {u"Table widget"_s, create<TablePage>},
        {u"Long lists"_s, create<LongListPage>},
        {u"Table items"_s, create<TableItemsPage>},
        {u"Tab widget"_s, create<TabWidgetPage>},
        // Image views
        {u"Images"_s, create<ImagesPage>},
        {u"Graphics view"_s, create<GraphicsViewPage>},
        // Progress
        {u"Busy indicator"_s, create<BusyIndicatorPage>},
        {u"Progress"_s, create<ProgressPage>},
        // Settings
        {u"Options dialog"_s, create<OptionsPage>},
        {u"Languages"_s, create<LanguagesPage>},
        {u"Proxy settings"_s, create<ProxySettingsPage>},
        // Updates
        {u"Updates"_s, create<UpdatesPage>},
        {u"News and product information"_s, create<NewsPage>},
        // Printing
        {u"Printing"_s, create<PrintingPage>},
    };
    return all;
}

int pageIndex(const QString& title)
{
    const auto page = std::ranges::find_if(pages(), [&title](const Page& candidate) {
        return candidate.title.compare(title, Qt::CaseInsensitive) == 0;
    });
    return page == pages().end() ? -1 : int(page - pages().begin());
}

} // namespace Gallery
