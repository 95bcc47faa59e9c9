// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerMarker>
#include <CorvelGui/corvelgui_export.h>

#include <QPushButton>

#include <memory>

namespace CorvelGui {

class RulerIconSet;
struct MarkerBadge;

/// A flat button for one marker of a ruler, centred on the marker's time. The ruler makes, places
/// and deletes these buttons, and may give a button another marker when the view moves.
class CORVELGUI_EXPORT RulerMarkerButton : public QPushButton
{
    Q_OBJECT

public:
    /// How the button takes part in the merging of crowded markers.
    enum class Merge {
        Alone,          ///< shows its own icon
        Representative, ///< shows the merged icon, for all markers of its run
        MergedAway      ///< shows nothing until it is hovered
    };

    /// The icons of merged markers are not owned and must outlive the button.
    RulerMarkerButton(const RulerIconSet* mergedIcons, QWidget* ruler);
    ~RulerMarkerButton() override;

    /// Shows another marker. The icon set is not owned and must outlive the button or its next
    /// marker.
    void setMarker(const RulerMarker& marker, const RulerIconSet* icons);
    const RulerMarker& marker() const { return m_marker; }

    void setMerge(Merge merge);
    Merge merge() const { return m_merge; }

    /// Says how many markers the button stands for, and the worst of their severities.
    void setBadge(const MarkerBadge& badge);
    QSize badgeSize() const;

    /// Whether the mouse is on the button; a hovered button shows its hover icon.
    void setHovered(bool hovered);
    /// Selects the other hover colour, for a button that is held down.
    void setAlternativeHover(bool on);

    void setOrvaneGuiTheme(bool on);

    /// Places the button's centre on a pixel column, vertically in the middle of the marker area.
    void moveTo(int centerX, const QRect& markerArea);
    int centerX() const { return m_centerX; }

    /// Paints the button with its upper left corner at the painter's origin.
    void draw(QPainter& painter) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void redraw();
    void resetToolTip();
    QPixmap shownPicture() const;

    RulerMarker m_marker;
    const RulerIconSet* m_icons = nullptr;
    const RulerIconSet* m_mergedIcons;
    const std::unique_ptr<MarkerBadge> m_badge;
    int m_centerX = 0;
    Merge m_merge = Merge::Alone;
    bool m_hovered = false;
    bool m_alternativeHover = false;
    bool m_theme = true;
};

} // namespace CorvelGui
