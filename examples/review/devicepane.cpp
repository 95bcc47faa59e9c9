#include "devicepane.h"

#include "listview.h"

#include <QHeaderView>
#include <QTreeView>
#include <QVBoxLayout>

using CorvelGui::TrackDescription;

namespace Review {

DevicePane::DevicePane(const TimeTexts& times, QWidget* parent)
    : QWidget(parent), m_model(new TrackModel(times, this)), m_view(createList(m_model))
{
    m_view->header()->setSectionResizeMode(TrackModel::Name, QHeaderView::Stretch);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    connect(m_model, &TrackModel::checkedTracksChanged, this, &DevicePane::checkedTracksChanged);
    retranslate();
}

void DevicePane::setTracks(const QList<TrackDescription>& tracks)
{
    m_model->setTracks(tracks);
}

void DevicePane::setTimes(const TimeTexts& times)
{
    m_model->setTimes(times);
}

void DevicePane::retranslate()
{
    m_view->setAccessibleName(tr("Tracks"));
}

} // namespace Review
