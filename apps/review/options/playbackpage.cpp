// SPDX-License-Identifier: MIT
#include "playbackpage.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Review {

PlaybackPage::PlaybackPage(SettingsStore& store) : ClientPage(store, u"playback"_s, u"playback"_s)
{
    setCategoryIcon(u":/CorvelGui/common/rightarrow.png"_s);
    retranslate();
}

void PlaybackPage::build(QFormLayout& form)
{
    m_skipGaps = new QCheckBox;
    form.addRow(m_skipGaps);
}

void PlaybackPage::show(const ReviewSettings& settings)
{
    m_skipGaps->setChecked(settings.skipGaps);
}

void PlaybackPage::take(ReviewSettings& settings) const
{
    settings.skipGaps = m_skipGaps->isChecked();
}

QString PlaybackPage::pageName() const
{
    return tr("Playback");
}

QString PlaybackPage::categoryName() const
{
    return tr("Playback");
}

void PlaybackPage::retranslateFields()
{
    m_skipGaps->setText(tr("&Skip what is not recorded"));
}

} // namespace Review
