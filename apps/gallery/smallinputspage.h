// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QFormLayout;

namespace Gallery {

/// Boxes, buttons and labels for single values, and the field for notes.
class SmallInputsPage : public QWidget
{
    Q_OBJECT

public:
    explicit SmallInputsPage(QWidget* parent);

private:
    void addBoxes(QFormLayout& form);
    void addButtons(QFormLayout& form);
    void addTexts(QFormLayout& form);
};

} // namespace Gallery
