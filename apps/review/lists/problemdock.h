// SPDX-License-Identifier: MIT
#pragma once

#include "data/problemlist.h"
#include "look/translated.h"

#include <QDockWidget>

class QListWidget;

namespace Review {

/// Lists the lines that could not be loaded.
class ProblemDock : public Translated<QDockWidget>
{
    Q_OBJECT

public:
    /// Starts hidden and empty.
    explicit ProblemDock(QWidget* parent = nullptr);

    /// Replaces the list. The dock shows itself when there are problems, and hides without any.
    void setProblems(const ProblemList& problems);

protected:
    void retranslate() final;

private:
    ProblemList m_problems;
    QListWidget* m_list;
};

} // namespace Review
