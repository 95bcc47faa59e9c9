#pragma once

#include <QWidget>

class QCheckBox;
class QDateTime;
class QLabel;

namespace CorvelGui {
class PPlaybar;
class TarvoDateTimeView;
} // namespace CorvelGui

namespace Review {

/// What belongs to playing, in a row: the time, the playbar, the switch for gaps, and what the
/// timeline shows.
class TransportBar : public QWidget
{
    Q_OBJECT

public:
    explicit TransportBar(QWidget* parent = nullptr);

    CorvelGui::PPlaybar* playbar() const { return m_playbar; }
    CorvelGui::TarvoDateTimeView* timeView() const { return m_time; }
    QCheckBox* skipGaps() const { return m_skipGaps; }

    /// Without a period there is nothing to play.
    void setPlayable(bool playable);
    void setViewText(const QString& text);
    /// Applies all translated texts again.
    void retranslate();

private:
    CorvelGui::TarvoDateTimeView* m_time;
    CorvelGui::PPlaybar* m_playbar;
    QCheckBox* m_skipGaps;
    QLabel* m_view;
};

} // namespace Review
