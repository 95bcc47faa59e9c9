// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Review {

/// What is wrong with a line of a file, told in the language of the moment.
class LineFault
{
public:
    /// Nothing is wrong.
    LineFault() = default;
    /// A text that is the same in all languages; an empty one if nothing is wrong.
    LineFault(const QString& text);
    /// @p text is marked for translation in @p context; %1 and %2 stand for the @p values.
    LineFault(const char* context, const char* text, const QStringList& values = {});

    bool isEmpty() const { return !m_text; }
    QString text() const;

    bool operator==(const LineFault& other) const { return text() == other.text(); }

private:
    const char* m_context = nullptr;
    const char* m_text = nullptr;
    QStringList m_values;
};

} // namespace Review
