#pragma once

#include <QWidget>

namespace Gallery {

/// Ordinary Qt widgets in their states, as the application's look dresses them.
class LooksPage : public QWidget
{
    Q_OBJECT

public:
    explicit LooksPage(QWidget* parent);
};

} // namespace Gallery
