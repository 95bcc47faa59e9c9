// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QProgressBar>

namespace CorvelGui {

/// A progress bar whose text is the percentage with one decimal, such as "33.3%", or empty while
/// minimum and maximum are the same. Unlike QProgressBar's it is not empty before the first
/// setValue() and after reset(), but counts the value of those states, such as "-1.0%".
class CORVELGUI_EXPORT PFractionalProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit PFractionalProgressBar(QWidget* parent = nullptr);

    QString text() const override;
};

} // namespace CorvelGui
