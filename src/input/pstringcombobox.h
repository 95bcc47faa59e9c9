// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QComboBox>
#include <QList>

#include <utility>

namespace CorvelGui {

/// Chooses one of some strings that a program knows by a key and the user by a text, such as a
/// protocol. The choice stays when the texts change with the language, and when the list does.
///
/// The entries belong to the class. A receiver that wants to remove the box calls deleteLater():
/// QComboBox still works on itself after its own signals.
class CORVELGUI_EXPORT PStringComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString currentKey READ currentKey WRITE setCurrentKey NOTIFY currentKeyChanged)

public:
    /// Key and text.
    using Entry = std::pair<QString, QString>;

    explicit PStringComboBox(QWidget* parent = nullptr);

    /// Replaces all entries, in their order; a key that comes again is left out. The current key
    /// stays if it is among them, otherwise the first one becomes it.
    void setEntries(const QList<Entry>& entries);
    QList<Entry> entries() const;

    /// Null as long as there are no entries.
    QString currentKey() const { return m_key; }

public Q_SLOTS:
    /// A key that is not in the list changes nothing.
    void setCurrentKey(const QString& key);

Q_SIGNALS:
    /// Emitted when the current key is another one, whoever chose it.
    void currentKeyChanged(const QString& key);

private:
    void takeIndex(int index);

    QString m_key;
};

} // namespace CorvelGui
