#pragma once

#include <QWidget>

namespace Gallery {

/// The whole timeline in the states that a user meets.
class ZoomTimelinePage : public QWidget
{
    Q_OBJECT

public:
    explicit ZoomTimelinePage(QWidget* parent);
};

} // namespace Gallery
