// SPDX-License-Identifier: MIT
#include "itemviewtools.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>

#include <algorithm>

namespace CorvelGui::ItemViewTools {

namespace {

constexpr int emptyRowsHeight = 16;
constexpr int air = 16;

} // namespace

void copyToClipboard(const QString& text)
{
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void hideAll(const QList<QPointer<QWidget>>& widgets)
{
    for (const QPointer<QWidget>& widget : widgets) {
        if (widget)
            widget->hide();
    }
}

void makeHeaderBold(QHeaderView* header)
{
    QFont font = header->font();
    font.setBold(true);
    header->setFont(font);
}

void widenSection(QHeaderView* header, int section, int offset)
{
    header->resizeSection(section, std::max(0, header->sectionSize(section) + offset));
}

int textWidth(const QString& text, const QFont& cellFont, const QFont& viewFont)
{
    return QFontMetrics(cellFont.resolve(viewFont)).boundingRect(text).width();
}

int neededHeight(int rows, const QHeaderView* header)
{
    const int headerHeight = header->isHidden() ? 0 : header->height();
    return (rows == 0 ? emptyRowsHeight : rows) + headerHeight + air;
}

} // namespace CorvelGui::ItemViewTools
