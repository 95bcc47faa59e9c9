// SPDX-License-Identifier: MIT
#include "pipitem.h"

#include <QHostAddress>

namespace CorvelGui {

namespace {

quint32 ipNumber(const QString& text)
{
    return QHostAddress(text).toIPv4Address();
}

} // namespace

PIpItem::PIpItem(int type) : PTableWidgetItem(type) {}

PIpItem::PIpItem(const QString& text, int type) : PTableWidgetItem(text, type), m_ip(ipNumber(text))
{}

void PIpItem::setIp(const QString& ip)
{
    m_ip = ipNumber(ip);
    setText(ip);
}

quint32 PIpItem::getIp() const
{
    return m_ip;
}

void PIpItem::setIconResource(const QString& path)
{
    m_iconResource = path;
}

QString PIpItem::getIconResource() const
{
    return m_iconResource;
}

bool PIpItem::operator<(const QTableWidgetItem& other) const
{
    return m_ip < ipNumber(other.text());
}

QVariant PIpItem::ToolTipRequested() const
{
    return CreateToolTip(tr("IP"));
}

} // namespace CorvelGui
