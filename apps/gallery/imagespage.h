// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QGridLayout;

namespace Gallery {

/// Pictures in every fit and state, with labels, from files, and prepared by the helper.
class ImagesPage : public QWidget
{
    Q_OBJECT

public:
    explicit ImagesPage(QWidget* parent);

private:
    QWidget* createFits();
    QWidget* createStates();
    QWidget* createLabels();
    QWidget* createPrepared();
    QWidget* createSource();
};

} // namespace Gallery
