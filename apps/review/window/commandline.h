// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewloader.h"

#include <QCoreApplication>
#include <QList>
#include <QSize>
#include <QString>

#include <optional>

class QCommandLineOption;
class QCommandLineParser;

namespace Review {

/// What the program was asked to do.
struct Arguments
{
    ReviewFiles files;
    /// Whether it follows what is being recorded.
    bool follow = false;
    /// Empty for the settings of this user, or for none when a picture is written.
    QString settings;
    /// What holds instead of the settings.
    std::optional<QString> zone;
    std::optional<bool> dark;
    std::optional<QString> language;
    /// Empty to show the window until it is closed.
    QString picture;
    /// Empty for what fits the screen.
    QSize size;
};

/// Reads the program's command line.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(Review::CommandLine)

public:
    enum class Outcome {
        Run,      ///< arguments() says what to do
        Answered, ///< message() is what was asked for: the help or the version
        Refused   ///< message() says what is wrong
    };

    /// Needs no display. Options of the toolkit are passed over.
    Outcome parse(const QStringList& arguments);

    const Arguments& arguments() const { return m_arguments; }
    const QString& message() const { return m_message; }

private:
    static QList<QCommandLineOption> options();
    QString takeArguments(const QCommandLineParser& parser);
    QString takeSize(const QString& text);

    Arguments m_arguments;
    QString m_message;
};

} // namespace Review
