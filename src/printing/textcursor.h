// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QImage>
#include <QList>
#include <QObject>
#include <QPageLayout>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <utility>

class QPagedPaintDevice;
class QPrinter;
class QTextDocument;
class QWidget;

namespace CorvelGui {

/// Builds a report and brings it to paper: a title with the logo of the program, headings,
/// paragraphs, names with values, tables that repeat their header on each page, and pictures. At
/// the foot of each page stand the date, the title and the number of the page. The same report can
/// be looked at, printed and saved as PDF, as often as wanted; its pages break alike everywhere.
///
/// All texts are plain text. Paper is white and its text black, whatever the look of the program.
///
/// What takes long (tables and pages) says so by progressed(), and can be cancelled in its slots.
/// It handles no events; a slot may, if they do not reach the report. A slot may also delete the
/// report, and nothing else may be done to it meanwhile. A report whose building was cancelled is
/// empty. GUI thread only.
class CORVELGUI_EXPORT TextCursor : public QObject
{
    Q_OBJECT
    /// What the report is, for the foot of its pages and the properties of a PDF. insertTitle()
    /// sets it. Empty at first.
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    /// What stands for the date at the foot. At first the date and time at which the report was
    /// made, in the locale of the program.
    Q_PROPERTY(QString date READ date WRITE setDate NOTIFY dateChanged)
    /// The logo at the right of the title, at most 60 mm wide and 18 mm high. At first
    /// ":/Resources/logo.png" of the program, or null where it has none. Set it before
    /// insertTitle().
    Q_PROPERTY(QImage logo READ logo WRITE setLogo NOTIFY logoChanged)
    /// The pages: at first upright, A4 or what the user's country takes for it, with margins of 15
    /// mm. Printing takes those of the printer. Set it before there are pictures: these are scaled
    /// for the pages of their time.
    Q_PROPERTY(QPageLayout pageLayout READ pageLayout WRITE setPageLayout NOTIFY pageLayoutChanged)

public:
    enum class Outcome {
        Complete,
        Cancelled,
        Failed ///< errorText() says why
    };

    /// A cell has a text, a picture, or the text below the picture. A picture is as wide as its
    /// column, or smaller if it was not meant to be so large.
    struct Cell
    {
        QString text = {};
        QImage picture = {};
    };

    /// A table that is inserted row by row.
    struct Table
    {
        QStringList header; ///< repeated on each page; its size is the number of columns
        /// How much of the width each column has, in relation to the others; all the same when
        /// there are none. Those that are missing, not above 0, or no numbers count as 1.
        QList<double> widths = {};
        qsizetype rows = 0;
        /// The cells of a row, from 0 on; called once for each, in their order. Missing cells are
        /// empty.
        std::function<QList<Cell>(qsizetype row)> row = {};
    };

    explicit TextCursor(QObject* parent = nullptr);
    ~TextCursor() override;

    QString title() const;
    void setTitle(const QString& title);
    QString date() const;
    void setDate(const QString& date);
    QImage logo() const;
    void setLogo(const QImage& logo);
    QPageLayout pageLayout() const;
    void setPageLayout(const QPageLayout& layout);

    /// @p subtitle may have several lines, or be empty.
    void insertTitle(const QString& title, const QString& subtitle = {});
    /// @p level is 1 for a large, 2 for a medium and 3 for a small heading.
    void insertHeading(const QString& text, int level = 1);
    void insertParagraph(const QString& text);
    /// A line for each pair, the names in bold.
    void insertKeyValues(const QList<std::pair<QString, QString>>& pairs);
    /// Does nothing without a column.
    Outcome insertTable(const Table& table);
    /// As large as it was meant to be at 96 pixels per inch, or that many times its
    /// devicePixelRatio(), but no larger than a page, the caption below it. What else it says of
    /// its resolution does not count. Does nothing for a null picture.
    void insertPicture(const QImage& picture, const QString& caption = {});
    void insertPageBreak();
    /// Removes all that was inserted.
    void clear();
    bool isEmpty() const;

    /// The text, for what is not offered here. The report owns it. All of it is in dots, of which
    /// 300 are an inch.
    QTextDocument* document() const;
    /// On pages of pageLayout(). The first call after a change lays the report out.
    int pageCount();

    /// Prints the pages that @p printer was asked for, all if it was not.
    Outcome print(QPrinter& printer);
    /// Writes the file whole or not at all.
    Outcome savePdf(const QString& path);
    /// Paints a page, the first of which is 0, with its margins into a picture of that many pixels
    /// per inch. Null if there is no such page.
    QImage pageImage(int page, int pixelsPerInch);
    /// Shows the pages in a dialog from which the user can print them, and waits until it is
    /// closed.
    void preview(QWidget* parent);
    QString errorText() const;

public Q_SLOTS:
    /// Ends what is under way as soon as it can; does nothing otherwise.
    void cancel();

Q_SIGNALS:
    /// How many of the rows of a table, or of the pages, are done. Emitted at the begin, about
    /// twenty times a second, and at the end. Connect it to a modal QProgressDialog, and that one's
    /// canceled() to cancel().
    void progressed(int done, int total);
    void titleChanged(const QString& title);
    void dateChanged(const QString& date);
    void logoChanged();
    void pageLayoutChanged();

private:
    Outcome paintPages(QPagedPaintDevice& device, int first, int end, bool isReversed);
    Outcome work(int total, const std::function<bool(int)>& step);

    struct Private;
    const std::shared_ptr<Private> d;
};

} // namespace CorvelGui
