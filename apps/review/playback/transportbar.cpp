#include "transportbar.h"

#include <CorvelGui/PPlaybar>
#include <CorvelGui/TarvoDateTimeView>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

using CorvelGui::PPlaybar;
using CorvelGui::TarvoDateTimeView;

namespace Review {

TransportBar::TransportBar(QWidget* parent)
    : QWidget(parent)
    , m_time(new TarvoDateTimeView(this))
    , m_playbar(new PPlaybar(this))
    , m_skipGaps(new QCheckBox(this))
    , m_view(new QLabel(this))
{
    m_time->setPlayMode(false);
    // Leaves the space bar to the player after a click.
    m_skipGaps->setFocusPolicy(Qt::TabFocus);
    m_view->setTextFormat(Qt::PlainText);
    m_view->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    // On a narrow window it takes two lines.
    m_view->setWordWrap(true);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 2);
    layout->setSpacing(16);
    layout->addWidget(m_time);
    layout->addWidget(m_playbar);
    layout->addWidget(m_skipGaps);
    layout->addWidget(m_view, 1);
    setPlayable(false);
    retranslate();
}

void TransportBar::setPlayable(bool playable)
{
    for (QWidget* part : QList<QWidget*>{m_time, m_playbar, m_skipGaps})
        part->setEnabled(playable);
}

void TransportBar::setViewText(const QString& text)
{
    m_view->setText(text);
}

void TransportBar::retranslate()
{
    m_skipGaps->setText(tr("Skip gaps"));
    m_skipGaps->setToolTip(tr("Leaves out the times without a recording of the camera"));
}

} // namespace Review
