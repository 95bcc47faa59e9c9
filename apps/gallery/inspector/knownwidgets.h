// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMetaObject>
#include <QString>

#include <functional>

class QWidget;

namespace Gallery {

/// A class of widgets that the inspector can show.
struct KnownWidget
{
    const QMetaObject* meta = nullptr;
    std::function<QWidget*(QWidget* parent)> create;
    /// What its constructor wants, as code.
    QString arguments = {};

    /// Without the namespace.
    QString name() const;
};

const QList<KnownWidget>& knownWidgets();

/// The class of the libraries that @p widget is of, or null. One that derives from it counts.
const KnownWidget* knownWidget(const QWidget& widget);

} // namespace Gallery
