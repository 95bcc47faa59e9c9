// SPDX-License-Identifier: MIT
#include "rulermarkers.h"

#include "frame/stringhelper.h"
#include "rulermarkerlayer.h"
#include "timescale.h"

#include <Hueloft/PIconHelper>

#include <QMouseEvent>

#include <algorithm>
#include <cmath>
#include <utility>

using Hueloft::PIconHelper;

namespace CorvelGui {

namespace {

constexpr int ownIconKey = -1;
constexpr int largestIconSize = 256;
constexpr std::size_t longestToolTip = 12; // lines

// One each, so that all rulers share their pictures.
const QIcon& ownIcon()
{
    static const QIcon icon = PIconHelper::GetMarkerOutlined_48x48(true);
    return icon;
}

const QIcon& mergedIcon()
{
    static const QIcon icon = PIconHelper::GetMergerd_48x48(true);
    return icon;
}

} // namespace

RulerMarkers::RulerMarkers(QWidget* ruler, QWidget* ceiling)
    : QObject(ruler)
    , m_ruler(ruler)
    , m_ceiling(ceiling)
    , m_layer(new RulerMarkerLayer(ruler))
    , m_mergedIcons(mergedIcon())
{
    m_layer->stackUnder(ceiling);
    addIcon(ownIconKey, ownIcon());
}

void RulerMarkers::add(const QList<RulerMarker>& markers)
{
    std::vector<quint32> icons;
    icons.reserve(std::size_t(markers.size()));
    for (const RulerMarker& marker : markers)
        icons.push_back(iconOf(marker));
    const MarkerView::Indices around = markersInView().around();
    const std::vector<std::size_t> places = m_store.add(markers, icons);
    followMarkers(around, [&places](std::size_t marker) {
        const auto before = std::upper_bound(places.begin(), places.end(), marker) - places.begin();
        return std::optional(marker + std::size_t(before));
    });
}

void RulerMarkers::remove(const QList<RulerMarker>& markers)
{
    std::vector<qint64> times;
    for (const RulerMarker& marker : markers) {
        if (marker.time.isValid())
            times.push_back(marker.time.toMSecsSinceEpoch());
    }
    const MarkerView::Indices around = markersInView().around();
    const std::vector<std::size_t> places = m_store.remove(std::move(times));
    followMarkers(around, [&places](std::size_t marker) {
        const auto next = std::lower_bound(places.begin(), places.end(), marker);
        const bool isGone = next != places.end() && *next == marker;
        return isGone ? std::nullopt : std::optional(marker - std::size_t(next - places.begin()));
    });
}

// Markers came or went, which gave the others new indices. Buttons keep their markers. @p around
// was around the view before.
template <typename NewIndex>
void RulerMarkers::followMarkers(const MarkerView::Indices& around, NewIndex newIndex)
{
    // What happens further away leaves the grouping as it is.
    m_changed = m_changed || markersInView().around().count() != around.count();

    std::vector<Symbol> kept;
    for (Symbol& symbol : m_symbols) {
        const std::optional<std::size_t> marker = newIndex(symbol.marker);
        if (!marker) {
            releaseButton(symbol.button);
            continue;
        }
        symbol.marker = *marker;
        symbol.first = newIndex(symbol.first).value_or(*marker);
        symbol.last = newIndex(symbol.last).value_or(*marker);
        kept.push_back(symbol);
    }
    m_symbols = std::move(kept);

    const std::optional<std::size_t> spareMarker = newIndex(m_spareMarker);
    if (spareMarker)
        m_spareMarker = *spareMarker;
    else
        hideSpare();
    if (m_reached)
        m_reached = newIndex(*m_reached);
}

void RulerMarkers::clear()
{
    releaseButtons();
    for (const QPointer<RulerMarkerButton>& button : std::exchange(m_idleButtons, {}))
        delete button;
    delete m_spare;
    m_store.clear();
}

bool RulerMarkers::setShown(bool shown)
{
    if (m_shown == shown)
        return false;
    m_shown = shown;
    releaseButtons();
    return true;
}

void RulerMarkers::setRange(const std::optional<TimeSpan>& range)
{
    m_range = range;
    m_changed = true;
}

void RulerMarkers::setIconSize(const QSize& size)
{
    const auto sizeFor = [](int length) {
        return std::clamp(int(std::lround((double(length) + 8) / 2)) + 2, 1, largestIconSize);
    };
    const QSize iconSize(sizeFor(size.width()), sizeFor(size.height()));
    if (m_iconSize == iconSize)
        return;
    m_iconSize = iconSize;
    m_changed = true;
}

void RulerMarkers::setOrvaneGuiTheme(bool on)
{
    m_theme = on;
    for (RulerMarkerButton* button :
         m_ruler->findChildren<RulerMarkerButton*>(QString(), Qt::FindDirectChildrenOnly))
        button->setOrvaneGuiTheme(on);
}

QList<QDateTime> RulerMarkers::update(const TimeScale& scale, const QRect& area)
{
    const View view{{scale.viewStartMs(), scale.lengthPerMillisecond(), scale.width(),
                     scale.fineViewStart().fraction},
                    area};
    if (m_view == view && !m_changed)
        return {};
    m_view = view;
    m_changed = false;
    if (m_layer)
        m_layer->setGeometry(area);

    if (!m_shown || !scale.hasView()) {
        showSymbols({});
        hideSpare();
        return {};
    }
    const MarkerView markers = markersInView();
    std::vector<Symbol> symbols;
    for (const MarkerRun& run : markers.runs())
        symbols.push_back(
            {run.representative, run.first, run.last, markers.xOf(run.representative)});
    showSymbols(std::move(symbols));
    if (!isSpareNeeded())
        hideSpare();

    const MarkerView::Indices shown = markers.shown();
    return m_store.takeUnseen(shown.first, shown.last);
}

void RulerMarkers::hoverAt(QPoint position)
{
    const MarkerView markers = markersInView();
    const std::optional<std::size_t> nearest =
        m_view.area.contains(position) && !m_symbols.empty()
            ? markers.nearest(position.x(), m_iconSize.width() / 2)
            : std::nullopt;
    const Symbol* symbol = nearest ? symbolOf(*nearest) : nullptr;
    if (!symbol || symbol->marker == *nearest || !symbol->button) {
        hideSpare();
        return;
    }
    if (!m_spare)
        m_spare = createButton();
    if (m_spare->isVisibleTo(m_ruler) && m_spareMarker == *nearest)
        return;
    m_spareMarker = *nearest;
    setMarker(m_spare, m_spareMarker);
    applySize(m_spare);
    m_spare->setMerge(RulerMarkerButton::Merge::MergedAway);
    m_spare->setBadge({});
    m_spare->moveTo(markers.xOf(m_spareMarker), m_view.area);
    m_spare->stackUnder(symbol->button);
    m_spare->show();
}

RulerMarkerButton* RulerMarkers::takeHovered()
{
    RulerMarkerButton* button = m_hovered;
    m_hovered = nullptr;
    return button;
}

std::optional<RulerMarker> RulerMarkers::takeNeighbour(qint64 msecs, int direction,
                                                       const TimeSpan& limits)
{
    if (!m_shown)
        return {};
    const TimeSpan range = m_range.value_or(limits);
    const MarkerView::Indices reachable{m_store.firstFrom(std::max(range.begin, limits.begin)),
                                        m_store.firstAfter(std::min(range.end, limits.end))};
    const bool standsOnOne = m_reached && m_store.time(*m_reached) == msecs;
    std::size_t next = 0;
    if (direction > 0) {
        next = std::max(standsOnOne ? *m_reached + 1 : m_store.firstAfter(msecs), reachable.first);
        if (next >= reachable.last)
            return {};
    } else {
        next = std::min(standsOnOne ? *m_reached : m_store.firstFrom(msecs), reachable.last);
        if (next-- <= reachable.first)
            return {};
    }
    m_reached = next;
    return m_store.marker(next);
}

bool RulerMarkers::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<RulerMarkerButton*>(watched);
    if (!button || m_blocked)
        return false;
    if (m_hoverable && checkRulerMarkerEvent(button, event))
        return true;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return buttonEvent(button, static_cast<QMouseEvent*>(event));
    default:
        return false;
    }
}

bool RulerMarkers::checkRulerMarkerEvent(RulerMarkerButton* button, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove: {
        const QPointF position = static_cast<QSinglePointEvent*>(event)->position();
        setHovered(button, true);
        Q_EMIT hovered(button->mapToParent(position.toPoint()));
        if (event->type() == QEvent::Enter || static_cast<QMouseEvent*>(event)->buttons())
            return false;
        button->setAlternativeHover(false);
        // Passed on to the ruler, a move would count as one outside the preview area.
        return true;
    }
    case QEvent::Leave:
        setHovered(button, false);
        return false;
    default:
        return false;
    }
}

// The left mouse button does not get as far as a marker's button, so that a click of one is always
// that of something else, such as assistive technology.
bool RulerMarkers::buttonEvent(RulerMarkerButton* button, const QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return false;
    if (mergedEvent(button, event))
        return true;
    button->setAlternativeHover(event->type() == QEvent::MouseButtonPress);
    const QDateTime time = button->marker().time;
    const QUuid identifier = button->marker().identifier;
    if (event->type() == QEvent::MouseButtonPress)
        Q_EMIT pressed(time, identifier);
    else if (event->type() == QEvent::MouseButtonDblClick)
        Q_EMIT doubleClicked(time, identifier);
    return true;
}

void RulerMarkers::setHovered(RulerMarkerButton* button, bool hovered)
{
    button->setHovered(hovered);
    if (hovered) {
        m_hovered = button;
        if (button != m_spare)
            hideSpare();
        if (button->merge() == RulerMarkerButton::Merge::Representative)
            button->setToolTip(mergedToolTip(button));
    } else {
        button->setAlternativeHover(false);
        if (button == m_hovered)
            m_hovered = nullptr;
        if (button == m_spare)
            hideSpare();
    }
}

quint32 RulerMarkers::iconOf(const RulerMarker& marker)
{
    if (marker.kind != RulerMarker::providedIconKind || !marker.iconProvider)
        return m_iconNumbers.at(ownIconKey);
    const int key = marker.iconProvider->iconKey(marker.iconIndex);
    const auto known = m_iconNumbers.find(key);
    return known != m_iconNumbers.end() ? known->second
                                        : addIcon(key, marker.iconProvider->icon(marker.iconIndex));
}

quint32 RulerMarkers::addIcon(int key, const QIcon& icon)
{
    const auto number = quint32(m_icons.size());
    m_icons.push_back(RulerIconSet(icon));
    m_iconNumbers[key] = number;
    return number;
}

MarkerView RulerMarkers::markersInView() const
{
    MarkerView::Icons icons{m_iconSize.width(), {}};
    for (const RulerIconSet& icon : m_icons) {
        const double fraction = icon.visibleFraction(m_iconSize, m_ruler->devicePixelRatioF());
        icons.halfWidths.push_back(visibleHalfWidth(icons.width, fraction));
    }
    return MarkerView(m_store, m_view.geometry, std::move(icons), m_range);
}

const RulerMarkers::Symbol* RulerMarkers::symbolOf(std::size_t marker) const
{
    const auto symbol =
        std::partition_point(m_symbols.begin(), m_symbols.end(),
                             [marker](const Symbol& candidate) { return candidate.last < marker; });
    return symbol != m_symbols.end() && symbol->first <= marker ? &*symbol : nullptr;
}

void RulerMarkers::showSymbols(std::vector<Symbol> symbols)
{
    // A symbol that stays in view keeps its button.
    auto old = m_symbols.begin();
    for (Symbol& symbol : symbols) {
        for (; old != m_symbols.end() && old->marker < symbol.marker; ++old)
            releaseButton(old->button);
        if (old != m_symbols.end() && old->marker == symbol.marker)
            symbol.button = (old++)->button;
    }
    for (; old != m_symbols.end(); ++old)
        releaseButton(old->button);
    m_symbols = std::move(symbols);

    for (Symbol& symbol : m_symbols) {
        if (!symbol.button) {
            symbol.button = takeButton();
            setMarker(symbol.button, symbol.marker);
            if (m_ceiling)
                symbol.button->stackUnder(m_ceiling);
        }
        symbol.button->setMerge(symbol.first == symbol.last
                                    ? RulerMarkerButton::Merge::Alone
                                    : RulerMarkerButton::Merge::Representative);
        symbol.button->setBadge(badgeOf(symbol));
        applySize(symbol.button);
        if (symbol.button == m_hovered && symbol.first != symbol.last)
            symbol.button->setToolTip(mergedToolTip(symbol.button));
        symbol.button->moveTo(symbol.x, m_view.area);
        if (symbol.button->isHidden())
            symbol.button->show();
    }
    hideReleased();
}

void RulerMarkers::hideReleased()
{
    for (const QPointer<RulerMarkerButton>& button : m_idleButtons) {
        if (button)
            button->hide();
    }
}

void RulerMarkers::releaseButton(RulerMarkerButton* button)
{
    if (button == m_hovered)
        m_hovered = nullptr;
    m_idleButtons.push_back(button);
}

void RulerMarkers::releaseButtons()
{
    for (const Symbol& symbol : std::exchange(m_symbols, {}))
        releaseButton(symbol.button);
    hideSpare();
    m_reached.reset();
    m_changed = true;
}

RulerMarkerButton* RulerMarkers::takeButton()
{
    while (!m_idleButtons.empty()) {
        const QPointer<RulerMarkerButton> button = m_idleButtons.back();
        m_idleButtons.pop_back();
        if (button)
            return button;
    }
    return createButton();
}

RulerMarkerButton* RulerMarkers::createButton()
{
    auto* button = new RulerMarkerButton(&m_mergedIcons, m_ruler);
    button->setOrvaneGuiTheme(m_theme);
    // The layer paints it, and the ruler where it was; Qt need not look for that at each move.
    button->setUpdatesEnabled(false);
    button->setAttribute(Qt::WA_DontShowOnScreen);
    button->installEventFilter(this);
    connect(button, &QAbstractButton::clicked, this, [this, button] {
        const RulerMarker marker = button->marker();
        if (m_blocked)
            return;
        if (const auto symbol = m_opensMerged ? mergedOn(button) : std::nullopt)
            Q_EMIT mergedActivated(*symbol);
        else
            Q_EMIT pressed(marker.time, marker.identifier);
    });
    applySize(button);
    return button;
}

void RulerMarkers::setMarker(RulerMarkerButton* button, std::size_t marker) const
{
    button->setMarker(m_store.marker(marker), &m_icons[m_store.icon(marker)]);
}

void RulerMarkers::applySize(RulerMarkerButton* button) const
{
    button->setIconSize(m_iconSize);
    const QSize badge = button->badgeSize();
    button->setFixedSize(
        std::max(m_iconSize.width(), badge.width()),
        std::min(m_iconSize.height() + 2 + badge.height() / 2, m_view.area.height()));
}

bool RulerMarkers::isSpareNeeded() const
{
    if (!m_spare || !m_spare->isVisibleTo(m_ruler))
        return false;
    const Symbol* symbol = symbolOf(m_spareMarker);
    return symbol && symbol->marker != m_spareMarker &&
           markersInView().xOf(m_spareMarker) == m_spare->centerX();
}

void RulerMarkers::hideSpare()
{
    if (!m_spare)
        return;
    if (m_spare == m_hovered)
        m_hovered = nullptr;
    m_spare->hide();
}

QString RulerMarkers::mergedToolTip(const RulerMarkerButton* button) const
{
    const auto symbol =
        std::find_if(m_symbols.begin(), m_symbols.end(),
                     [button](const Symbol& candidate) { return candidate.button == button; });
    if (symbol == m_symbols.end())
        return button->toolTip();

    QStringList lines;
    const std::size_t last = std::min(symbol->last, symbol->first + longestToolTip - 1);
    for (std::size_t marker = symbol->first; marker <= last; ++marker)
        lines << m_store.marker(marker).text;
    if (last < symbol->last)
        lines << tr("and %n more", nullptr, int(symbol->last - last));
    return StringHelper::plainToolTip(lines.join(u'\n'));
}

} // namespace CorvelGui
