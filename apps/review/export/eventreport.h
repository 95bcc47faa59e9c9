// SPDX-License-Identifier: MIT
#pragma once

#include "data/eventline.h"
#include "video/camera.h"
#include "video/cameradecoder.h"

#include <QByteArray>
#include <QObject>

#include <memory>

namespace CorvelGui {
class TextCursor;
} // namespace CorvelGui

namespace Review {

/// What a report of events is about.
struct ReportPlan
{
    QString subject = {}; ///< what the user calls the recordings; may be empty
    QStringList columns = {};
    QList<EventLine> events = {};
    QList<Camera> cameras = {};
    TimeTexts times = TimeTexts(QString());
};

/// Collects a picture for each event, of its camera at that instant, and puts all of it on paper.
/// Pictures are decoded on threads, one after the other; an event without one has the reason in its
/// place.
class EventReport : public QObject
{
    Q_OBJECT

public:
    /// A report of more pictures would take a quarter of an hour.
    static constexpr int mostPictures = 1'000;

    explicit EventReport(const ReportPlan& plan, QObject* parent = nullptr);
    ~EventReport() override;

    const ReportPlan& plan() const { return m_plan; }

    /// Begins anew where it was cancelled. Signals come from the event loop.
    void collectPictures();
    void cancel();

    /// Writes the report, with the pictures that were collected. False when @p report cancelled it.
    bool write(CorvelGui::TextCursor& report, bool withPictures) const;

Q_SIGNALS:
    void collected(int done);
    /// Emitted when there is something for each event.
    void complete();

private:
    struct Sight
    {
        QByteArray picture = {}; ///< compressed
        QString text = {};       ///< why there is none
    };

    const Camera* cameraOf(const EventLine& event) const;
    void askForNext();
    void take(const VideoFrame& frame);
    double widthOf(qsizetype column) const;
    bool writeTable(CorvelGui::TextCursor& report, bool withPictures) const;

    const ReportPlan m_plan;
    /// The numbers of the events, those of one camera together.
    QList<int> m_order;
    QList<Sight> m_sights;
    int m_done = 0;
    bool m_running = false;
    QString m_decoded; ///< whose decoder it is
    std::unique_ptr<CameraDecoder> m_decoder;
};

} // namespace Review
