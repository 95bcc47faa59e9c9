#pragma once

#include "reviewloader.h"

#include <QCoreApplication>
#include <QSize>
#include <QString>

namespace Review {

/// What the program was asked to do.
struct Arguments
{
    ReviewFiles files;
    /// Empty for the zone of this machine.
    QString zone;
    bool dark = true;
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

    Outcome parse(const QStringList& arguments);

    const Arguments& arguments() const { return m_arguments; }
    const QString& message() const { return m_message; }

private:
    QString readSize(const QString& text);

    Arguments m_arguments;
    QString m_message;
};

} // namespace Review
