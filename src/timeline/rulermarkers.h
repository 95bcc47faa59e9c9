// SPDX-License-Identifier: MIT
#pragma once

#include "markerbadge.h"
#include "markerbars.h"
#include "markerstore.h"
#include "markerview.h"
#include "rulericonset.h"
#include "rulermarkerbutton.h"
#include "timespans.h"

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSize>

#include <deque>
#include <map>
#include <optional>
#include <vector>

class QWidget;

namespace CorvelGui {

class TimeScale;

/// What a symbol on the ruler stands for: the markers from first to last.
struct MarkerSymbol
{
    std::size_t first;
    std::size_t last;
    QPoint top; ///< the middle of its upper edge, on the ruler

    qsizetype count() const { return qsizetype(last - first) + 1; }
};

/// The markers of a ruler and their buttons.
///
/// A button exists for every symbol that can be told apart in the view: one for a marker that
/// stands alone, one for a run of merged markers. A marker that merging hides gets the one spare
/// button while the mouse is at its place.
class RulerMarkers : public QObject
{
    Q_OBJECT

public:
    /// Buttons become children of @p ruler, below its child @p ceiling.
    RulerMarkers(QWidget* ruler, QWidget* ceiling);

    void add(const QList<RulerMarker>& markers);
    void remove(const QList<RulerMarker>& markers);
    void clear();
    /// Returns false when nothing changes.
    bool setShown(bool shown);
    bool isShown() const { return m_shown; }
    /// Limits what is shown to a range of time; no range shows all.
    void setRange(const std::optional<TimeSpan>& range);
    void setIconSize(const QSize& size);
    void setOrvaneGuiTheme(bool on);

    const MarkerStore& store() const { return m_store; }

    /// Whether symbols have badges, and bars() has what lasts. Takes effect with update().
    void setDetailed(bool on);
    MarkerBars bars(const TimeScale& scale) const;
    /// Whether a click on a merged symbol is mergedActivated() instead of pressed().
    void setOpensMerged(bool on) { m_opensMerged = on; }
    /// The merged symbol nearest to a column, no further away than a symbol is wide.
    std::optional<MarkerSymbol> mergedNear(int x) const;
    /// The symbol whose button is at a position of the ruler.
    std::optional<MarkerSymbol> symbolAt(QPoint position) const;
    /// The first of them, @p most at most.
    QList<RulerMarker> markersOf(const MarkerSymbol& symbol, qsizetype most) const;
    /// From the time of the first to that of the last.
    TimeSpan spanOf(const MarkerSymbol& symbol) const;

    /// The time of a marker that is shown which is the nearest to an instant.
    std::optional<qint64> nearestTime(qint64 msecs) const;

    /// Brings the buttons in line with the view. Costs nothing while neither the view nor what it
    /// shows has changed. Returns the times of markers that are in view for the first time.
    QList<QDateTime> update(const TimeScale& scale, const QRect& area);

    /// Hides the buttons that markers no longer have, until update() gives them to others.
    void hideReleased();
    /// The mouse is at @p position of the ruler, on none of the buttons: a marker that merging
    /// hides there gets the spare button.
    void hoverAt(QPoint position);
    /// The mouse has left the ruler.
    void hoverNothing() { hideSpare(); }
    /// Whether buttons answer a mouse that is on them; not while it drags the view.
    void setHoverable(bool on) { m_hoverable = on; }
    /// Whether buttons ignore the mouse altogether.
    void setBlocked(bool blocked) { m_blocked = blocked; }
    RulerMarkerButton* hoveredButton() const { return m_hovered; }
    /// The hovered button, which is no longer known as hovered afterwards.
    RulerMarkerButton* takeHovered();

    /// The marker next to a time in direction +1 or -1, among those shown within @p limits. Of
    /// several at one instant each call reaches the next one.
    std::optional<RulerMarker> takeNeighbour(qint64 msecs, int direction, const TimeSpan& limits);

Q_SIGNALS:
    /// A marker was pressed with the left mouse button, or activated by assistive technology.
    void pressed(const QDateTime& time, const QUuid& identifier);
    void doubleClicked(const QDateTime& time, const QUuid& identifier);
    /// A merged symbol was clicked, or activated by assistive technology.
    void mergedActivated(const CorvelGui::MarkerSymbol& symbol);
    /// The mouse came to or moved on a button, at @p position of the ruler.
    void hovered(QPoint position);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A symbol in view.
    struct Symbol
    {
        std::size_t marker;
        std::size_t first;
        std::size_t last;
        int x;
        QPointer<RulerMarkerButton> button = nullptr;
    };
    /// What the buttons were brought in line with.
    struct View
    {
        MarkerView::Geometry geometry;
        QRect area;

        bool operator==(const View&) const = default;
    };

    quint32 iconOf(const RulerMarker& marker);
    quint32 addIcon(int key, const QIcon& icon);
    MarkerView markersInView() const;
    const Symbol* symbolOf(std::size_t marker) const;
    void showSymbols(std::vector<Symbol> symbols);
    template <typename NewIndex>
    void followMarkers(const MarkerView::Indices& around, NewIndex newIndex);
    void releaseButton(RulerMarkerButton* button);
    void releaseButtons();
    RulerMarkerButton* takeButton();
    RulerMarkerButton* createButton();
    void setMarker(RulerMarkerButton* button, std::size_t marker) const;
    void applySize(RulerMarkerButton* button) const;
    MarkerBadge badgeOf(const Symbol& symbol) const;
    std::optional<MarkerSymbol> mergedOn(const RulerMarkerButton* button) const;
    MarkerSymbol symbolWithPlace(const Symbol& symbol) const;
    bool mergedEvent(RulerMarkerButton* button, const QMouseEvent* event);
    bool isSpareNeeded() const;
    void hideSpare();
    bool checkRulerMarkerEvent(RulerMarkerButton* button, QEvent* event);
    bool buttonEvent(RulerMarkerButton* button, const QMouseEvent* event);
    void setHovered(RulerMarkerButton* button, bool hovered);
    QString mergedToolTip(const RulerMarkerButton* button) const;

    QWidget* const m_ruler;
    const QPointer<QWidget> m_ceiling;
    const QPointer<QWidget> m_layer;
    MarkerStore m_store;
    std::deque<RulerIconSet> m_icons;     ///< the first is the ruler's own
    std::map<int, quint32> m_iconNumbers; ///< by key
    const RulerIconSet m_mergedIcons;
    QSize m_iconSize{16, 16};
    std::optional<TimeSpan> m_range;
    bool m_shown = true;
    bool m_theme = true;
    bool m_hoverable = true;
    bool m_blocked = false;
    bool m_detailed = false;
    bool m_opensMerged = false;

    View m_view;
    bool m_changed = false;
    std::vector<Symbol> m_symbols;
    std::vector<QPointer<RulerMarkerButton>> m_idleButtons;
    QPointer<RulerMarkerButton> m_spare;
    std::size_t m_spareMarker = 0;
    QPointer<RulerMarkerButton> m_hovered;
    std::optional<std::size_t> m_reached; // by takeNeighbour()
};

} // namespace CorvelGui
