// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QMetaProperty>
#include <QPointer>

namespace Gallery {

/// The properties that the inspector shows: those that can be written and come from a class of the
/// libraries, and some of Qt's that say a lot about a widget. Derived classes come
/// first, and within a class what is declared first: what others depend on.
QList<QMetaProperty> inspectedProperties(const QMetaObject& meta);

/// The name of the libraries' class that a property comes from begins so.
bool isLibraryClass(const QMetaObject& meta);

/// The properties of an object and their values, to be read and changed. It follows the object's
/// signals, and looks at all values again after each change of its own.
class PropertyModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, ColumnCount };
    /// The names that an enumeration has, in its value's cell.
    static constexpr int keysRole = Qt::UserRole;

    explicit PropertyModel(QObject* parent = nullptr);

    /// Null for none. The object may be deleted.
    void setObject(QObject* object);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// Emitted when any of the values may be another one.
    void valuesChanged();

public Q_SLOTS:
    /// Looks at all values again.
    void refresh();

private:
    void clear();

    QPointer<QObject> m_object;
    QList<QMetaProperty> m_properties;
};

} // namespace Gallery
