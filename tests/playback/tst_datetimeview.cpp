// SPDX-License-Identifier: MIT
#include "jumptotimepointdialog.h"
#include "localmoments.h"
#include "testsupport.h"

#include <CorvelGui/TarvoDateTimeView>

#include <QDateTimeEdit>
#include <QGridLayout>

using namespace CorvelGui;

namespace {

const QTimeZone newYork("America/New_York");
const QTimeZone brussels("Europe/Brussels");

QDateTime at(const QString& utc, const QTimeZone& zone)
{
    return QDateTime::fromString(utc + u'Z', Qt::ISODateWithMs).toTimeZone(zone);
}

class View : public TarvoDateTimeView
{
public:
    View()
    {
        show();
        activateWindow();
    }

    QLabel* label(int row, int column) const
    {
        const auto* item = static_cast<QGridLayout*>(layout())->itemAtPosition(row, column);
        return qobject_cast<QLabel*>(item->widget());
    }
    QString reads() const
    {
        QStringList texts;
        for (const int column : {0, 2, 3, 4, 5})
            texts << label(0, column)->text();
        return texts.join(u'|');
    }
    QList<JumpToTimepointDialog*> dialogs() const
    {
        return findChildren<JumpToTimepointDialog*>(u"JumpToTimepointDialog"_s);
    }
    JumpToTimepointDialog* open()
    {
        QTest::mouseClick(this, Qt::LeftButton);
        JumpToTimepointDialog* dialog = dialogs().value(0);
        if (!dialog || !QTest::qWaitForWindowActive(dialog))
            qFatal("The dialog does not open");
        return dialog;
    }
};

template <typename Widget>
Widget* part(JumpToTimepointDialog* dialog, const QString& name)
{
    return dialog->findChild<Widget*>(name);
}

void enter(JumpToTimepointDialog* dialog, const QString& date, const QString& time)
{
    part<QDateEdit>(dialog, u"dateEdit"_s)->setDate(QDate::fromString(date, Qt::ISODate));
    part<QTimeEdit>(dialog, u"timeEdit"_s)->setTime(QTime::fromString(time, Qt::ISODateWithMs));
}

} // namespace

class TestDateTimeView : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatIsShown()
    {
        View view;
        QCOMPARE(view.reads(), u"|--:|--:|--|"_s);
        QVERIFY(view.property("tarvo").toBool());
        const QString moment = u"2026-08-18T12:15:30.250"_s;
        const std::pair<QDateTime, const char*> steps[] = {
            {at(moment, newYork), "18 Aug|08:|15:|30|250"},
            {at(u"2026-08-18T12:15:30.990"_s, newYork), "18 Aug|08:|15:|30|990"},
            {at(moment, newYork), "18 Aug|08:|15:|30|990"}, // counts as shown already

            {at(moment, brussels), "18 Aug|14:|15:|30|250"},
            {at(u"2026-08-19T12:15:30.250"_s, brussels), "19 Aug|14:|15:|30|250"},
            {QDateTime(), "|--:|--:|--|"},
            {QDateTime::fromSecsSinceEpoch(5, Qt::UTC), "01 Jan|00:|00:|05|000"},
        };
        for (const auto& [shown, reads] : steps) {
            view.updateDateTime(shown);
            QCOMPARE(view.reads(), QString::fromLatin1(reads));
        }
        view.setShowMilliseconds(false);
        QVERIFY(!view.label(0, 5)->isVisible() && !view.label(1, 5)->isVisible());
        view.updateDateTime(at(moment, brussels));
        view.setShowMilliseconds(true);
        QCOMPARE(view.reads(), u"18 Aug|14:|15:|30|250"_s);
        auto* accessible = QAccessible::queryAccessibleInterface(&view);
        QCOMPARE(accessible->text(QAccessible::Value), u"18 Aug 14:15:30"_s);

        view.updateDateTime(at(u"2026-10-18T12:15:30.250"_s, brussels));
        const QLocale before;
        QLocale::setDefault(QLocale::German);
        QEvent switched(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&view, &switched);
        QLocale::setDefault(before);
        QVERIFY(view.reads().startsWith(u"18 Okt"));

        view.setEnabled(false);
        QCOMPARE(view.reads(), u"|--:|--:|--|"_s);
    }

    void moments()
    {
        const QDateTime now = QDateTime::fromSecsSinceEpoch(1'800'000'000);
        const QDateTime local = now.toTimeZone(brussels);
        const std::tuple<QDateTime, QString, QString> rows[] = {
            {local, u"2026-03-29T01:59:59"_s, u"00:59:59"_s},
            {local, u"2026-03-29T02:00:00"_s, {}},
            {local, u"2026-03-29T03:00:00"_s, u"01:00:00"_s},
            {local, u"2026-10-25T02:30:00"_s, u"00:30:00 01:30:00"_s},
            {now, u"2026-03-29T02:00:00"_s, {}}, // the machine is in Brussels, too
            {now, u"2026-10-25T02:30:00"_s, u"00:30:00 01:30:00"_s},
            {now.toUTC(), u"2026-03-29T02:00:00"_s, u"02:00:00"_s},
            {now.toOffsetFromUtc(-5400), u"2026-03-29T02:00:00"_s, u"03:30:00"_s}};
        for (const auto& [zone, clock, utc] : rows) {
            const QDateTime wanted = QDateTime::fromString(clock + u'Z', Qt::ISODate);
            QStringList found;
            for (const QDateTime& moment : localMoments(wanted.date(), wanted.time(), zone)) {
                QCOMPARE(moment.timeSpec(), zone.timeSpec());
                found << moment.toUTC().time().toString();
            }
            QCOMPARE(found.join(u' '), utc);
        }
    }

    void dialogForm()
    {
        View view;
        view.setDeviceName(u"<b>Gate</b>"_s);
        view.updateDateTime(at(u"2026-01-01T04:59:58.750"_s, newYork));
        JumpToTimepointDialog* dialog = view.open();
        QVERIFY(!dialog->isModal());
        QCOMPARE(view.open(), dialog);
        QCOMPARE(view.dialogs().size(), 1);
        QCOMPARE(part<QLabel>(dialog, u"labelName"_s)->text(), u"<b>Gate</b>"_s);
        QCOMPARE(part<QTimeEdit>(dialog, u"timeEdit"_s)->text(), u"23:59:58.750"_s);
        const auto* date = part<QDateEdit>(dialog, u"dateEdit"_s);
        QVERIFY(date->text().contains(u"2025"_s));
        QCOMPARE(date->date(), QDate(2025, 12, 31));
        QTest::mouseClick(part<QToolButton>(dialog, u"buttonNextDay"_s), Qt::LeftButton);
        QCOMPARE(date->date(), QDate(2026, 1, 1));
        QTest::mouseClick(part<QToolButton>(dialog, u"buttonPrevDay"_s), Qt::LeftButton);
        QCOMPARE(date->date(), QDate(2025, 12, 31));
        for (QWidget* widget : dialog->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
                continue;
            auto* accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(),
                     qPrintable(widget->objectName()));
        }
    }

    void waysToApply()
    {
        View view;
        QSignalSpy jumps(&view, &TarvoDateTimeView::jumoToTime);
        auto* accessible = QAccessible::queryAccessibleInterface(&view);
        for (const auto& [name, key] : {std::pair(u"timeEdit"_s, Qt::Key_Return),
                                        {u"dateEdit"_s, Qt::Key_Enter},
                                        {u"buttonNextDay"_s, Qt::Key_Return},
                                        {u"buttonApply"_s, Qt::Key_Space}}) {
            view.updateDateTime(at(u"2026-08-18T12:15:30.250"_s, newYork));
            accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            JumpToTimepointDialog* dialog = view.dialogs().value(0);
            QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));
            enter(dialog, u"2026-02-03"_s, u"04:05:06.007"_s);
            QTest::keyClick(part<QWidget>(dialog, name), key);
            QCOMPARE(jumps.size(), 1);
            const QDateTime moment = jumps.takeFirst().at(0).toDateTime();
            QCOMPARE(moment, at(u"2026-02-03T09:05:06.007"_s, newYork));
            QCOMPARE(moment.timeZone(), newYork);
            QTRY_VERIFY(view.dialogs().isEmpty());
        }
    }

    void closesWithoutASignal()
    {
        View view;
        QWidget other;
        other.show();
        QSignalSpy jumps(&view, &TarvoDateTimeView::jumoToTime);
        for (const QString& way : {u"other"_s, u"escape"_s, u"buttonClose"_s, u"disabled"_s}) {
            JumpToTimepointDialog* dialog = view.open();
            // The calendar belongs to the dialog.
            auto* date = part<QDateEdit>(dialog, u"dateEdit"_s);
            QTest::mouseClick(date, Qt::LeftButton, {}, QPoint(date->width() - 5, 10));
            QTRY_VERIFY(QApplication::activePopupWidget());

            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            QTRY_VERIFY(!QApplication::activePopupWidget());
            QVERIFY(dialog->isVisible());
            dialog->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(dialog));
            if (way == u"other")
                other.activateWindow();
            else if (way == u"escape")
                QTest::keyClick(dialog, Qt::Key_Escape);
            else if (way == u"disabled")
                view.setEnabled(false);
            else
                QTest::mouseClick(part<QToolButton>(dialog, way), Qt::LeftButton);
            QTRY_VERIFY(view.dialogs().isEmpty());
        }
        QVERIFY(jumps.isEmpty());
    }

    void clockChanges()
    {
        View view;
        const QDateTime second = at(u"2026-10-25T01:30:00"_s, brussels);
        view.updateDateTime(second);
        QSignalSpy jumps(&view, &TarvoDateTimeView::jumoToTime);
        JumpToTimepointDialog* dialog = view.open();
        const auto* note = part<QLabel>(dialog, u"labelClockChange"_s);
        auto* choice = part<QComboBox>(dialog, u"comboOccurrence"_s);
        const auto* apply = part<QPushButton>(dialog, u"buttonApply"_s);
        const auto state = [&] {
            return (note->isVisible() ? u"note|"_s : u"|"_s) +
                   (choice->isVisible() ? choice->currentText() : QString()) +
                   (apply->isEnabled() ? u"|apply"_s : u"|"_s);
        };

        QCOMPARE(state(), u"note|The second (UTC+01:00)|apply"_s);
        enter(dialog, u"2026-03-29"_s, u"02:30:00"_s);
        QVERIFY(note->text().contains(u"does not exist"_s));
        QCOMPARE(state(), u"note||"_s);
        QTest::keyClick(dialog, Qt::Key_Return);
        QVERIFY(dialog->isVisible() && jumps.isEmpty());
        enter(dialog, u"2026-03-29"_s, u"03:30:00"_s);
        QCOMPARE(state(), u"||apply"_s);
        enter(dialog, u"2026-10-25"_s, u"02:45:00"_s);
        QCOMPARE(state(), u"note|The first (UTC+02:00)|apply"_s);
        choice->setCurrentIndex(1);
        enter(dialog, u"2026-10-25"_s, u"02:30:00"_s);
        QTest::keyClick(choice, Qt::Key_Return);
        QCOMPARE(jumps.size(), 1);
        QCOMPARE(jumps.at(0).at(0).toDateTime(), second);
        QCOMPARE(jumps.at(0).at(0).toDateTime().offsetFromUtc(), 3600);
    }

    void typingWithinLimits()
    {
        View view;
        view.setDateFormat(u"dd.MM.yyyy"_s);
        const QDateTime latest = at(u"2026-03-15T23:00:00.125"_s, brussels);
        view.setJumpLimits(at(u"2026-03-02T00:00:00"_s, brussels), latest);
        view.updateDateTime(at(u"2026-03-03T11:11:11.125"_s, brussels));
        JumpToTimepointDialog* dialog = view.open();
        QCOMPARE(part<QDateEdit>(dialog, u"dateEdit"_s)->text(), u"03.03.2026"_s);
        auto* time = part<QTimeEdit>(dialog, u"timeEdit"_s);
        time->setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(time, u"12:30:00"_s);
        QCOMPARE(time->time(), QTime(12, 30, 0, 125));

        enter(dialog, u"2026-03-16"_s, u"00:00:00.126"_s);
        QCOMPARE(part<QLabel>(dialog, u"labelClockChange"_s)->text(),
                 u"There is nothing at this time. Choose one from 02.03.2026 01:00:00.000 to "
                 "16.03.2026 00:00:00.125."_s);
        QTest::keyClick(dialog, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        enter(dialog, u"2026-03-16"_s, u"00:00:00.125"_s);
        QCOMPARE(dialog->moment(), latest);
        dialog->setLimits(latest, latest.addDays(-1)); // are not turned round
        QVERIFY(!dialog->moment().isValid());
    }

    void deletionInTheSlot()
    {
        for (int way = 0; way < 4; ++way) {
            QPointer<View> view = new View;
            JumpToTimepointDialog* dialog = view->open();
            connect(view.data(), &TarvoDateTimeView::jumoToTime, this,
                    [&] { deleteWithin(view, way / 2); });
            const QString name = way % 2 ? u"timeEdit"_s : u"buttonApply"_s;
            QTest::keyClick(part<QWidget>(dialog, name), way % 2 ? Qt::Key_Return : Qt::Key_Space);
            QVERIFY(!view);
        }
    }
};

QTEST_MAIN(TestDateTimeView)
#include "tst_datetimeview.moc"
