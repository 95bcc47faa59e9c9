// SPDX-License-Identifier: MIT
#pragma once

#include "reviewsettings.h"

#include <QObject>

#include <memory>

class IUserSettings;

namespace Review {

/// Keeps the user's settings in a file, and tells who uses them.
///
/// A file that is partly unreadable gives what can be read. It is not touched before the user
/// changes something; then its old content is kept beside it, in a file with ".damaged" behind
/// its name, and a number if there is one already.
class SettingsStore : public QObject
{
    Q_OBJECT

public:
    /// @p path is an INI file, which need not exist. Without one, settings last as long as the
    /// store.
    explicit SettingsStore(const QString& path = {}, QObject* parent = nullptr);
    ~SettingsStore() override;

    /// The file of this user.
    static QString userFile();

    const ReviewSettings& settings() const { return m_settings; }
    /// Takes over what holds for this run only, such as the command line's wishes.
    void assume(const ReviewSettings& settings) { m_settings = settings; }
    /// Takes over and writes what is different.
    void change(const ReviewSettings& settings);

    /// A password of the proxy that the file has had since earlier versions wrote it there; empty
    /// without one.
    QString passwordInFile() const;
    /// Removes it from the file.
    void dropPasswordInFile();
    /// Takes over the password of the proxy, which is not written.
    void learnPassword(const QString& password);

    /// Writes or reads the state of a window. A file that cannot be written loses no more than
    /// that state, and nobody is told.
    void keep(const IUserSettings& window);
    void restore(IUserSettings& window) const;

Q_SIGNALS:
    /// Emitted after every change, before the file is written.
    void changed();
    /// Emitted when the file could not be written, once only. The settings hold until the end of
    /// the program.
    void saveFailed(const QString& path);

private:
    bool save(const ReviewSettings& before);
    bool putAside() const;

    const std::unique_ptr<QSettings> m_file;
    ReviewSettings m_settings;
    bool m_damaged = false;
    bool m_failureTold = false;
};

} // namespace Review
