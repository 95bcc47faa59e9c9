// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct QMetaObject;
class QMetaProperty;
class QVariant;
class QWidget;

namespace Gallery {

/// The function that sets a property; empty where only setProperty() is known to.
QString setterOf(const QMetaProperty& property);

/// @p value as an expression of C++; empty where there is none.
QString literalOf(const QMetaProperty& property, const QVariant& value);

/// What sets a property of a variable; a comment where the value cannot be written.
QString statementOf(const QString& variable, const QMetaProperty& property, const QVariant& value);

/// The C++ that makes such a widget, of one of the libraries' classes: what differs from a new one
/// is set.
QString codeOf(const QWidget& widget);

} // namespace Gallery
