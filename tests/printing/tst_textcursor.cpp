// SPDX-License-Identifier: MIT
#include "testsupport.h"

#include <CorvelGui/TextCursor>

#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

using namespace CorvelGui;
using Outcome = TextCursor::Outcome;

namespace {

TextCursor::Table numbers(qsizetype rows)
{
    return {.header = {u"Number"_s, u"Square"_s},
            .widths = {1, 3},
            .rows = rows,
            .row = [](qsizetype row) {
                return QList<TextCursor::Cell>{{.text = QString::number(row)},
                                               {.text = QString::number(row * row)}};
            }};
}

QImage pictureOf(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// What of a page has that colour, in pixels.
QRect place(const QImage& page, const QColor& color)
{
    QRect found;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QColor pixel = page.pixelColor(x, y);
            if (std::abs(pixel.red() - color.red()) + std::abs(pixel.green() - color.green()) +
                    std::abs(pixel.blue() - color.blue()) <
                40)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

} // namespace

class TestTextCursor : public WarningFreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreInOrder()
    {
        TextCursor report;
        QVERIFY(report.isEmpty());
        report.insertTitle(u"<b>Title</b>"_s, u"Below"_s);
        report.insertHeading(u"One"_s);
        report.insertKeyValues({{u"Key"_s, u"Value"_s}});
        report.insertParagraph(u"Text"_s);
        TextCursor::Table table = numbers(2);
        table.widths = {-1, std::nan("")};
        QCOMPARE(report.insertTable(table), Outcome::Complete);
        report.insertHeading(u"Two"_s, 99);
        QStringList texts;
        for (QTextBlock block = report.document()->begin(); block.isValid(); block = block.next())
            if (!block.text().isEmpty())
                texts.append(block.text());
        const QString row(QChar::ObjectReplacementCharacter);
        QCOMPARE(texts.join(u'|'), u"<b>Title</b>|Below|One|Key|Value|Text|%1|%1|Two"_s.arg(row));
        QCOMPARE(report.title(), u"<b>Title</b>"_s);
        QCOMPARE(report.pageCount(), 1);
        report.insertPageBreak();
        report.insertParagraph(u"Next"_s);
        QCOMPARE(report.pageCount(), 2);
        report.insertPicture({});
        QCOMPARE(report.pageCount(), 2);
        QVERIFY(report.pageImage(2, 50).isNull() && report.pageImage(-1, 50).isNull());
        report.clear();
        QVERIFY(report.isEmpty());
    }

    void rowsStayWithTheirPictures()
    {
        TextCursor report;
        report.insertTable({.header = {u"Picture"_s, u"Text"_s}, .rows = 9, .row = [](qsizetype) {
                                return QList<TextCursor::Cell>{
                                    {.picture = pictureOf({640, 480}, Qt::red)}, {.text = u"█"_s}};
                            }});
        // On each page the first text stands beside the first picture.
        for (int page = 0; page < report.pageCount(); ++page) {
            const QImage image = report.pageImage(page, 50);
            const QRect pictures = place(image, Qt::red);
            const QRect body(image.width() / 2, pictures.top() - 2, image.width() / 2,
                             pictures.height());
            const QRect texts = place(image.copy(body), Qt::black).translated(body.topLeft());
            QVERIFY2(std::abs(texts.top() - pictures.top()) < 6, qPrintable(QString::number(page)));
        }
    }

    void aPdfIsWrittenWholeOrNotAtAll()
    {
        QTemporaryDir folder;
        const QString path = writeFile(folder.filePath(u"a.pdf"_s), "before");
        TextCursor report;
        report.insertTable(numbers(500));
        connect(&report, &TextCursor::progressed, &report, &TextCursor::cancel);
        QCOMPARE(report.savePdf(path), Outcome::Cancelled);
        QCOMPARE(readFile(path), "before");
        report.disconnect();
        QCOMPARE(report.savePdf(path), Outcome::Complete);
        QVERIFY(readFile(path).startsWith("%PDF"));
        QVERIFY(readFile(path).trimmed().endsWith("%%EOF"));
        QCOMPARE(report.savePdf(folder.filePath(u"none/a.pdf"_s)), Outcome::Failed);
        QVERIFY(!report.errorText().isEmpty());
        if (limitFiles(1'000)) {
            const QByteArray whole = readFile(path);
            QCOMPARE(report.savePdf(path), Outcome::Failed);
            limitFiles(0);
            QCOMPARE(readFile(path), whole);
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{u"a.pdf"_s});
    }

    void printingTakesThePagesOfThePrinter()
    {
        QTemporaryDir folder;
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(u"a.pdf"_s));
        printer.setPageSize(QPageSize(QPageSize::A6));
        TextCursor report;
        report.insertTable(numbers(100));
        const int own = report.pageCount();
        QSignalSpy steps(&report, &TextCursor::progressed);
        QCOMPARE(report.print(printer), Outcome::Complete);
        const int all = steps.last().at(1).toInt();
        QVERIFY(all > own);
        QCOMPARE(steps.last().at(0).toInt(), all);
        QCOMPARE(report.pageCount(), own);
        printer.setFromTo(2, 3);
        printer.setPrintRange(QPrinter::PageRange);
        QCOMPARE(report.print(printer), Outcome::Complete);
        QCOMPARE(steps.last().at(1).toInt(), 2);
        printer.setFromTo(90, 99);
        QCOMPARE(report.print(printer), Outcome::Complete);
    }

    void cancelledTablesLeaveNothing()
    {
        TextCursor report;
        report.insertParagraph(u"Text"_s);
        int asked = 0;
        TextCursor::Table table = numbers(50'000);
        table.row = [&](qsizetype) {
            ++asked;
            return QList<TextCursor::Cell>{{.text = u"x"_s}};
        };
        connect(&report, &TextCursor::progressed, &report, [&](int done) {
            if (done > 0)
                report.cancel();
        });
        QCOMPARE(report.insertTable(table), Outcome::Cancelled);
        QVERIFY(asked > 0 && asked < 50'000);
        QVERIFY(report.isEmpty());
        report.cancel(); // nothing is under way
        report.disconnect();
        QCOMPARE(report.insertTable(numbers(3)), Outcome::Complete);

        QPointer<TextCursor> deleted = new TextCursor;
        connect(deleted, &TextCursor::progressed, this, [&] { delete deleted; });
        QCOMPARE(deleted->insertTable(numbers(3)), Outcome::Cancelled);
        QVERIFY(!deleted);
    }

    void thePreviewShowsAllPages()
    {
        TextCursor report;
        report.insertTable(numbers(200));
        int shown = 0;
        whenShown<QPrintPreviewDialog>(this, [&](QPrintPreviewDialog& dialog) {
            shown = dialog.findChild<QPrintPreviewWidget*>()->pageCount();
            dialog.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            QCOMPARE(unreachedByTab(dialog), QStringList());
            for (const auto* button : dialog.findChildren<QToolButton*>())
                QVERIFY(button->focusPolicy() & Qt::TabFocus);
            dialog.reject();
        });
        report.preview(nullptr);
        QVERIFY(shown >= report.pageCount());
    }
};

QTEST_MAIN(TestTextCursor)
#include "tst_textcursor.moc"
