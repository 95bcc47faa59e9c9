// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PBaseDialog>
#include <CorvelGui/corvelgui_export.h>

#include <QDateTime>
#include <QTimeZone>

#include <memory>

namespace CorvelGui {

/// Asks for a moment: a date and a time of day on the clock of a zone, which it names. It explains
/// times that the clock skips or shows twice, and asks which of the two is meant. It can be
/// accepted while there is a moment within the limits only.
class CORVELGUI_EXPORT PDateTimeSelectionDialog : public PBaseDialog
{
    Q_OBJECT
    Q_PROPERTY(QDateTime dateTime READ dateTime WRITE setDateTime NOTIFY dateTimeChanged)
    Q_PROPERTY(bool millisecondsVisible READ areMillisecondsVisible WRITE setMillisecondsVisible
                   NOTIFY millisecondsVisibleChanged)
    Q_PROPERTY(QTimeZone timeZone READ timeZone WRITE setTimeZone NOTIFY dateTimeChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QDateTime earliest READ earliest)
    Q_PROPERTY(QDateTime latest READ latest)
    Q_PROPERTY(QString dateFormat READ dateFormat WRITE setDateFormat)

public:
    /// Shows the second that it is made in, on the clock of this machine.
    explicit PDateTimeSelectionDialog(QWidget* parent = nullptr);
    ~PDateTimeSelectionDialog() override;

    /// The moment that is shown; invalid while there is none, or none within the limits.
    QDateTime dateTime() const;
    /// Shows @p dateTime on the clock of its own zone; an invalid one is ignored.
    void setDateTime(const QDateTime& dateTime);
    /// Shows the same moment on the clock of @p zone; an invalid one means that of this machine.
    void setTimeZone(const QTimeZone& zone);
    /// That of the moment that was set last.
    QTimeZone timeZone() const;

    QDateTime earliest() const;
    QDateTime latest() const;
    /// The first and the last moment that can be chosen, both included; give both or none. Invalid
    /// ones, as at first, are no limits. Limits the other way round are turned round.
    void setLimits(const QDateTime& earliest, const QDateTime& latest);

    /// In the notation of QDate::toString(). Empty, as at first, for the short format of the locale
    /// with all digits of the year.
    void setDateFormat(const QString& format);
    QString dateFormat() const;
    /// Off at first. While they are not visible they stay what they are.
    bool areMillisecondsVisible() const;
    void setMillisecondsVisible(bool visible);

public Q_SLOTS:
    /// Does nothing while dateTime() is invalid; the dialog says why.
    void accept() override;

Q_SIGNALS:
    /// Emitted when dateTime() or its zone changes, whoever changed it.
    void dateTimeChanged(const QDateTime& dateTime);
    /// Emitted when setMillisecondsVisible() changed it.
    void millisecondsVisibleChanged(bool visible);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Private;

    void createLayout();
    void report();
    void retranslate();

    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
