// SPDX-License-Identifier: MIT
#include "momententry.h"
#include "rangepresets.h"
#include "testsupport.h"

#include <CorvelGui/PDateEdit>
#include <CorvelGui/PDateTimeSelectionDialog>
#include <CorvelGui/PInputDateTimeWithRange>

#include <QCalendarWidget>
#include <QTimeEdit>

using namespace CorvelGui;

namespace {

const QTimeZone brussels("Europe/Brussels");

QDateTime at(const QString& utc, const QTimeZone& zone = brussels)
{
    return QDateTime::fromString(utc + u'Z', Qt::ISODate).toTimeZone(zone);
}

const QDateTime second = at(u"2026-10-25T01:30:00"_s); // of two with that time of day

void enter(PDateEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

/// What is said to the user below the edits.
QString noteIn(const QWidget& widget)
{
    for (const auto* label : widget.findChildren<QLabel*>())
        if (label->wordWrap() && label->isVisible())
            return label->text();
    return {};
}

} // namespace

class TestDateInputs : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void emptyDates()
    {
        Shown<PDateEdit> edit;
        edit.setDisplayFormat(u"dd.MM.yyyy"_s);
        const QDate today = QDate::currentDate();
        QCOMPARE(edit.chosenDate(), today);
        edit.setFocus();
        edit.setChosenDate({}); // must not be empty
        QTest::keyClick(&edit, Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(edit.chosenDate(), today);

        edit.setEmptyAllowed(true);
        QSignalSpy changes(&edit, &PDateEdit::chosenDateChanged);
        using Act = std::function<void()>;
        const auto key = [&](Qt::Key code, Qt::KeyboardModifiers held = {}) {
            return Act([=, &edit] { QTest::keyClick(&edit, code, held); });
        };
        const QString dashes = u"––.––.––––"_s;
        const QString shown = today.toString(u"dd.MM.yyyy"_s);
        const std::tuple<Act, QString, int> steps[] = {
            {key(Qt::Key_Delete, Qt::ControlModifier), dashes, 1},
            {key(Qt::Key_Backspace), dashes, 1},
            {key(Qt::Key_Tab), dashes, 1},
            {key(Qt::Key_Up), shown, 2},
            {[&] { edit.selectAll(), key(Qt::Key_Backspace)(); }, dashes, 3},
            {[&] { turnWheel(&edit, QPointF(8, 8), QPoint(0, -120)); }, shown, 4},
            {[&] { edit.setChosenDate({}); }, dashes, 5},
            {[&] { edit.setDate(today); }, dashes, 5}, // is its date already
            {[&] { edit.setChosenDate(today); }, shown, 6},
            {[&] { edit.setChosenDate({}); }, dashes, 7},
            {[&] {
                 edit.setSelectedSection(QDateTimeEdit::DaySection), key(Qt::Key_1)(),
                     key(Qt::Key_7)();
             },
             u"17"_s + shown.mid(2), -1},
            {[&] { edit.setDateRange(today.addDays(5), today.addDays(9)), edit.setChosenDate({}); },
             {},
             -1},
            {[&] { edit.setEmptyAllowed(false); }, today.addDays(5).toString(u"dd.MM.yyyy"_s), -1},
            {[&] { edit.setChosenDate(QDate(9000, 1, 1)); },
             today.addDays(9).toString(u"dd.MM.yyyy"_s), -1},
        };
        for (const auto& [act, text, count] : steps) {
            act();
            if (!text.isEmpty())
                QCOMPARE(edit.text(), text);
            QCOMPARE(edit.chosenDate().isValid(), !edit.text().contains(u'–'));
            if (count >= 0)
                QCOMPARE(changes.size(), count);
        }
    }

    void calendarOfADate()
    {
        Shown<PDateEdit> edit;
        edit.setEmptyAllowed(true);
        const QDate today = QDate::currentDate();
        const auto openAnd = [&](const std::function<void(QCalendarWidget&)>& act) {
            QTest::keyClick(&edit, Qt::Key_Down, Qt::AltModifier);
            QTRY_VERIFY(QApplication::activePopupWidget());
            act(*QApplication::activePopupWidget()->findChild<QCalendarWidget*>());
            QTRY_VERIFY(!QApplication::activePopupWidget());
        };
        const auto pressButton = [](int index) {
            return [index](QCalendarWidget& calendar) {
                calendar.findChildren<QPushButton*>().at(index)->click();
            };
        };
        edit.setChosenDate(today.addDays(3));
        openAnd(pressButton(0));
        QCOMPARE(edit.chosenDate(), today);
        openAnd(pressButton(1));
        QVERIFY(!edit.chosenDate().isValid());
        openAnd([](QCalendarWidget& calendar) {
            QTest::keyClick(&calendar, Qt::Key_Right); // only looks
            QTest::keyClick(&calendar, Qt::Key_Escape);
        });
        QVERIFY(!edit.chosenDate().isValid());
        openAnd(pressButton(0));
        QCOMPARE(edit.chosenDate(), today);
        QList<QDate> todays; // more than a day apart
        for (const char* zone : {"Pacific/Kiritimati", "Pacific/Pago_Pago"}) {
            edit.setTodayZone(QTimeZone(zone));
            openAnd(pressButton(0));
            todays << edit.chosenDate();
        }
        QVERIFY(todays[0] > todays[1]);
        edit.setTodayZone({});
        edit.setMaximumDate(today.addDays(-1));
        const QDate before = edit.chosenDate();
        openAnd([](QCalendarWidget& calendar) {
            QVERIFY(!calendar.findChildren<QPushButton*>().at(0)->isEnabled());
            QTest::keyClick(&calendar, Qt::Key_Escape);
        });
        QCOMPARE(edit.chosenDate(), before);
    }

    void momentsInADialog()
    {
        Shown<PDateTimeSelectionDialog> dialog;
        dialog.setDateFormat(u"yyyy-MM-dd"_s);
        dialog.setDateTime(second.addDays(1)); // from whatever time it is now
        dialog.setDateTime(second);
        QCOMPARE(dialog.dateTime().offsetFromUtc(), 3600);
        QVERIFY(noteIn(dialog).contains(u"twice"_s));
        auto* choice = dialog.findChild<QComboBox*>();
        QVERIFY(choice->isVisible());
        for (const int minute : {31, 30}) {
            dialog.findChild<QTimeEdit*>()->setTime(QTime(2, minute));
            QCOMPARE(dialog.dateTime(), second.addSecs((minute - 30) * 60));
        }
        QTest::keyClick(choice, Qt::Key_Up);
        QCOMPARE(dialog.dateTime(), second.addSecs(-3600));

        const auto* ok = buttonOf(dialog, QDialogButtonBox::Ok);
        auto* date = dialog.findChild<PDateEdit*>();
        date->setDate(QDate(2026, 3, 29));
        dialog.findChild<QTimeEdit*>()->setTime(QTime(2, 30));
        QVERIFY(noteIn(dialog).contains(u"does not exist"_s));
        QVERIFY(!dialog.dateTime().isValid() && !ok->isEnabled());
        dialog.accept();
        QVERIFY(dialog.isVisible());

        dialog.setTimeZone(QTimeZone("America/New_York"));
        QCOMPARE(dialog.dateTime(), second.addSecs(-3600));
        // Limits are told on the clock that is shown.
        dialog.setLimits(at(u"2026-08-02T00:00:00"_s), at(u"2026-08-01T12:00:00"_s));
        QVERIFY(!ok->isEnabled());
        QCOMPARE(noteIn(dialog), u"There is nothing at this time. Choose one from 2026-08-01 "
                                 "08:00:00 to 2026-08-01 20:00:00."_s);
        dialog.setDateTime({});
        dialog.setDateTime(dialog.latest());
        QVERIFY(ok->isEnabled());
        dialog.accept();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void presets()
    {
        using Range = PInputDateTimeWithRange;
        const std::tuple<Range::Preset, const char*, const char*, QString> rows[] = {
            // An hour and days over which the clocks change.
            {Range::LastHour, "Europe/Brussels", "2026-03-29T01:30:00", u"00:30 01:30"_s},
            {Range::Today, "Europe/Brussels", "2026-10-25T01:30:00", u"22:00 01:30"_s},
            {Range::Yesterday, "Europe/Brussels", "2026-03-30T10:00:00", u"23:00 22:00"_s},
            {Range::Yesterday, "Europe/Brussels", "2026-10-26T10:00:00", u"22:00 23:00"_s},
            {Range::LastSevenDays, "Europe/Brussels", "2026-03-31T10:00:00", u"11:00 10:00"_s},
            {Range::LastSevenDays, "Europe/Brussels", "2026-04-05T00:30:00", u"00:30 00:30"_s},
            // Midnight is skipped: the day begins at one.
            {Range::Today, "Africa/Cairo", "2026-04-24T10:00:00", u"22:00 10:00"_s},
        };
        for (const auto& [preset, zone, now, times] : rows) {
            const MomentRange range =
                presetRange(preset, at(QString::fromLatin1(now), QTimeZone(zone)));
            QCOMPARE(range.from.toUTC().toString(u"HH:mm"_s) + u' ' +
                         range.to.toUTC().toString(u"HH:mm"_s),
                     times);
        }
    }

    void neverReversed()
    {
        Shown<PInputDateTimeWithRange> input;
        input.setTimeZone(brussels);
        input.setDateFormat(u"dd.MM.yyyy"_s);
        const auto dates = input.findChildren<PDateEdit*>();
        const QDateTime from = at(u"2026-08-10T10:00:00"_s);
        const QDateTime to = at(u"2026-08-12T10:00:00"_s);
        input.setRange(to, from);
        QCOMPARE(std::pair(input.from(), input.to()), std::pair(from, to));
        QSignalSpy edits(&input, &PInputDateTimeWithRange::rangeEdited);
        enter(dates[0], u"20.08.2026"_s); // past the end, which comes along
        QCOMPARE(std::pair(input.from(), input.to()), std::pair(from.addDays(10), to.addDays(10)));
        enter(dates[1], u"01.08.2026"_s);
        QCOMPARE(std::pair(input.from(), input.to()), std::pair(to.addDays(-13), to.addDays(-11)));
        QCOMPARE(edits.size(), 2);

        input.setLimits(to, from); // turned round
        QCOMPARE(std::pair(input.from(), input.to()), std::pair(from, from));
        enter(dates[1], u"12.08.2026"_s);
        QCOMPARE(input.to(), to);
        enter(dates[1], u"13.08.2026"_s);
        QVERIFY(!input.hasAcceptableInput() && noteIn(input).contains(u"There is nothing"_s));
        QCOMPARE(std::pair(input.from(), input.to()), std::pair(from, to));
        input.setPreset(PInputDateTimeWithRange::Today); // all of it behind the limits
        QVERIFY(input.hasAcceptableInput());
        QCOMPARE(std::pair(input.from(), input.to()), std::pair(to, to));
        input.setPreset(PInputDateTimeWithRange::Preset(77));
        input.setRange({}, from);
        QCOMPARE(input.preset(), PInputDateTimeWithRange::Today);
        QCOMPARE(edits.size(), 3); // by the user only
    }

    void presetsByTheUser()
    {
        Shown<PInputDateTimeWithRange> input;
        QSignalSpy edits(&input, &PInputDateTimeWithRange::rangeEdited);
        auto* choice = input.findChild<QComboBox*>();
        QCOMPARE(choice->currentText(), u"Today"_s);
        QTest::keyClick(choice, Qt::Key_Up);
        QCOMPARE(input.preset(), PInputDateTimeWithRange::LastHour);
        QCOMPARE(input.from().secsTo(input.to()), 3600);
        QCOMPARE(edits.size(), 1);
        auto* time = input.findChildren<QTimeEdit*>().at(1);
        time->setTime(time->time().addSecs(-1));
        QCOMPARE(choice->currentText(), u"Own range"_s);
    }

    void deletionInSignals()
    {
        for (const bool nested : {false, true}) {
            QPointer<PInputDateTimeWithRange> input = new Shown<PInputDateTimeWithRange>;
            connect(input.data(), &PInputDateTimeWithRange::rangeChanged, this,
                    [&] { deleteWithin(input, nested); });
            QTest::keyClick(input->findChildren<QTimeEdit*>().at(0), Qt::Key_Up);
            QVERIFY(!input);
            QPointer<PDateTimeSelectionDialog> dialog = new Shown<PDateTimeSelectionDialog>;
            dialog->setDateTime(second); // not the last day of a month, where keys end
            connect(dialog.data(), &PDateTimeSelectionDialog::dateTimeChanged, this,
                    [&] { deleteWithin(dialog, nested); });
            QTest::keyClick(dialog->findChild<PDateEdit*>(), Qt::Key_Up);
            QVERIFY(!dialog);
        }
    }
};

QTEST_MAIN(TestDateInputs)
#include "tst_dateinputs.moc"
