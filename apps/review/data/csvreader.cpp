// SPDX-License-Identifier: MIT
#include "csvreader.h"

#include <QByteArrayView>

namespace Review {

CsvReader::CsvReader(const QByteArray& text) : m_text(text)
{
    if (m_text.startsWith("\xEF\xBB\xBF"))
        m_position = 3;
}

bool CsvReader::next()
{
    while (m_position < m_text.size() && atLineEnd())
        skipLineEnd();
    if (m_position >= m_text.size())
        return false;

    if (m_separator == 0)
        m_separator = findSeparator();
    const qsizetype begin = m_position;
    m_line = m_nextLine;
    m_fields.clear();
    m_fault = readRecord();
    if (m_fault == Fault::None &&
        !QByteArrayView(m_text).sliced(begin, m_position - begin).isValidUtf8())
        m_fault = Fault::NotUtf8;

    if (m_fault != Fault::None) {
        m_fields.clear();
        const qsizetype lineEnd = m_text.indexOf('\n', begin);
        m_position = lineEnd < 0 ? m_text.size() : lineEnd + 1;
        m_nextLine = m_line + 1;
    }
    return true;
}

char CsvReader::findSeparator() const
{
    bool quoted = false;
    for (const char c : QByteArrayView(m_text).sliced(m_position)) {
        if (c == '"')
            quoted = !quoted;
        else if (!quoted && (c == ',' || c == ';' || c == '\t'))
            return c;
        else if (!quoted && c == '\n')
            break;
    }
    return ',';
}

bool CsvReader::atLineEnd() const
{
    const qsizetype rest = m_text.size() - m_position;
    if (rest == 0 || m_text[m_position] == '\n')
        return true;
    return m_text[m_position] == '\r' && (rest == 1 || m_text[m_position + 1] == '\n');
}

void CsvReader::skipLineEnd()
{
    while (m_position < m_text.size() && m_text[m_position++] != '\n') {
    }
    ++m_nextLine;
}

CsvReader::Fault CsvReader::readRecord()
{
    for (;;) {
        if (m_position < m_text.size() && m_text[m_position] == '"') {
            if (const Fault fault = readQuotedField(); fault != Fault::None)
                return fault;
        } else {
            readPlainField();
        }
        if (atLineEnd()) {
            skipLineEnd();
            return Fault::None;
        }
        ++m_position; // the separator
    }
}

void CsvReader::readPlainField()
{
    const qsizetype begin = m_position;
    while (!atLineEnd() && m_text[m_position] != m_separator)
        ++m_position;
    m_fields.append(m_text.sliced(begin, m_position - begin));
}

CsvReader::Fault CsvReader::readQuotedField()
{
    QByteArray field;
    for (;;) {
        const qsizetype begin = m_position + 1;
        const qsizetype quote = m_text.indexOf('"', begin);
        if (quote < 0)
            return Fault::OpenQuote;
        const QByteArrayView part = QByteArrayView(m_text).sliced(begin, quote - begin);
        field.append(part.data(), part.size());
        m_nextLine += part.count('\n');
        m_position = quote + 1;
        if (m_position >= m_text.size() || m_text[m_position] != '"')
            break;
        field.append('"');
    }
    m_fields.append(field);
    const bool ends = atLineEnd() || m_text[m_position] == m_separator;
    return ends ? Fault::None : Fault::TextBehindQuote;
}

} // namespace Review
