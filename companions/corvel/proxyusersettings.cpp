// SPDX-License-Identifier: MIT
#include "proxyusersettings.h"

#include "urlchecker.h"

#include <QHostAddress>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Corvel {

ProxyUserSettings ProxyUserSettings::m_Settings;

namespace {

constexpr QLatin1StringView localNames("<local>");

/// As name servers know it.
QString plainName(const QString& name)
{
    QString plain = QString::fromLatin1(QUrl::toAce(name)).toLower();
    if (plain.endsWith(u'.'))
        plain.chop(1);
    return plain;
}

/// The name below which an entry holds for all; empty if it is of another kind.
QString domainOf(const QString& entry)
{
    const qsizetype mark = entry.startsWith("*."_L1) ? 2 : entry.startsWith(u'.') ? 1 : 0;
    return mark > 0 ? plainName(entry.mid(mark)) : QString();
}

bool isIn(const QHostAddress& address, const QString& entry)
{
    const auto subnet = QHostAddress::parseSubnet(entry);
    return !subnet.first.isNull() && address.isInSubnet(subnet);
}

bool matches(const QString& host, const QString& entry)
{
    const QHostAddress address(host);
    if (!address.isNull())
        return isIn(address, entry);
    const QString name = plainName(host);
    if (name.isEmpty())
        return false;
    if (entry == localNames)
        return !name.contains(u'.');
    const QString domain = domainOf(entry);
    return domain.isEmpty() ? name == plainName(entry) : name.endsWith(u'.' + domain);
}

} // namespace

bool ProxyUserSettings::excludes(const QString& server) const
{
    return std::ranges::any_of(excludedHosts,
                               [&server](const QString& entry) { return matches(server, entry); });
}

bool ProxyUserSettings::isHostEntry(const QString& entry)
{
    if (entry == localNames || !QHostAddress::parseSubnet(entry).first.isNull())
        return true;
    const QString name = domainOf(entry).isEmpty() ? entry : domainOf(entry);
    QString parsed;
    int parsedPort = 0;
    return !name.contains(u':') && UrlChecker::IsUrlValid(name, parsed, parsedPort);
}

} // namespace Corvel
