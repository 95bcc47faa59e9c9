#include "reviewsettings.h"

#include "look/languages.h"
#include "playback/playbarbuttons.h"

#include <Corvel/TimeZoneHelper>

#include <QMetaEnum>
#include <QSettings>

#include <algorithm>

using Corvel::ProxyUserSettings;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

const QString passwordKey = u"Proxy/Password"_s;

/// One value as text. take() leaves the settings alone if the text makes no sense.
struct Entry
{
    QString key;
    QString (*text)(const ReviewSettings& settings);
    void (*take)(ReviewSettings& settings, const QString& text);
};

QString boolText(bool value)
{
    return value ? u"true"_s : u"false"_s;
}

void takeBool(bool& value, const QString& text)
{
    if (text == boolText(true) || text == boolText(false))
        value = text == boolText(true);
}

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

template <typename Names, typename Value>
QString nameOf(const Names& names, Value value)
{
    const auto found = std::ranges::find(names, value, [](const auto& name) { return name.first; });
    return found == std::ranges::end(names) ? QString() : QString(found->second);
}

template <typename Names, typename Value>
void takeName(const Names& names, Value& value, const QString& text)
{
    for (const auto& [known, name] : names) {
        if (text == name)
            value = known;
    }
}

const QList<Entry>& entries()
{
    using S = ReviewSettings;
    using Text = const QString&;
    static const QList<Entry> all{
        {u"Look/Dark"_s, [](const S& s) { return boolText(s.dark); },
         [](S& s, Text text) {
             takeBool(s.dark, text);
         }},
        {u"Look/Language"_s, [](const S& s) { return s.language; },
         [](S& s, Text text) {
             if (Languages::keys().contains(text))
                 s.language = text;
         }},
        {u"Time/Zone"_s, [](const S& s) { return s.zone; },
         [](S& s, Text text) {
             s.zone = text.isEmpty() ? QString() : Corvel::TimeZoneHelper::getTimeZone(text);
         }},
        {u"Time/Order"_s, [](const S& s) { return nameOf(orderNames, s.timeFormat.order); },
         [](S& s, Text text) {
             takeName(orderNames, s.timeFormat.order, text);
         }},
        {u"Time/Milliseconds"_s, [](const S& s) { return boolText(s.timeFormat.milliseconds); },
         [](S& s, Text text) {
             takeBool(s.timeFormat.milliseconds, text);
         }},
        {u"Playback/SkipGaps"_s, [](const S& s) { return boolText(s.skipGaps); },
         [](S& s, Text text) {
             takeBool(s.skipGaps, text);
         }},
        {u"Updates/InternalChannel"_s, [](const S& s) { return s.servers.internalChannel; },
         [](S& s, Text text) {
             s.servers.internalChannel = text;
         }},
        {u"Updates/PublicServer"_s, [](const S& s) { return s.servers.publicServer; },
         [](S& s, Text text) {
             s.servers.publicServer = text;
         }},
        {u"Updates/QueryServer"_s, [](const S& s) { return s.servers.queryServer; },
         [](S& s, Text text) {
             s.servers.queryServer = text;
         }},
        {u"Proxy/Mode"_s, [](const S& s) { return nameOf(modeNames, s.proxy.mode); },
         [](S& s, Text text) {
             takeName(modeNames, s.proxy.mode, text);
         }},
        {u"Proxy/Host"_s, [](const S& s) { return s.proxy.host; },
         [](S& s, Text text) {
             s.proxy.host = text;
         }},
        {u"Proxy/Port"_s, [](const S& s) { return QString::number(s.proxy.port); },
         [](S& s, Text text) {
             s.proxy.port = text.toUShort();
         }},
        {u"Proxy/User"_s, [](const S& s) { return s.proxy.user; },
         [](S& s, Text text) {
             s.proxy.user = text;
         }},
        {u"Proxy/RememberPassword"_s, [](const S& s) { return boolText(s.rememberPassword); },
         [](S& s, Text text) {
             takeBool(s.rememberPassword, text);
         }},
        // Behind the value that allows it.
        {passwordKey, [](const S& s) { return s.rememberPassword ? s.proxy.password : QString(); },
         [](S& s, Text text) {
             if (s.rememberPassword)
                 s.proxy.password = text;
         }},
    };
    return all;
}

QString shortcutKey(PlaybarButtons::Button button)
{
    const auto buttons = QMetaEnum::fromType<PlaybarButtons::Button>();
    return u"Shortcuts/"_s + QString::fromLatin1(buttons.valueToKey(button));
}

} // namespace

ReviewSettings ReviewSettings::read(const QSettings& file)
{
    ReviewSettings settings;
    for (const Entry& entry : entries()) {
        if (file.contains(entry.key))
            entry.take(settings, file.value(entry.key).toString());
    }
    for (const PlaybarButtons::Button button : PlaybarButtons::inOrder()) {
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
    for (const Entry& entry : entries()) {
        const QString text = entry.text(*this);
        if (text == entry.text(before))
            continue;
        if (text.isEmpty() && entry.key == passwordKey)
            file.remove(entry.key);
        else
            file.setValue(entry.key, text);
    }
    for (const PlaybarButtons::Button button : PlaybarButtons::inOrder()) {
        const QKeySequence keys = shortcuts.value(button);
        if (keys != before.shortcuts.value(button))
            file.setValue(shortcutKey(button), keys.toString(QKeySequence::PortableText));
    }
}

} // namespace Review
