// SPDX-License-Identifier: MIT
#pragma once

#include "data/eventwriter.h"
#include "exportjob.h"
#include "video/camera.h"

#include <QStringList>
#include <QTimer>

#include <memory>

class QThread;

namespace Review {

/// Which range of which cameras is exported as clips, and where to.
struct ClipPlan
{
    CorvelGui::TimeSpan range = {};
    QList<Camera> cameras = {};
    /// Those of the range, as CSV.
    EventWriter events = EventWriter();
    /// In which a folder is made for the export.
    QString folder = {};

    /// Milliseconds that files show, of all cameras together.
    qint64 length() const;
};

/// Copies what cameras recorded in a range, without encoding anew: clips as MP4 files that begin at
/// the key frame before the range, or before what follows a pause, and single pictures as they are.
/// Beside them lie lists of them and of the events, which the client opens, and their SHA-256 sums.
///
/// All of it comes into a new folder, which appears when it is whole, and not at all before. Works
/// on a thread of its own, and only reads the recordings.
class ClipExport : public ExportJob
{
    Q_OBJECT

public:
    explicit ClipExport(const ClipPlan& plan, QObject* parent = nullptr);
    ~ClipExport() override;

    void start() override;
    void cancel() override;
    int count() const override;
    /// The new one, once it is there.
    QString folder() const override { return m_folder; }
    QString title() const override;
    QString activity() const override;
    QString remainder() const override;
    std::function<QString()> report(Outcome outcome) const override;
    QString leftOut() const override;

private:
    class Work;

    void finish();

    const std::shared_ptr<Work> m_work;
    QThread* m_thread;
    QTimer m_timer;
    bool m_running = false;
    QString m_folder;
    qsizetype m_files = 0;
    QStringList m_leftOut;
};

} // namespace Review
