// SPDX-License-Identifier: MIT
#include "markerlist.h"

#include "severitycolors.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int mostListLines = 12;
constexpr int widestList = 480;
constexpr int signSize = 10;

/// The same where it is selected, which would tint it.
QIcon severitySign(RulerMarker::Severity severity)
{
    QPixmap sign(4 * signSize, 4 * signSize);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(severityColor(severity));
    painter.drawEllipse(sign.rect());
    QIcon icon(sign);
    icon.addPixmap(sign, QIcon::Selected);
    return icon;
}

} // namespace

MarkerList::MarkerList(const QList<RulerMarker>& markers, qsizetype total,
                       const std::function<QString(qint64)>& timeText, QWidget* parent)
    : QFrame(parent, Qt::Popup), m_markers(markers), m_list(new QListWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setIconSize({signSize, signSize});
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAccessibleName(tr("Markers of this symbol"));
    for (const RulerMarker& marker : m_markers) {
        const QString time = timeText(marker.time.toMSecsSinceEpoch());
        const QString text = marker.text.simplified();
        new QListWidgetItem(severitySign(marker.severity),
                            text.isEmpty() ? time : time + u"   "_s + text, m_list);
    }
    if (total > m_markers.size()) {
        auto* rest =
            new QListWidgetItem(tr("and %n more", nullptr, int(total - m_markers.size())), m_list);
        rest->setFlags(Qt::NoItemFlags);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    // A list never wants to be as low as two rows.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(m_list);
    m_list->setCurrentRow(0);
    m_list->installEventFilter(this);
    setFocusProxy(m_list);
    connect(m_list, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { choose(m_list->row(item)); });
}

void MarkerList::popUp(const QPoint& symbol)
{
    ensurePolished();
    const int lines = std::min(m_list->count(), mostListLines);
    const int bar =
        m_list->count() > mostListLines ? m_list->verticalScrollBar()->sizeHint().width() : 0;
    constexpr int listPadding = 12;
    QRect place(0, 0, std::min(m_list->sizeHintForColumn(0) + bar + listPadding, widestList),
                lines * m_list->sizeHintForRow(0) + 2 * frameWidth() + 2);
    place.moveBottom(symbol.y());
    place.moveLeft(symbol.x() - place.width() / 2);
    if (const QScreen* screen = parentWidget()->screen()) {
        const QRect available = screen->availableGeometry();
        place.moveLeft(std::clamp(place.left(), available.left(),
                                  std::max(available.right() - place.width(), available.left())));
        place.moveTop(std::max(place.top(), available.top()));
    }
    setGeometry(place);
    show();
    m_list->setFocus(Qt::PopupFocusReason);
}

bool MarkerList::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_list->currentRow());
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return false;
    }
}

void MarkerList::choose(int row)
{
    if (row < 0 || row >= m_markers.size())
        return;
    const RulerMarker marker = m_markers[row];
    close();
    Q_EMIT chosen(marker.time, marker.identifier);
}

} // namespace CorvelGui
