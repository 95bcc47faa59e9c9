// SPDX-License-Identifier: MIT
#include "propertymodel.h"

#include <QColor>
#include <QSize>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

bool isNamedValue(const QMetaProperty& property)
{
    return property.isEnumType() && !property.isFlagType();
}

/// Whether what is shown is also what is edited.
bool isEditedAsText(const QMetaProperty& property)
{
    constexpr int types[] = {QMetaType::QUrl, QMetaType::QSize, QMetaType::QStringList};
    return isNamedValue(property) || std::ranges::find(types, property.typeId()) != std::end(types);
}

bool isEditable(const QMetaProperty& property)
{
    constexpr int types[] = {QMetaType::Int,       QMetaType::UInt,   QMetaType::LongLong,
                             QMetaType::ULongLong, QMetaType::Double, QMetaType::Float,
                             QMetaType::QString,   QMetaType::QDate,  QMetaType::QDateTime,
                             QMetaType::QColor};
    return isEditedAsText(property) ||
           std::ranges::find(types, property.typeId()) != std::end(types);
}

/// Invalid if it is none.
QVariant valueOfText(const QMetaProperty& property, const QString& text)
{
    if (isNamedValue(property))
        return property.enumerator().keyToValue(text.toLatin1().constData());
    if (property.typeId() == QMetaType::QSize) {
        const QStringList sides = text.split(u'×');
        const QSize size(sides.first().toInt(), sides.last().toInt());
        return size.isEmpty() ? QVariant() : size;
    }
    if (property.typeId() == QMetaType::QStringList)
        return text.split(u", "_s, Qt::SkipEmptyParts);
    return QUrl(text);
}

QString shown(const QMetaProperty& property, const QVariant& value)
{
    if (property.isEnumType())
        return QString::fromLatin1(
            property.isFlagType() ? property.enumerator().valueToKeys(value.toInt())
                                  : QByteArray(property.enumerator().valueToKey(value.toInt())));
    switch (property.typeId()) {
    case QMetaType::Bool:
        return {}; // its check box says it
    case QMetaType::QColor:
        return value.value<QColor>().name(QColor::HexArgb);
    case QMetaType::QStringList:
        return value.toStringList().join(u", "_s);
    case QMetaType::QSize:
        return u"%1 × %2"_s.arg(value.toSize().width()).arg(value.toSize().height());
    default:
        return value.canConvert<QString>() ? value.toString()
                                           : u'(' + QString::fromLatin1(property.typeName()) + u')';
    }
}

} // namespace

bool isLibraryClass(const QMetaObject& meta)
{
    const QByteArray name = meta.className();
    return name.startsWith("CorvelGui::") || name == "PTabWidget";
}

QList<QMetaProperty> inspectedProperties(const QMetaObject& meta)
{
    const QByteArrayList ofQt{"enabled", "toolTip", "text", "placeholderText"};
    QList<QMetaProperty> properties;
    for (const QMetaObject* type = &meta; type; type = type->superClass()) {
        const bool isOurs = isLibraryClass(*type);
        for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
            const QMetaProperty property = type->property(i);
            const bool isHidden = meta.indexOfProperty(property.name()) != i;
            if (property.isWritable() && !isHidden && (isOurs || ofQt.contains(property.name())))
                properties.append(property);
        }
    }
    return properties;
}

PropertyModel::PropertyModel(QObject* parent) : QAbstractTableModel(parent) {}

void PropertyModel::setObject(QObject* object)
{
    beginResetModel();
    if (m_object)
        m_object->disconnect(this);
    m_object = object;
    m_properties = object ? inspectedProperties(*object->metaObject()) : QList<QMetaProperty>();
    const QMetaMethod update = metaObject()->method(metaObject()->indexOfSlot("refresh()"));
    for (const QMetaProperty& property : std::as_const(m_properties)) {
        if (property.hasNotifySignal())
            connect(object, property.notifySignal(), this, update, Qt::UniqueConnection);
    }
    if (object)
        connect(object, &QObject::destroyed, this, &PropertyModel::clear);
    endResetModel();
    Q_EMIT valuesChanged();
}

void PropertyModel::clear()
{
    setObject(nullptr);
}

void PropertyModel::refresh()
{
    if (m_properties.isEmpty())
        return;
    Q_EMIT dataChanged(index(0, ValueColumn), index(rowCount() - 1, ValueColumn));
    Q_EMIT valuesChanged();
}

int PropertyModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_properties.size());
}

int PropertyModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == NameColumn ? tr("Property") : tr("Value");
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const
{
    if (!m_object || !index.isValid())
        return {};
    const QMetaProperty& property = m_properties[index.row()];
    if (index.column() == NameColumn) {
        if (role == Qt::ToolTipRole)
            return u"%1 %2::%3"_s.arg(
                QLatin1StringView(property.typeName()),
                QLatin1StringView(property.enclosingMetaObject()->className()),
                QLatin1StringView(property.name()));
        return role == Qt::DisplayRole ? QString::fromLatin1(property.name()) : QVariant();
    }
    const QVariant value = property.read(m_object);
    const bool isBool = property.typeId() == QMetaType::Bool;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return shown(property, value);
    case Qt::EditRole:
        return isEditedAsText(property) ? shown(property, value) : value;
    case Qt::CheckStateRole:
        return isBool ? QVariant(value.toBool() ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        return property.typeId() == QMetaType::QColor ? value : QVariant();
    case Qt::AccessibleTextRole:
        return isBool ? value.toString() : shown(property, value);
    case keysRole:
        break;
    default:
        return {};
    }
    QStringList keys;
    for (int i = 0; isNamedValue(property) && i < property.enumerator().keyCount(); ++i)
        keys.append(QString::fromLatin1(property.enumerator().key(i)));
    return keys;
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid() || index.column() != ValueColumn)
        return flags;
    const QMetaProperty& property = m_properties[index.row()];
    flags.setFlag(Qt::ItemIsUserCheckable, property.typeId() == QMetaType::Bool);
    flags.setFlag(Qt::ItemIsEditable, isEditable(property));
    return flags;
}

bool PropertyModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!m_object || index.column() != ValueColumn ||
        (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    const QMetaProperty& property = m_properties[index.row()];
    QVariant written = value;
    if (role == Qt::CheckStateRole)
        written = value.toInt() == Qt::Checked;
    else if (isEditedAsText(property))
        written = valueOfText(property, value.toString());
    if (!written.isValid() || written == property.read(m_object))
        return true;
    const bool taken = property.write(m_object, written);
    refresh();
    return taken;
}

} // namespace Gallery
