// SPDX-License-Identifier: MIT
#pragma once

#include "filefacts.h"

#include <QHash>

class QFileInfo;

namespace Review {

/// Remembers what is known of files, so that those that did not change need not be opened again.
class FootageIndex
{
public:
    /// Reads what was saved in @p path. A file that is missing or damaged counts as empty.
    explicit FootageIndex(QString path);
    /// Of this user.
    static QString userFile();

    /// Null where nothing is known of the file as it is now.
    const FileFacts* find(const QFileInfo& file) const;
    void add(const QFileInfo& file, const FileFacts& facts);
    /// Writes it, if there is something new. What cannot be saved is found again.
    void save();

private:
    struct Entry
    {
        qint64 size = 0;
        qint64 changed = 0;
        FileFacts facts;
    };

    QString m_path;
    QHash<QString, Entry> m_entries;
    bool m_isNew = false;
};

} // namespace Review
