// SPDX-License-Identifier: MIT
#pragma once

#include <QPageLayout>
#include <QSizeF>
#include <QString>

class QPainter;
class QTextDocument;

namespace CorvelGui {

/// A report on pages: its text, and at the foot of each page what the report is, the date and the
/// number of the page. In the dots of a ReportDocument.
class ReportPages
{
public:
    /// How large the text of a page may be.
    static QSizeF textSize(const QPageLayout& layout);

    /// @p document has the pages of textSize(), and must live longer.
    ReportPages(const QTextDocument& document, const QString& title, const QString& date);

    int count() const { return m_count; }
    /// Paints a page, the first of which is 0, with its upper left corner of the text at the
    /// origin.
    void paint(QPainter& painter, int page) const;

private:
    void paintFoot(QPainter& painter, int page) const;

    const QTextDocument& m_document;
    const QString m_title;
    const QString m_date;
    const int m_count;
};

} // namespace CorvelGui
