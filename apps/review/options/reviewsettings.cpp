// SPDX-License-Identifier: MIT
#include "reviewsettings.h"

#include "look/languages.h"

#include <Corvel/TimeZoneHelper>
#include <CorvelGui/PPlaybar>

#include <QMap>
#include <QMetaEnum>
#include <QSettings>

#include <algorithm>

using Corvel::ProxyUserSettings;
using CorvelGui::PPlaybar;
using CorvelGui::Ruler;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

constexpr std::pair<ProxyUserSettings::Mode, QLatin1StringView> modeNames[] = {
    {ProxyUserSettings::Mode::None, "none"_L1},
    {ProxyUserSettings::Mode::System, "system"_L1},
    {ProxyUserSettings::Mode::Http, "http"_L1},
    {ProxyUserSettings::Mode::Socks5, "socks5"_L1},
};

constexpr std::pair<TimeFormat::Order, QLatin1StringView> orderNames[] = {
    {TimeFormat::Order::DayFirst, "day-first"_L1},
    {TimeFormat::Order::YearFirst, "year-first"_L1},
    {TimeFormat::Order::MonthFirst, "month-first"_L1},
};

constexpr std::pair<Ruler::FollowMode, QLatin1StringView> followNames[] = {
    {Ruler::FollowMode::Off, "off"_L1},
    {Ruler::FollowMode::Pages, "pages"_L1},
    {Ruler::FollowMode::Centered, "centered"_L1},
    {Ruler::FollowMode::Smooth, "smooth"_L1},
};

QString textOf(const QString& value)
{
    return value;
}

QString textOf(const QStringList& value)
{
    return value.join(u' ');
}

QString textOf(bool value)
{
    return value ? u"true"_s : u"false"_s;
}

QString textOf(quint16 value)
{
    return QString::number(value);
}

QString textOf(const FolderCorrections& value)
{
    return value.toText();
}

template <typename Names, typename Value>
QString nameOf(const Names& names, Value value)
{
    return std::ranges::find(names, value, &std::ranges::range_value_t<Names>::first)->second;
}

QString textOf(ProxyUserSettings::Mode value)
{
    return nameOf(modeNames, value);
}

QString textOf(TimeFormat::Order value)
{
    return nameOf(orderNames, value);
}

QString textOf(Ruler::FollowMode value)
{
    return nameOf(followNames, value);
}

// The opposite of textOf(). A text that makes no sense leaves the value alone.
void take(QString& value, const QString& text)
{
    value = text;
}

void take(QStringList& value, const QString& text)
{
    value = text.split(u' ', Qt::SkipEmptyParts);
}

void take(bool& value, const QString& text)
{
    if (text == textOf(true) || text == textOf(false))
        value = text == textOf(true);
}

void take(quint16& value, const QString& text)
{
    value = text.toUShort();
}

void take(FolderCorrections& value, const QString& text)
{
    value = FolderCorrections::fromText(text);
}

template <typename Names, typename Value>
void takeName(const Names& names, Value& value, const QString& text)
{
    for (const auto& [known, name] : names) {
        if (text == name)
            value = known;
    }
}

void take(ProxyUserSettings::Mode& value, const QString& text)
{
    takeName(modeNames, value, text);
}

void take(TimeFormat::Order& value, const QString& text)
{
    takeName(orderNames, value, text);
}

void take(Ruler::FollowMode& value, const QString& text)
{
    takeName(followNames, value, text);
}

/// Calls @p use with the key and the place of each value but the shortcuts.
template <typename Settings, typename Use>
void forEachValue(Settings& settings, const Use& use)
{
    use(u"Look/Dark"_s, settings.dark);
    use(u"Look/Language"_s, settings.language);
    use(u"Time/Zone"_s, settings.zone);
    use(u"Time/Order"_s, settings.timeFormat.order);
    use(u"Time/Milliseconds"_s, settings.timeFormat.milliseconds);
    use(u"Playback/SkipGaps"_s, settings.skipGaps);
    use(u"Timeline/Activity"_s, settings.activity);
    use(u"Timeline/Lanes"_s, settings.lanes);
    use(u"Timeline/EventDetails"_s, settings.eventDetails);
    use(u"Timeline/FreeZoom"_s, settings.freeZoom);
    use(u"Timeline/DragSelects"_s, settings.dragSelects);
    use(u"Timeline/Follow"_s, settings.followMode);
    use(u"Recordings/Corrections"_s, settings.corrections);
    use(u"Updates/InternalChannel"_s, settings.servers.internalChannel);
    use(u"Updates/PublicServer"_s, settings.servers.publicServer);
    use(u"Updates/QueryServer"_s, settings.servers.queryServer);
    use(u"Updates/News"_s, settings.servers.news);
    use(u"Proxy/Mode"_s, settings.proxy.mode);
    use(u"Proxy/Host"_s, settings.proxy.host);
    use(u"Proxy/Port"_s, settings.proxy.port);
    use(u"Proxy/User"_s, settings.proxy.user);
    use(u"Proxy/Excluded"_s, settings.proxy.excludedHosts);
    use(u"Proxy/RememberPassword"_s, settings.rememberPassword);
}

/// What may be written down, by keys.
QMap<QString, QString> textsOf(const ReviewSettings& settings)
{
    QMap<QString, QString> texts;
    forEachValue(settings, [&texts](const QString& key, const auto& value) {
        texts.insert(key, textOf(value));
    });
    return texts;
}

QString shortcutKey(PPlaybar::PlaybackButton button)
{
    const auto buttons = QMetaEnum::fromType<PPlaybar::PlaybackButton>();
    return u"Shortcuts/"_s + QString::fromLatin1(buttons.valueToKey(button));
}

} // namespace

ReviewSettings ReviewSettings::read(const QSettings& file)
{
    ReviewSettings settings;
    forEachValue(settings, [&file](const QString& key, auto& value) {
        if (file.contains(key))
            take(value, file.value(key).toString());
    });
    if (!Languages::keys().contains(settings.language))
        settings.language.clear();
    if (!settings.zone.isEmpty())
        settings.zone = Corvel::TimeZoneHelper::getTimeZone(settings.zone);
    for (const PPlaybar::PlaybackButton button : PPlaybar::buttons()) {
        const QVariant value = file.value(shortcutKey(button));
        if (!value.isValid())
            continue;
        // Empty on purpose, or a shortcut; but nothing that Qt cannot make sense of.
        const QString text = value.toString();
        const QKeySequence keys = QKeySequence::fromString(text, QKeySequence::PortableText);
        if (text.isEmpty() || (!keys.isEmpty() && keys[0].key() != Qt::Key_unknown))
            settings.shortcuts[button] = keys;
    }
    return settings;
}

void ReviewSettings::write(QSettings& file, const ReviewSettings& before) const
{
    const QMap<QString, QString> texts = textsOf(*this);
    const QMap<QString, QString> textsBefore = textsOf(before);
    for (const auto& [key, text] : texts.asKeyValueRange()) {
        if (text != textsBefore[key])
            file.setValue(key, text);
    }
    for (const PPlaybar::PlaybackButton button : PPlaybar::buttons()) {
        const QKeySequence keys = shortcuts.value(button);
        if (keys != before.shortcuts.value(button))
            file.setValue(shortcutKey(button), keys.toString(QKeySequence::PortableText));
    }
}

} // namespace Review
