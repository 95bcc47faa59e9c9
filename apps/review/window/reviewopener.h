// SPDX-License-Identifier: MIT
#pragma once

#include "footage/loadjob.h"

#include <QObject>

#include <memory>

class QMainWindow;

namespace Review {

class Clock;

/// Loads files for a window, which is covered meanwhile.
class ReviewOpener : public QObject
{
    Q_OBJECT

public:
    /// Owns neither. Clocks of cameras count as those of the zone of @p clock, unless they say
    /// more.
    ReviewOpener(QMainWindow* window, const Clock& clock);
    ~ReviewOpener() override;

    /// Loads files, or the sample when none is named. Not while another load is under way.
    void load(const ReviewFiles& files);
    /// Loads what the user chose, unless another load is under way, and tells him when it cannot be
    /// read.
    void open(const QStringList& paths);
    /// Lets the user choose a folder, or files.
    void askForFolder();
    void askForFiles();
    bool isLoading() const { return m_job != nullptr; }

    /// What was loaded last.
    const LoadedFiles& loaded() const { return m_loaded; }
    /// A second look found more of it.
    void setLoaded(const LoadedFiles& loaded);
    /// How times in folders are corrected. Setting it says nothing of what is loaded.
    const FolderCorrections& corrections() const { return m_corrections; }
    void setCorrections(const FolderCorrections& corrections) { m_corrections = corrections; }
    /// Corrects the times of what was loaded last, without reading it again.
    void correct(const TimeCorrections& corrections);

Q_SIGNALS:
    /// Emitted when a load begins, and before ended().
    void loadingChanged(bool loading);
    /// Emitted when a load has come to its end, also to a bad one.
    void ended(const Review::LoadJob& job);

private:
    void start(std::unique_ptr<LoadJob> job);
    void finish();

    QMainWindow* m_window;
    const Clock& m_clock;
    LoadedFiles m_loaded;
    FolderCorrections m_corrections;
    QString m_pattern; ///< of the paths of clips, once there is one
    std::unique_ptr<LoadJob> m_job;
};

} // namespace Review
