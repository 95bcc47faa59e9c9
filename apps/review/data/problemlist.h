// SPDX-License-Identifier: MIT
#pragma once

#include "linefault.h"

#include <QList>
#include <QString>

namespace Review {

/// What was wrong with one line of a file.
struct Problem
{
    QString file;
    /// Counted from 1; 0 where the file does not go by lines.
    qsizetype line = 0;
    LineFault text;

    bool operator==(const Problem&) const = default;
};

/// Keeps the first problems and counts the others, so that a file of garbage costs no memory.
class ProblemList
{
public:
    static constexpr qsizetype maximumListed = 100;

    void add(const Problem& problem)
    {
        if (m_listed.size() < maximumListed)
            m_listed.append(problem);
        ++m_count;
    }

    qsizetype count() const { return m_count; }
    const QList<Problem>& listed() const { return m_listed; }
    qsizetype unlisted() const { return m_count - m_listed.size(); }

private:
    QList<Problem> m_listed;
    qsizetype m_count = 0;
};

} // namespace Review
