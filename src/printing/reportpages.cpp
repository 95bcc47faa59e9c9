// SPDX-License-Identifier: MIT
#include "reportpages.h"

#include "reportdocument.h"
#include "textcursor.h"

#include <QAbstractTextDocumentLayout>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

constexpr qreal pageFootHeight = 10; // mm
constexpr qreal footPoints = 7.5;

} // namespace

QSizeF ReportPages::textSize(const QPageLayout& layout)
{
    const QSizeF page = layout.paintRect(QPageLayout::Millimeter).size();
    // In whole dots, so that nothing is rounded where a page ends.
    const auto dots = [](qreal side) {
        // Of a page that has hardly any room, rather paint beyond its end.
        constexpr qreal leastSide = 30;
        return std::floor(ReportDocument::dotsOfMillimetres(std::max(side, leastSide)));
    };
    return {dots(page.width()), dots(page.height() - pageFootHeight)};
}

ReportPages::ReportPages(const QTextDocument& document, const QString& title, const QString& date)
    : m_document(document), m_title(title), m_date(date), m_count(document.pageCount())
{}

void ReportPages::paint(QPainter& painter, int page) const
{
    const QSizeF size = m_document.pageSize();
    // Without the last dots, in which the header of the next page would shine through.
    constexpr qreal seam = 2;
    const QRectF shown(0, page * size.height(), size.width(), size.height() - seam);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(-shown.topLeft());
    painter.setClipRect(shown);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = shown;
    context.palette.setColor(QPalette::Text, Qt::black); // on paper, in every look
    m_document.documentLayout()->draw(&painter, context);
    painter.restore();
    paintFoot(painter, page);
}

void ReportPages::paintFoot(QPainter& painter, int page) const
{
    const QSizeF size = m_document.pageSize();
    const qreal height = ReportDocument::dotsOfMillimetres(pageFootHeight);
    const QRectF foot(0, size.height() + height / 2, size.width(), height / 2);
    painter.save();
    QFont font = m_document.defaultFont();
    font.setPixelSize(ReportDocument::dotsOfPoints(footPoints));
    painter.setFont(font);
    painter.setPen(QPen(Qt::darkGray, ReportDocument::dotsOfPoints(0.5)));
    painter.drawLine(foot.topLeft(), foot.topRight());
    painter.setPen(Qt::black);

    const QLocale locale;
    const QString number =
        TextCursor::tr("Page %1 of %2").arg(locale.toString(page + 1), locale.toString(m_count));
    const QFontMetricsF metrics(font);
    const qreal gap = 2 * metrics.averageCharWidth();
    const qreal side =
        std::max(metrics.horizontalAdvance(number), metrics.horizontalAdvance(m_date)) + gap;
    const QString title =
        metrics.elidedText(m_title, Qt::ElideMiddle, std::max(0.0, foot.width() - 2 * side));
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, m_date);
    painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom, title);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, number);
    painter.restore();
}

} // namespace CorvelGui
