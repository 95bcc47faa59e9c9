// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QGroupBox;

namespace CorvelGui {
class ValidateBaseLineEdit;
}

namespace Gallery {

/// The validating line edits, each with a text that it accepts and one that it refuses. The verdict
/// beside a field follows what is typed.
class LineEditsPage : public QWidget
{
    Q_OBJECT

public:
    explicit LineEditsPage(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QGroupBox* createValidating();
    QGroupBox* createOthers();

    CorvelGui::ValidateBaseLineEdit* m_focused = nullptr;
};

} // namespace Gallery
