// SPDX-License-Identifier: MIT
#include "iconspage.h"

#include <Hueloft/PIconHelper16x16>
#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>
#include <Hueloft/PPlayerIconHelper>
#include <Hueloft/PTarvoPlayerIconHelper>

#include <QPainter>

using namespace Hueloft;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int sizes[] = {16, 32, 64};
constexpr QIcon::Mode modes[] = {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected};

constexpr int columns = 2;
constexpr int margin = 12;
constexpr int gap = 6;
constexpr int columnGap = 28;
constexpr int captionHeight = 20;
constexpr QSize cell(520, captionHeight + 64 + 2 * gap);

const QString bundle[] = {u"binoculars"_s, u"copy"_s,   u"fit"_s,    u"leftarrow"_s,  u"new"_s,
                          u"onetoone"_s,   u"open"_s,   u"paste"_s,  u"rightarrow"_s, u"save"_s,
                          u"saveas"_s,     u"zoomin"_s, u"zoomout"_s};

QString bundlePath(const QString& name)
{
    return u":/CorvelGui/common/%1.png"_s.arg(name);
}

} // namespace

IconsPage::IconsPage(QWidget* parent)
    : QWidget(parent)
    , m_entries{
          {u"GetPlusIcon (true)"_s, PIconHelper::GetPlusIcon_32x32(true), false},
          {u"GetMinusIcon (true)"_s, PIconHelper::GetMinusIcon_32x32(true), false},
          {u"GetCopyIcon (true)"_s, PIconHelper::GetCopyIcon_32x32(true), false},
          {u"GetCopyRowsIcon (true)"_s, PIconHelper::GetCopyRowsIcon_32x32(true), false},
          {u"GetOpenIcon (true)"_s, PIconHelper::GetOpenIcon_32x32(true), false},
          {u"GetRefreshIcon (true)"_s, PIconHelper::GetRefreshIcon_256x256(true), false},
          {u"GetSettingsIconOriginal (true)"_s, PIconHelper::GetSettingsIconOriginal_32x32(true),
           false},
          {u"GetSettingsIconOriginal (false)"_s, PIconHelper::GetSettingsIconOriginal_32x32(false),
           false},
          {u"GetTabCloseIcon"_s, PIconHelper16x16::GetTabCloseIcon(), false},
          {u"GetVisibleIcon"_s, PIconHelper16x16::GetVisibleIcon(), false},
          {u"GetInVisibleIcon"_s, PIconHelper16x16::GetInVisibleIcon(), false},
          {u"GetDateTimeIcon (false)"_s, PPlayerIconHelper::GetDateTimeIcon_32x32(false), false},
          {u"GetDateTimeIcon (true)"_s, PPlayerIconHelper::GetDateTimeIcon_32x32(true), false},
          {u"GetMarkerOutlined (true)"_s, PIconHelper::GetMarkerOutlined_48x48(true), true},
          {u"GetMergerd (true)"_s, PIconHelper::GetMergerd_48x48(true), true},
          {u"GetMergerd (false)"_s, PIconHelper::GetMergerd_48x48(false), false},
          {u"GetPlay"_s, PTarvoPlayerIconHelper::GetPlay_32x32(), true},
          {u"GetPause"_s, PTarvoPlayerIconHelper::GetPause_32x32(), true},
          {u"GetPlayReverse"_s, PTarvoPlayerIconHelper::GetPlayReverse_32x32(), true},
          {u"GetFastForward"_s, PTarvoPlayerIconHelper::GetFastForward_32x32(), true},
          {u"GetFastRewind"_s, PTarvoPlayerIconHelper::GetFastRewind_32x32(), true},
          {u"GetStartSingle"_s, PTarvoPlayerIconHelper::GetStartSingle_32x32(), true},
          {u"GetEndSingle"_s, PTarvoPlayerIconHelper::GetEndSingle_32x32(), true},
          {u"GetStartDouble"_s, PTarvoPlayerIconHelper::GetStartDouble_32x32(), true},
          {u"GetEndDoubleIcon"_s, PTarvoPlayerIconHelper::GetEndDoubleIcon_32x32(), true},
      }
{
    const int rows = (int(m_entries.size()) + columns - 1) / columns;
    setMinimumSize(2 * margin + columns * cell.width() + columnGap,
                   2 * margin + rows * cell.height() + 150);
}

void IconsPage::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    int index = 0;
    for (const Entry& entry : m_entries) {
        drawEntry(painter,
                  QPoint(margin + index % columns * (cell.width() + columnGap),
                         margin + index / columns * cell.height()),
                  entry);
        ++index;
    }
    drawBundle(painter, margin + (index + columns - 1) / columns * cell.height());
}

void IconsPage::drawEntry(QPainter& painter, QPoint topLeft, const Entry& entry) const
{
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(topLeft, QSize(cell.width(), captionHeight)), Qt::AlignVCenter,
                     entry.name);

    const int width = 16 + 32 + 64 + 3 * gap;
    int left = topLeft.x();
    for (const QIcon::Mode mode : modes) {
        const QRect ground(left, topLeft.y() + captionHeight, width, 64 + gap);
        if (entry.onDark)
            painter.fillRect(ground, POrvGuiTheme::colorPanther);
        else if (mode == QIcon::Selected)
            painter.fillRect(ground, QColor(31, 111, 178));
        int x = left + gap / 2;
        for (const int size : sizes) {
            entry.icon.paint(&painter, QRect(x, ground.center().y() - size / 2, size, size),
                             Qt::AlignCenter, mode);
            x += size + gap;
        }
        left += width + 2;
    }
}

void IconsPage::drawBundle(QPainter& painter, int top) const
{
    const QRect dark(margin, top + captionHeight, 1040, 56);
    const std::pair<QRect, QColor> grounds[] = {{dark, POrvGuiTheme::colorShark},
                                                {dark.translated(0, dark.height()), Qt::white}};
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(margin, top, 1040, captionHeight), Qt::AlignVCenter,
                     u":/CorvelGui/common at 12, 16 and 32 pixels, normal and disabled"_s);
    for (const auto& [ground, color] : grounds) {
        painter.fillRect(ground, color);
        int x = ground.left() + gap;
        for (const QString& name : bundle) {
            const QIcon icon = PIconHelperBase::GetIcon(bundlePath(name), true);
            for (const int size : {12, 16, 32}) {
                const QRect place(x, ground.top() + gap + (size == 12 ? 2 : 0), size, size);
                icon.paint(&painter, place);
                if (size == 16)
                    icon.paint(&painter, place.translated(0, 22), Qt::AlignCenter, QIcon::Disabled);
                x += size + gap;
            }
        }
    }
}

} // namespace Gallery
