// SPDX-License-Identifier: MIT
#include "settingsstore.h"

#include <CorvelGui/IUserSettings>

#include <QCoreApplication>
#include <QFile>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

const QString passwordKey = u"Proxy/Password"_s;

} // namespace

SettingsStore::SettingsStore(const QString& path, QObject* parent)
    : QObject(parent)
    , m_file(path.isEmpty() ? nullptr : std::make_unique<QSettings>(path, QSettings::IniFormat))
{
    if (!m_file)
        return;
    m_settings = ReviewSettings::read(*m_file);
    // Sections are parsed when they are needed.
    m_file->allKeys();
    m_damaged = m_file->status() == QSettings::FormatError;
}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::userFile()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"Corvel"_s,
                     QCoreApplication::applicationName())
        .fileName();
}

void SettingsStore::change(const ReviewSettings& settings)
{
    if (settings == m_settings)
        return;
    const ReviewSettings before = std::exchange(m_settings, settings);
    Q_EMIT changed();
    if (!m_file || save(before) || std::exchange(m_failureTold, true))
        return;
    Q_EMIT saveFailed(m_file->fileName());
}

QString SettingsStore::passwordInFile() const
{
    return m_file ? m_file->value(passwordKey).toString() : QString();
}

void SettingsStore::dropPasswordInFile()
{
    if (!m_file || m_damaged || !m_file->contains(passwordKey))
        return;
    m_file->remove(passwordKey);
    m_file->sync();
}

void SettingsStore::learnPassword(const QString& password)
{
    if (password == m_settings.proxy.password)
        return;
    m_settings.proxy.password = password;
    Q_EMIT changed();
}

void SettingsStore::keep(const IUserSettings& window)
{
    if (!m_file || m_damaged)
        return;
    window.writeUserSettings(*m_file);
    m_file->sync();
}

void SettingsStore::restore(IUserSettings& window) const
{
    if (m_file)
        window.readUserSettings(*m_file);
}

bool SettingsStore::save(const ReviewSettings& before)
{
    if (m_damaged && !putAside())
        return false;
    m_settings.write(*m_file, before);
    m_file->sync();
    // The object never forgets that it met a damaged file: another one says whether that is mended.
    const QSettings written(m_file->fileName(), QSettings::IniFormat);
    m_damaged = m_damaged && written.status() != QSettings::NoError;
    return !m_damaged && m_file->status() != QSettings::AccessError &&
           ReviewSettings::read(written) == ReviewSettings::read(*m_file);
}

bool SettingsStore::putAside() const
{
    const QString first = m_file->fileName() + u".damaged"_s;
    QString copy = first;
    for (int number = 2; QFile::exists(copy); ++number)
        copy = first + QString::number(number);
    return QFile::copy(m_file->fileName(), copy);
}

} // namespace Review
