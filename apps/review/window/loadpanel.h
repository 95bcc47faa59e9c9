// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <QTimer>
#include <QWidget>

class QProgressBar;
class QPushButton;

namespace Review {

class LoadJob;

/// Shows how far a load has come, once it takes longer than a moment, and lets the user cancel it.
class LoadPanel : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// @p job must live longer.
    explicit LoadPanel(LoadJob& job, QWidget* parent = nullptr);

protected:
    void retranslate() final;

private:
    void follow();

    LoadJob& m_job;
    QProgressBar* m_progress;
    QPushButton* m_cancel;
    QTimer m_timer;
};

} // namespace Review
