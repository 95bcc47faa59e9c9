// SPDX-License-Identifier: MIT
#include "loadpanel.h"

#include "footage/loadjob.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

namespace Review {

LoadPanel::LoadPanel(LoadJob& job, QWidget* parent)
    : Translated(parent), m_job(job), m_progress(new QProgressBar), m_cancel(new QPushButton)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_progress);
    layout->addWidget(m_cancel);
    m_progress->setMaximumWidth(160);
    hide();

    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_cancel->setEnabled(false);
        m_job.cancel();
    });
    connect(&m_timer, &QTimer::timeout, this, &LoadPanel::follow);
    m_timer.start(200);
    retranslate();
}

void LoadPanel::follow()
{
    m_progress->setValue(m_job.percent());
    show();
}

void LoadPanel::retranslate()
{
    m_progress->setAccessibleName(tr("Loading"));
    m_progress->setFormat(tr("Loading: %p %"));
    m_cancel->setText(tr("Cancel"));
}

} // namespace Review
