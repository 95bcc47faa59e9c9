#pragma once

#include "problemlist.h"

#include <QDockWidget>

class QListWidget;

namespace Review {

/// Lists the lines that could not be loaded.
class ProblemDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit ProblemDock(const ProblemList& problems, QWidget* parent = nullptr);

    /// Applies all translated texts again.
    void retranslate();

private:
    const ProblemList m_problems;
    QListWidget* m_list;
};

} // namespace Review
