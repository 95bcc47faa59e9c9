// SPDX-License-Identifier: MIT
#include "updateanswer.h"

#include "webaddress.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Corvel {

namespace {

constexpr qsizetype maximumVersionLength = 64;
constexpr qsizetype maximumNameLength = 255;
constexpr qsizetype maximumAddressLength = 2048;

// Reads the members of one object. The first that is missing or wrong is remembered.
class Members
{
public:
    explicit Members(const QJsonObject& object) : m_object(object) {}

    bool flag(QLatin1StringView name)
    {
        const QJsonValue value = m_object.value(name);
        expect(value.isBool(), name);
        return value.toBool();
    }

    qint64 count(QLatin1StringView name)
    {
        const qint64 number = m_object.value(name).toInteger(-1);
        expect(number >= 0, name);
        return number;
    }

    QString text(QLatin1StringView name, qsizetype maximumLength)
    {
        const QString text = m_object.value(name).toString();
        expect(!text.isEmpty() && text.size() <= maximumLength, name);
        return text;
    }

    QVersionNumber version(QLatin1StringView name)
    {
        const QString text = this->text(name, maximumVersionLength);
        qsizetype end = 0;
        const QVersionNumber version = QVersionNumber::fromString(text, &end);
        expect(!version.isNull() && end == text.size(), name);
        return version;
    }

    QString optionalWebAddress(QLatin1StringView name)
    {
        const QJsonValue value = m_object.value(name);
        if (value.isUndefined() || value.isNull())
            return {};
        const QString address = text(name, maximumAddressLength);
        expect(isWebAddress(QUrl(address, QUrl::StrictMode)), name);
        return address;
    }

    QDateTime instant(QLatin1StringView name)
    {
        const QDateTime time = QDateTime::fromString(text(name, maximumNameLength), Qt::ISODate);
        expect(time.isValid(), name);
        return time;
    }

    QString firstWrong() const { return m_firstWrong; }

private:
    void expect(bool good, QLatin1StringView name)
    {
        if (!good && m_firstWrong.isEmpty())
            m_firstWrong = name;
    }

    const QJsonObject m_object;
    QString m_firstWrong;
};

} // namespace

UpdateAnswer parseUpdateAnswer(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return {{}, CheckAppUpdate::tr("The server's answer is not one of an update server.")};

    Members members(document.object());
    CheckAppUpdate::AppUpdateInfoResult result;
    result.updateAvailable = members.flag("updateAvailable"_L1);
    if (result.updateAvailable) {
        result.softwareId = members.count("softwareId"_L1);
        result.newVersion = members.version("newVersion"_L1);
        result.releaseNotesUrl = members.optionalWebAddress("releaseNotesUrl"_L1);
        result.fileName = members.text("fileName"_L1, maximumNameLength);
        result.size = members.count("size"_L1);
        result.releaseDate = members.instant("releaseDate"_L1);
    }
    if (const QString wrong = members.firstWrong(); !wrong.isEmpty())
        return {{}, CheckAppUpdate::tr("The server's answer has no valid “%1”.").arg(wrong)};
    return {result, {}};
}

} // namespace Corvel
