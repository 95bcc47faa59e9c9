// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

/// Nothing, where there is no such file.
inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return QFile::exists(path) && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Returns the path of the file.
inline QString writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Cannot write %s", qPrintable(path));
    return path;
}

/// Lets no file grow beyond @p bytes, as on a disk that becomes full; 0 ends that. False where it
/// cannot be had.
inline bool limitFiles([[maybe_unused]] quint64 bytes)
{
#ifdef Q_OS_UNIX
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes ? bytes : limit.rlim_max;
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
#else
    return false;
#endif
}
