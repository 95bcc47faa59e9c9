// SPDX-License-Identifier: MIT
#pragma once

#include "pictograms.h"

#include <QMetaObject>
#include <QSize>
#include <QString>

#include <functional>

/// A widget as forms have it.
struct FormWidget
{
    const QMetaObject* meta = nullptr;
    Pictogram pictogram = Pictogram::Page;
    QString group;
    QString toolTip;
    /// The size in a new form, in pixels.
    QSize size;
    std::function<QWidget*(QWidget* parent)> create;
    /// Puts in what makes it look as in use; only for the eyes of whoever draws a form.
    std::function<void(QWidget& widget)> fill;
    bool isContainer = false;
};

/// All that can stand in a form: what needs no other object to be made.
QList<FormWidget> formWidgets();
