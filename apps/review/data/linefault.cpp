// SPDX-License-Identifier: MIT
#include "linefault.h"

#include <QCoreApplication>

namespace Review {

LineFault::LineFault(const QString& text)
    : m_context(""), m_text(text.isEmpty() ? nullptr : "%1"), m_values(text)
{}

LineFault::LineFault(const char* context, const char* text, const QStringList& values)
    : m_context(context), m_text(text), m_values(values)
{}

QString LineFault::text() const
{
    if (isEmpty())
        return {};
    // All at once: a value may look like a place marker.
    const QString pattern = QCoreApplication::translate(m_context, m_text);
    switch (m_values.size()) {
    case 0:
        return pattern;
    case 1:
        return pattern.arg(m_values[0]);
    default:
        return pattern.arg(m_values[0], m_values[1]);
    }
}

} // namespace Review
