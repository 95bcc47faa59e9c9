// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The sliders: plain ones with texts, that of a video whose seeks take as long as is chosen, one
/// for ranges, and buttons with a slider in their pop-up.
class SlidersPage : public QWidget
{
    Q_OBJECT

public:
    explicit SlidersPage(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* m_focused = nullptr;
};

} // namespace Gallery
