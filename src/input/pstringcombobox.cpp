// SPDX-License-Identifier: MIT
#include "pstringcombobox.h"

#include "base/entrywidth.h"

#include <QSignalBlocker>

#include <algorithm>

namespace CorvelGui {

PStringComboBox::PStringComboBox(QWidget* parent) : QComboBox(parent)
{
    keepRoomForEntries(*this);
    connect(this, &QComboBox::currentIndexChanged, this, &PStringComboBox::takeIndex);
}

void PStringComboBox::setEntries(const QList<Entry>& entries)
{
    {
        const QSignalBlocker quiet(this); // on the way the box shows other entries
        clear();
        for (const auto& [key, text] : entries) {
            if (findData(key) < 0)
                addItem(text, key);
        }
        setCurrentIndex(std::max(findData(m_key), count() > 0 ? 0 : -1));
    }
    takeIndex(currentIndex());
}

QList<PStringComboBox::Entry> PStringComboBox::entries() const
{
    QList<Entry> entries;
    for (int i = 0; i < count(); ++i)
        entries.append({itemData(i).toString(), itemText(i)});
    return entries;
}

void PStringComboBox::setCurrentKey(const QString& key)
{
    if (const int index = findData(key); index >= 0)
        setCurrentIndex(index);
}

void PStringComboBox::takeIndex(int index)
{
    const QString key = itemData(index).toString();
    if (key == m_key && key.isNull() == m_key.isNull())
        return;
    m_key = key;
    Q_EMIT currentKeyChanged(m_key);
}

} // namespace CorvelGui
