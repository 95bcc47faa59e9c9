#pragma once

#include "data/reviewloader.h"

#include <QObject>

#include <memory>

class QMainWindow;

namespace Review {

class LoadJob;

/// Loads files for a window, which is covered meanwhile.
class ReviewOpener : public QObject
{
    Q_OBJECT

public:
    explicit ReviewOpener(QMainWindow* window);
    ~ReviewOpener() override;

    /// Loads files, or the sample when none is named. Not while another load is under way.
    void load(const ReviewFiles& files);
    /// Loads the files in a folder that the user chooses, and tells him when they cannot be read.
    void askForFolder();

Q_SIGNALS:
    /// Emitted when a load begins, and before ended().
    void loadingChanged(bool loading);
    /// Emitted when a load has come to its end, also to a bad one.
    void ended(const Review::LoadJob& job);

private:
    void finish();

    QMainWindow* m_window;
    std::unique_ptr<LoadJob> m_job;
};

} // namespace Review
