// SPDX-License-Identifier: MIT
#include "data/reviewloader.h"
#include "export/clipdialog.h"
#include "export/eventreport.h"
#include "export/exportdialog.h"
#include "export/folderchoice.h"
#include "export/pictureexport.h"
#include "export/rangechoice.h"
#include "export/reportdialog.h"
#include "footage/exiftime.h"
#include "playback/playbackpane.h"
#include "samplewindow.h"
#include "testsupport.h"
#include "timeline/timelinepane.h"
#include "times.h"
#include "useranswers.h"
#include "video/camerapicture.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PImageWidget>
#include <CorvelGui/TextCursor>

#include <QProgressBar>
#include <QRadioButton>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimeEdit>

using namespace Review;
using CorvelGui::TimeSpan;

class TestReviewExport : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void pictureTimes()
    {
        const std::tuple<int, QList<TimeSpan>, QString> rows[] = {
            {2, {}, u""_s},
            {3, {{0, 30}}, u"10 13 16 19"_s},
            {5, {{0, 30}}, u"10 15"_s},
            {2, {{11, 13}, {14, 15}, {19, 30}}, u"11 14 19"_s},
            {2, {{8, 13}, {14, 18}}, u"10 12 14 16"_s},
            {4, {{10, 12}, {13, 18}}, u"10 14"_s}, // a pause shorter than the interval
            {1, {{5, 10}, {20, 30}}, u""_s}};
        for (const auto& [interval, recorded, expected] : rows) {
            const PictureTimes times({10, 20}, interval, recorded);
            QStringList texts;
            for (const qint64 time : times.all())
                texts.append(QString::number(time));
            QCOMPARE(texts.join(u' '), expected);
            QCOMPARE(times.count(), texts.size());
        }
    }

    void exportEnds()
    {
        using enum PictureExport::Outcome;
        const QString existing = u"Gate_(1)__2026-03-02T000004Z.png"_s;
        // What is in the way, after how many pictures the user cancels, and how many files there
        // are at the end.
        const std::tuple<QString, int, PictureExport::Outcome, int> rows[] = {
            {{}, -1, Complete, 6},
            {{}, 2, Cancelled, 2},
            {existing, -1, Failed, 3},
            {u"."_s, -1, Failed, 0}};
        for (const auto& [obstacle, cancelAfter, outcome, count] : rows) {
            QTemporaryDir folder;
            if (obstacle == u"."_s)
                folder.remove();
            else if (!obstacle.isEmpty())
                writeFile(folder.filePath(obstacle), {});
            const Camera camera({u"a"_s, u"Gate/(1)?"_s, monday, monday + day, {}}, {},
                                TimeTexts(u"UTC"_s));
            PictureExport job(camera, {{monday, monday + 10'001}, 2, false, folder.path()});
            QCOMPARE(job.existingFiles(), obstacle == existing ? 1 : 0);
            QList<PictureExport::Outcome> outcomes;
            connect(&job, &PictureExport::progressed, this, [&, after = cancelAfter](int written) {
                if (written == after)
                    job.cancel();
            });
            connect(&job, &PictureExport::ended, this, [&](auto how) { outcomes.append(how); });
            job.start();
            QTRY_COMPARE(outcomes.size(), 1);
            QCoreApplication::processEvents();
            QCOMPARE(outcomes, {outcome});

            const QStringList names = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
            QCOMPARE(names.size(), count);
            for (const QString& name : names) {
                const QString path = folder.filePath(name);
                QCOMPARE(QImage(path).size(), name == obstacle ? QSize(0, 0) : CameraPicture::size);
            }
        }
    }

    void picturesAreAsked()
    {
        constexpr int aDay = 86'400;
        const SampleWindow sample(u"UTC"_s);
        const UserAnswers user;
        auto* status = sample.window.findChild<QStatusBar*>();
        status->showMessage(u"Of another matter"_s);
        QCOMPARE(exportPictures(sample, aDay, false), 14);
        QCOMPARE(status->currentMessage(), QString());
        QVERIFY(sample.withText<QProgressBar>(u"0.0%"_s)->isVisible());
        QVERIFY(!sample.action(u"Export pictures…"_s)->isEnabled());
        QTRY_VERIFY(sample.says(u"Pictures exported: 14"_s));
        QCOMPARE(files().size(), 14);
        QVERIFY(files().contains(u"Main_gate_2026-03-04T000000Z.png"_s));
#ifndef Q_OS_WIN // where the shell opens it, and not what the test put in its place
        sample.withText<QToolButton>(u"Open folder"_s)->click();
        QCOMPARE(user.opened(), QStringList{QUrl::fromLocalFile(m_folder.path()).toString()});
#endif
        sample.withText<QToolButton>(u"Close"_s)->click();
        QVERIFY(!sample.withText<QToolButton>(u"Open folder"_s)->isVisible());

        QFile first(QDir(m_folder.path()).filePath(files()[0]));
        QVERIFY(first.resize(0));
        exportPictures(sample, aDay, false);
        QCOMPARE(user.said(),
                 QStringList{u"Question: Export pictures: Files that exist already: 14 of "
                             "14. Replace them?"_s});
        QCOMPARE(first.size(), 0);
        QVERIFY(sample.action(u"Export pictures…"_s)->isEnabled());
    }

    void picturesAreSaved()
    {
        const QTemporaryDir folder;
        const SampleWindow sample(u"America/St_Johns"_s);
        UserAnswers user;
        const auto* pane = sample.window.findChild<PlaybackPane*>();
        QTRY_VERIFY(!pane->picture()->image.isNull());
        const CameraPicture picture = *pane->picture();
        for (const QString& name : {u"a.jpg"_s, u"b.png"_s}) {
            user.savePath = folder.filePath(name);
            sample.action(u"Save picture…"_s)->trigger();
            const QImage saved(user.savePath);
            QCOMPARE(saved.width(), picture.image.width());
            QCOMPARE(saved.height() > picture.image.height(), name == u"b.png"_s);
        }
        const QByteArray jpeg = readFile(folder.filePath(u"a.jpg"_s));
        QVERIFY(jpeg.contains(picture.camera.toUtf8()));
        const auto taken = exifTime(jpeg);
        QVERIFY(taken);
        QCOMPARE(taken->offset, std::optional(-12'600));
        QCOMPARE(taken->clock.toMSecsSinceEpoch() + 12'600 * second, picture.instant);

        sample.action(u"Copy picture"_s)->trigger();
        QCOMPARE(QGuiApplication::clipboard()->image(), picture.withCaption());
    }

    void clipsAreAsked()
    {
        const QTemporaryDir folder;
        const SampleWindow sample(u"UTC"_s);
        const auto* pane = sample.window.findChild<PlaybackPane*>();
        const TimeSpan recorded = pane->camera()->history.recorded().first();
        sample.window.findChild<TimelinePane*>()->setSearchRange(recorded);
        whenShown<ClipDialog>(this, [&](ClipDialog& dialog) {
            auto* cameras = dialog.findChild<QListWidget*>();
            auto* ok = buttonOf(dialog, QDialogButtonBox::Ok);
            auto* place = dialog.findChild<FolderChoice*>();
            QCOMPARE(place->fault(), QString()); // whatever folders the user has
            place->setFolder(folder.filePath(u"none"_s));
            QVERIFY(!ok->isEnabled());
            place->setFolder(folder.path());
            QVERIFY(ok->isEnabled());
            cameras->currentItem()->setCheckState(Qt::Unchecked);
            QVERIFY(!ok->isEnabled());
            cameras->currentItem()->setCheckState(Qt::Checked);
            for (const auto* picture : dialog.findChildren<CorvelGui::PImageWidget*>())
                QTRY_COMPARE(picture->state(), CorvelGui::PImageWidget::State::Ready);
            // What is typed is another range than the selected one.
            const auto* range = dialog.findChild<RangeChoice*>();
            auto* from = dialog.findChild<QTimeEdit*>();
            from->setTime(from->time().addSecs(1));
            QCOMPARE(range->range(), (TimeSpan{recorded.begin + second, recorded.end}));
            QVERIFY(dialog.findChildren<QRadioButton*>().at(2)->isChecked());
            dialog.findChildren<QRadioButton*>().at(1)->click();
            QCOMPARE(range->range(), recorded);
            QTest::mouseClick(ok, Qt::LeftButton);
        });
        sample.action(u"Export recordings…"_s)->trigger();
        QTRY_VERIFY(sample.says(u"Recordings exported, in files: 2"_s));
        ReviewLoader loader;
        const QString made = QDir(folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot)[0];
        QCOMPARE(loader.load(ReviewFiles::inFolder(folder.filePath(made))), QString());
        Events expected;
        const Events all = SampleData::make().events;
        for (qsizetype i = 0; i < all.size(); ++i)
            if (all[i].track == pane->camera()->identifier && all[i].time >= recorded.begin &&
                all[i].time < recorded.end)
                expected.append(all[i]);
        QVERIFY(!expected.isEmpty());
        QCOMPARE(loader.data().events, expected);
    }

    void aReportIsSaved()
    {
        const QTemporaryDir folder;
        const SampleWindow sample(u"UTC"_s);
        UserAnswers user;
        user.savePath = folder.filePath(u"events.pdf"_s);
        sample.events()->selectionModel()->select(
            QItemSelection(sample.events()->model()->index(0, 0),
                           sample.events()->model()->index(3, 3)),
            QItemSelectionModel::ClearAndSelect);
        const auto sizeOfReport = [&](bool withPictures) {
            whenShown<ReportDialog>(this, [&](ReportDialog& dialog) {
                dialog.findChild<QCheckBox*>()->setChecked(withPictures);
                dialog.saveAsPdf();
            });
            sample.action(u"Report of events…"_s)->trigger();
            const QByteArray pdf = readFile(user.savePath);
            return pdf.startsWith("%PDF") ? pdf.size() : 0;
        };
        const qsizetype plain = sizeOfReport(false);
        QVERIFY(plain > 0);
        QVERIFY(sizeOfReport(true) > plain + 10'000);
        QVERIFY(sample.says(u"Report saved"_s));
    }

    void wordsOfAReportAreWhole()
    {
        const QStringList texts{
            u"02.03.2026"_s, u"Fahrzeug"_s,    u"Person außerhalb der Arbeitszeit"_s,
            u"Laderampe"_s,  u"0:00:23.335"_s, u"Information"_s};
        CorvelGui::TextCursor report;
        QVERIFY(EventReport({.columns = texts, .events = {{.texts = texts}}}).write(report, true));
        QVERIFY(report.pageCount() > 0);
        const QTextDocument* document = report.document();
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
            if (texts.contains(block.text()) && !block.text().contains(u' '))
                QCOMPARE(block.layout()->lineCount(), 1);
    }

    void quittingIsAsked()
    {
        SampleWindow sample(u"UTC"_s);
        const int count = exportPictures(sample, 10'000);
        QVERIFY(count > 50);
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            whenShown<QMessageBox>(this, [&](QMessageBox& box) {
                QVERIFY2(box.text().startsWith(u"Pictures are still being exported: "_s),
                         qPrintable(box.text()));
                box.button(answer)->click();
            });
            QCOMPARE(sample.window.close(), answer == QMessageBox::Yes);
        }
        QVERIFY(files().size() < count);
    }

    void eventsComeBack()
    {
        // Texts of times do not sort as instants do; two of them are the same on the clock of
        // Brussels.
        const qint64 repeated = monday + 237 * day + 30 * minute + 7;
        const ReviewData review{.tracks = {{u"a"_s, u"Gate"_s, monday, monday + day, {}}},
                                .events = {{monday, u"person"_s, u"say \"hi\"; now"_s, u"a"_s},
                                           {repeated, u"car"_s, u"früher"_s, u"b"_s},
                                           {repeated + hour, u"alarm"_s, u"später"_s, u"a"_s}}};
        const SampleWindow sample(u"Europe/Brussels"_s, {}, review);
        UserAnswers user;
        user.savePath = m_folder.filePath(u"events.csv"_s);
        const auto exported = [&] {
            sample.action(u"Export events…"_s)->trigger();
            const bool ends =
                QTest::qWaitFor([&] { return !sample.says(u"Exporting events"_s); }, 30'000);
            ReviewLoader loader;
            const QString error =
                loader.load({.recordings = {}, .events = user.savePath, .deployments = {}});
            return ends && error.isEmpty() && loader.problems().count() == 0 ? loader.data().events
                                                                             : Events();
        };
        sample.events()->selectRow(1);
        QCOMPARE(exported(), review.events);
        QVERIFY(sample.says(u"Events exported: 3"_s));

        // What the filter leaves, or several selected events.
        auto* filter = sample.events()->parentWidget()->findChild<CorvelGui::FilterLineEdit*>();
        filter->setText(u"gate"_s);
        QCOMPARE(exported(), (Events{review.events[0], review.events[2]}));
        filter->setText({});
        QItemSelection lastTwo(sample.events()->model()->index(1, 0),
                               sample.events()->model()->index(2, 3));
        sample.events()->selectionModel()->select(lastTwo, QItemSelectionModel::ClearAndSelect);
        QCOMPARE(exported(), (Events{review.events[1], review.events[2]}));

        user.savePath = m_folder.filePath(u"none/events.csv"_s);
        sample.action(u"Export events…"_s)->trigger();
        QTRY_VERIFY(user.said().last().startsWith(u"Warning: Export events: "_s));
    }

private:
    /// Exports from the dialog. Returns how many pictures it announced.
    int exportPictures(const SampleWindow& sample, int interval, bool recordedOnly = true)
    {
        int count = 0;
        whenShown<ExportDialog>(this, [&](ExportDialog& dialog) {
            auto* seconds = dialog.findChild<QSpinBox*>();
            QPushButton* ok = buttonOf(dialog, QDialogButtonBox::Ok);
            dialog.findChild<FolderChoice*>()->setFolder(m_folder.path());
            seconds->setValue(1); // tens of thousands of pictures
            QVERIFY(!ok->isEnabled());
            seconds->setValue(interval);
            dialog.findChild<QCheckBox*>()->setChecked(recordedOnly);
            for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                if (label->text().startsWith(u"Pictures: "_s))
                    count = label->text().sliced(10).toInt();
            }
            QTest::mouseClick(ok, Qt::LeftButton);
        });
        sample.action(u"Export pictures…"_s)->trigger();
        return count;
    }

    QStringList files() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files);
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestReviewExport)
#include "tst_reviewexport.moc"
