// SPDX-License-Identifier: MIT
#pragma once

#include "base/internalexport.h"

#include <QListView>

namespace CorvelGui {

/// The list of categories, just as wide as its widest entry.
class CORVELGUI_INTERNAL_EXPORT CategoryListView : public QListView
{
    Q_OBJECT

public:
    explicit CategoryListView(QWidget* parent = nullptr);

    QSize sizeHint() const override;
};

} // namespace CorvelGui
