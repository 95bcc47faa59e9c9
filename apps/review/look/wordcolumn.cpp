#include "wordcolumn.h"

#include <QCollator>

#include <algorithm>
#include <numeric>

namespace Review {

void WordColumn::append(const QString& text)
{
    const auto known = m_numbers.constFind(text);
    if (known != m_numbers.cend()) {
        m_wordOfRow.push_back(*known);
        return;
    }
    const int number = int(m_words.size());
    m_numbers.insert(text, number);
    m_words.push_back(text);
    m_wordOfRow.push_back(number);
    m_ranks.clear();
}

int WordColumn::rank(qsizetype row) const
{
    if (m_ranks.empty()) {
        QCollator collator;
        collator.setNumericMode(true);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        std::vector<int> order(m_words.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            return collator.compare(m_words[size_t(a)], m_words[size_t(b)]) < 0;
        });
        m_ranks.resize(order.size());
        for (size_t place = 0; place < order.size(); ++place)
            m_ranks[size_t(order[place])] = int(place);
    }
    return m_ranks[size_t(m_wordOfRow[size_t(row)])];
}

} // namespace Review
