// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PWidget>
#include <CorvelGui/corvelgui_export.h>

#include <QDateTime>
#include <QTimeZone>

#include <memory>

namespace CorvelGui {

/// Asks for a range of time on the clock of a zone: from and to, each by date and time of day, or a
/// preset that ends now. It explains times that the clock skips or shows twice.
///
/// The range never ends before it begins: an end that is moved past the other one takes it along,
/// without changing the length as far as the limits allow. Any signal may delete it.
class CORVELGUI_EXPORT PInputDateTimeWithRange : public PWidget
{
    Q_OBJECT
    Q_PROPERTY(QDateTime from READ from NOTIFY rangeChanged)
    Q_PROPERTY(QDateTime to READ to NOTIFY rangeChanged)
    Q_PROPERTY(CorvelGui::PInputDateTimeWithRange::Preset preset READ preset WRITE setPreset NOTIFY
                   presetChanged)
    Q_PROPERTY(bool acceptableInput READ hasAcceptableInput NOTIFY acceptableInputChanged)
    Q_PROPERTY(QTimeZone timeZone READ timeZone WRITE setTimeZone DESIGNABLE false)
    Q_PROPERTY(QDateTime earliest READ earliest)
    Q_PROPERTY(QDateTime latest READ latest)
    Q_PROPERTY(QString dateFormat READ dateFormat WRITE setDateFormat)

public:
    enum Preset : int {
        OwnRange,     ///< what the user or setRange() has entered
        LastHour,     ///< 60 minutes, also where the clocks change meanwhile
        Today,        ///< since the begin of the day
        Yesterday,    ///< the whole day, which has 23 or 25 hours where the clocks change
        LastSevenDays ///< since this time of day a week ago; 168 hours if the clocks skipped it
    };
    Q_ENUM(Preset)

    /// Shows Today on the clock of this machine.
    explicit PInputDateTimeWithRange(QWidget* parent = nullptr);
    ~PInputDateTimeWithRange() override;

    /// The range, with the last valid ends while input is not acceptable. To is not before from.
    QDateTime from() const;
    QDateTime to() const;
    Preset preset() const;
    /// Whether both ends are moments within the limits. If not, the widget says why.
    bool hasAcceptableInput() const;

    QTimeZone timeZone() const;
    /// Shows the same range on the clock of @p zone; an invalid one means that of this machine.
    void setTimeZone(const QTimeZone& zone);

    QDateTime earliest() const;
    QDateTime latest() const;
    /// The first and the last moment that the range can have, both included; give both or none.
    /// Invalid ones, as at first, are no limits, those the other way round are turned round. The
    /// range comes inside.
    void setLimits(const QDateTime& earliest, const QDateTime& latest);

    /// In the notation of QDate::toString(). Empty, as at first, for the short format of the locale
    /// with all digits of the year.
    void setDateFormat(const QString& format);
    QString dateFormat() const;

public Q_SLOTS:
    /// In either order, as far as it is within the limits; in the zone of the widget. Ignored if
    /// one of them is invalid.
    void setRange(const QDateTime& from, const QDateTime& to);
    /// Takes the range that the preset has now, as far as it is within the limits. OwnRange keeps
    /// what is shown.
    void setPreset(CorvelGui::PInputDateTimeWithRange::Preset preset);

Q_SIGNALS:
    /// Emitted when the range changes, whoever changed it.
    void rangeChanged(const QDateTime& from, const QDateTime& to);
    /// Emitted after rangeChanged() when the user changed it, by an end or by a preset.
    void rangeEdited(const QDateTime& from, const QDateTime& to);
    /// Emitted when the preset changes: by setPreset(), setRange() or the user, who makes it
    /// OwnRange by an end.
    void presetChanged(CorvelGui::PInputDateTimeWithRange::Preset preset);
    /// Emitted when hasAcceptableInput() changes.
    void acceptableInputChanged(bool acceptable);

protected:
    void retranslate() override;

private:
    struct End;
    struct Private;

    void createEnd(End& end, int row);
    void takeEdit(End& edited);
    void takePreset(Preset preset, bool byUser);
    void showRange();
    void commit(Preset preset, bool byUser);

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
