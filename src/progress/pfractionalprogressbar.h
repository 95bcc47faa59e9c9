#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QProgressBar>

namespace CorvelGui {

/// A progress bar whose text is the percentage with one decimal, such as "33.3%". The text is empty
/// while minimum and maximum are the same, and while the bar has no value: before the first
/// setValue() and after reset().
class CORVELGUI_EXPORT PFractionalProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit PFractionalProgressBar(QWidget* parent = nullptr);

    QString text() const override;
};

} // namespace CorvelGui
