#pragma once

#include <QWidget>

class QFormLayout;
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
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QGroupBox* createValidating();
    QGroupBox* createOthers();
    void fillOthers();

    QFormLayout* m_others = nullptr;
    CorvelGui::ValidateBaseLineEdit* m_focused = nullptr;
};

} // namespace Gallery
