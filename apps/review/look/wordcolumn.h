#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace Review {

/// A column of texts of which many are alike. Each is kept once, and its place in the order of the
/// user's language is found once, so that it does not matter how many rows are sorted.
class WordColumn
{
public:
    void append(const QString& text);
    const QString& text(qsizetype row) const { return m_words[size_t(m_wordOfRow[size_t(row)])]; }
    /// A text that comes later in the order has a higher rank. Numbers in texts count by value,
    /// upper and lower case are alike.
    int rank(qsizetype row) const;

private:
    std::vector<int> m_wordOfRow;
    std::vector<QString> m_words;
    QHash<QString, int> m_numbers;
    /// Empty until they are asked for.
    mutable std::vector<int> m_ranks;
};

} // namespace Review
