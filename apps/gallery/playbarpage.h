// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The playbar in every state, in live mode, disabled and with larger icons.
class PlaybarPage : public QWidget
{
    Q_OBJECT

public:
    explicit PlaybarPage(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* m_focused = nullptr;
};

} // namespace Gallery
