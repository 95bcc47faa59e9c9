// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

struct QMetaObject;
class QMetaProperty;
class QVariant;
class QWidget;

namespace Gallery {

struct KnownWidget;

/// The function that sets a property; empty where only setProperty() is known to.
QString setterOf(const QMetaProperty& property);

/// @p value as an expression of C++; empty where there is none.
QString literalOf(const QMetaProperty& property, const QVariant& value);

/// What sets a property of a variable; a comment where the value cannot be written.
QString statementOf(const QString& variable, const QMetaProperty& property, const QVariant& value);

/// Writes the C++ that makes a widget such as one of the libraries' classes is.
class CodeWriter
{
public:
    /// @p widget is of a known class, and lives for as long as code() is called.
    explicit CodeWriter(const QWidget& widget);
    ~CodeWriter();

    /// Sets what differs from a new one.
    QString code() const;

private:
    const QWidget& m_widget;
    const KnownWidget& m_known;
    const std::unique_ptr<const QWidget> m_new;
};

} // namespace Gallery
