// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>
#include <vector>

class QLabel;

namespace CorvelGui {
class ISettingsPage;
}

namespace Gallery {

/// The options dialog of an imagined client: pictures of it as it opens and while it searches, and
/// a button that runs it.
class OptionsPage : public QWidget
{
    Q_OBJECT

public:
    explicit OptionsPage(QWidget* parent);
    ~OptionsPage() override;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void run();
    void takePictures();

    std::vector<std::unique_ptr<CorvelGui::ISettingsPage>> m_pages;
    QLabel* m_opened;
    QLabel* m_searching;
    QLabel* m_result;
};

} // namespace Gallery
