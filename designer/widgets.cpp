// SPDX-License-Identifier: MIT
#include "widgets.h"

#include <CorvelGui/CheckDirLineEdit>
#include <CorvelGui/CheckFileNameLineEdit>
#include <CorvelGui/CountryCodeLineEdit>
#include <CorvelGui/FancyLineEdit>
#include <CorvelGui/FileNameValidatingLineEdit>
#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/IconButton>
#include <CorvelGui/InputLengthLineEdit>
#include <CorvelGui/IpLineEdit>
#include <CorvelGui/NetworkInterfaceComboBox>
#include <CorvelGui/NotEmptyLineEdit>
#include <CorvelGui/PClickableLabel>
#include <CorvelGui/PColorButton>
#include <CorvelGui/PColorComboBox>
#include <CorvelGui/PDateEdit>
#include <CorvelGui/PErrorLabel>
#include <CorvelGui/PFileCheckLineEdit>
#include <CorvelGui/PFilterButton>
#include <CorvelGui/PFractionalProgressBar>
#include <CorvelGui/PImageAndLabelWidget>
#include <CorvelGui/PImageWidget>
#include <CorvelGui/PInputDateTimeWithRange>
#include <CorvelGui/PIpLineEdit>
#include <CorvelGui/PLastActionToolButton>
#include <CorvelGui/PPlaybar>
#include <CorvelGui/PRecentComboBox>
#include <CorvelGui/PSlider>
#include <CorvelGui/PStringComboBox>
#include <CorvelGui/PSystemInfoWidget>
#include <CorvelGui/PTabWidget>
#include <CorvelGui/PTableWidget>
#include <CorvelGui/PTextEdit>
#include <CorvelGui/PTreeWidget>
#include <CorvelGui/PopupSliderToolButton>
#include <CorvelGui/ProxySettingsWidget>
#include <CorvelGui/RangeSlider>
#include <CorvelGui/Ruler>
#include <CorvelGui/RulerMarker>
#include <CorvelGui/SubNetMaskComboBox>
#include <CorvelGui/TarvoDateTimeView>
#include <CorvelGui/TarvoToolButton>
#include <CorvelGui/TimelineScroll>
#include <CorvelGui/TrackDescription>
#include <CorvelGui/UrlLineEdit>
#include <CorvelGui/VideoSlider>
#include <CorvelGui/ZoomTimeline>
#include <Hueloft/PIconHelper>

#include <QTimeZone>

using namespace CorvelGui;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 hour = 3'600'000;
constexpr qint64 sampleBegin = 1'767'258'000'000;
constexpr qint64 sampleEnd = sampleBegin + 8 * hour;

template <typename Widget>
FormWidget widget(Pictogram pictogram, const QString& toolTip, QSize size,
                  const std::function<void(Widget&)>& fill = {})
{
    FormWidget result;
    result.meta = &Widget::staticMetaObject;
    result.pictogram = pictogram;
    result.toolTip = toolTip;
    result.size = size;
    result.create = [](QWidget* parent) {
        return new Widget(parent);
    };
    if (fill)
        result.fill = [fill](QWidget& made) {
            fill(static_cast<Widget&>(made));
        };
    return result;
}

QList<FormWidget> inGroup(const QString& group, QList<FormWidget> widgets)
{
    for (FormWidget& widget : widgets)
        widget.group = u"CorvelGui: "_s + group;
    return widgets;
}

FormWidget container(FormWidget widget)
{
    widget.isContainer = true;
    return widget;
}

void fillRuler(Ruler& ruler)
{
    ruler.setTimeZone(u"UTC"_s);
    ruler.setTimeLimits(sampleBegin, sampleEnd);
    TrackDescription track{u"1"_s, u"Entrance"_s, sampleBegin, sampleEnd, {}};
    for (const int begin : {0, 2, 5})
        track.recorded.append(
            {sampleBegin + begin * hour, sampleBegin + (begin + 2) * hour - hour / 3});
    ruler.setTrackDescriptions({track});
    RulerMarker marker;
    marker.identifier = QUuid::createUuid();
    marker.time = QDateTime::fromMSecsSinceEpoch(sampleBegin + 3 * hour);
    ruler.onAddMarkers({marker});
    ruler.setActive(true, false);
}

void fillTimeline(ZoomTimeline& timeline)
{
    fillRuler(*timeline.ruler());
    timeline.setTimeLimitsAndIndicatorPosition(sampleBegin, sampleEnd, sampleBegin + 4 * hour);
    timeline.setActive(true, false);
    timeline.ruler()->setView(sampleBegin, sampleEnd);
}

QList<FormWidget> timeline()
{
    using enum Pictogram;
    return {widget<ZoomTimeline>(Timeline,
                                 u"Recordings and events in time, with overview and zoomer"_s,
                                 {900, 120}, fillTimeline),
            widget<Ruler>(Timeline, u"The time scale alone"_s, {700, 80}, fillRuler),
            widget<TimelineScroll>(Timeline, u"The overview strip alone"_s, {700, 24})};
}

QList<FormWidget> playback()
{
    using enum Pictogram;
    return {
        widget<PPlaybar>(Player, u"Buttons to play recordings"_s, {440, 48}),
        widget<TarvoDateTimeView>(
            Player, u"Date and time that are shown, and a way to others"_s, {260, 50},
            [](TarvoDateTimeView& view) {
                view.updateDateTime(QDateTime::fromMSecsSinceEpoch(sampleBegin, QTimeZone::utc()));
            }),
        widget<VideoSlider>(Slider, u"Position in a video, with what is buffered and marked"_s,
                            {400, 24},
                            [](VideoSlider& slider) {
                                slider.setDuration(60'000);
                                slider.setBuffered(0, 40'000);
                                slider.setPosition(20'000);
                            }),
        widget<PSlider>(Slider, u"A thin slider with texts at its ticks"_s, {200, 24}),
        widget<RangeSlider>(Slider, u"A slider with two handles"_s, {200, 24},
                            [](RangeSlider& slider) { slider.setValues(20, 70); }),
        widget<PopupSliderToolButton>(Slider, u"A button whose pop-up holds a slider"_s, {32, 32}),
        widget<TarvoToolButton>(Button, u"A button of the playbar"_s, {40, 40}),
        widget<PDateEdit>(Entry, u"A date, or none"_s, {130, 28}),
        widget<PInputDateTimeWithRange>(Entry, u"From and to, with presets"_s, {520, 100})};
}

QList<FormWidget> entries()
{
    using enum Pictogram;
    constexpr QSize line(200, 28);
    return {widget<FancyLineEdit>(Entry, u"A line with buttons at its ends"_s, line),
            widget<FilterLineEdit>(Entry, u"Text that filters a list"_s, line),
            widget<NotEmptyLineEdit>(Entry, u"A line that must not be empty"_s, line),
            widget<InputLengthLineEdit>(Entry, u"A line of a certain length"_s, line),
            widget<FileNameValidatingLineEdit>(Entry, u"A file's name"_s, line),
            widget<CheckFileNameLineEdit>(Entry, u"The path of a file"_s, line),
            widget<CheckDirLineEdit>(Entry, u"The path of a folder"_s, line),
            widget<PFileCheckLineEdit>(Entry, u"The path of a file to write"_s, line),
            widget<IpLineEdit>(Entry, u"An IPv4 address"_s, line),
            widget<PIpLineEdit>(Entry, u"An IPv4 address, or a part of one"_s, line),
            widget<UrlLineEdit>(Entry, u"A web address"_s, line),
            widget<CountryCodeLineEdit>(Entry, u"Two letters for a country"_s, line),
            widget<PTextEdit>(Entry, u"Plain text with a limit and links"_s, {260, 100})};
}

QList<FormWidget> choices()
{
    using enum Pictogram;
    constexpr QSize line(200, 28);
    return {
        widget<SubNetMaskComboBox>(Choice, u"A subnet mask"_s, line),
        widget<NetworkInterfaceComboBox>(Choice, u"A network interface of this machine"_s, line),
        widget<PColorComboBox>(Choice, u"A colour of a list, or an own one"_s, line),
        widget<PStringComboBox>(Choice, u"A text that stands for a value"_s, line),
        widget<PRecentComboBox>(Choice, u"What was entered before"_s, line)};
}

QList<FormWidget> buttons()
{
    using enum Pictogram;
    return {widget<IconButton>(Button, u"An icon to press"_s, {24, 24},
                               [](IconButton& button) {
                                   button.setPixmap(
                                       Hueloft::PIconHelper::GetPlusIcon_32x32(true).pixmap(16));
                               }),
            widget<PColorButton>(Button, u"A colour to choose"_s, {90, 28}),
            widget<PFilterButton>(Button, u"Kinds to show, in a menu"_s, {60, 28}),
            widget<PLastActionToolButton>(Button, u"Repeats what its menu did last"_s, {90, 28}),
            widget<PClickableLabel>(Text, u"A text to click"_s, {120, 20},
                                    [](PClickableLabel& label) { label.setText(u"More…"_s); }),
            widget<PErrorLabel>(Text, u"What is wrong, if anything is"_s, {200, 20},
                                [](PErrorLabel& label) { label.setError(u"What is wrong"_s); })};
}

QList<FormWidget> views()
{
    using enum Pictogram;
    return {
        widget<PTreeWidget>(List, u"A tree that tells of its selection and exports"_s, {260, 160}),
        widget<PTableWidget>(List, u"A table that tells of its selection and exports"_s,
                             {320, 160}),
        container(widget<PTabWidget>(Page, u"Tabs whose names can be edited"_s, {320, 200})),
        widget<PImageWidget>(Picture, u"A picture that fits"_s, {240, 160}),
        widget<PImageAndLabelWidget>(
            Picture, u"A picture with a text"_s, {240, 160},
            [](PImageAndLabelWidget& picture) { picture.setText(u"Entrance"_s); }),
        widget<PFractionalProgressBar>(Progress, u"Progress in parts of a percent"_s, {240, 24})};
}

QList<FormWidget> pages()
{
    using enum Pictogram;
    return {widget<ProxySettingsWidget>(Page, u"How to reach the network"_s, {460, 360}),
            widget<PSystemInfoWidget>(Page, u"What the machine is"_s, {460, 320})};
}

} // namespace

QList<FormWidget> formWidgets()
{
    return inGroup(u"Timeline"_s, timeline()) + inGroup(u"Playback"_s, playback()) +
           inGroup(u"Entries"_s, entries()) + inGroup(u"Choices"_s, choices()) +
           inGroup(u"Buttons and labels"_s, buttons()) + inGroup(u"Views"_s, views()) +
           inGroup(u"Pages"_s, pages());
}
