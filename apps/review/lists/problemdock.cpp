// SPDX-License-Identifier: MIT
#include "problemdock.h"

#include "look/roomydelegate.h"

#include <CorvelGui/StringHelper>

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QLocale>

using CorvelGui::StringHelper;
using namespace Qt::StringLiterals;

namespace Review {

ProblemDock::ProblemDock(QWidget* parent) : Translated(parent), m_list(new QListWidget(this))
{
    setObjectName(u"problemDock"_s);
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea | Qt::RightDockWidgetArea);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setUniformItemSizes(true);
    m_list->setItemDelegate(new RoomyDelegate(m_list));
    setWidget(m_list);
    setProblems({});
}

void ProblemDock::setProblems(const ProblemList& problems)
{
    m_problems = problems;
    retranslate();
    setVisible(problems.count() > 0);
    toggleViewAction()->setVisible(problems.count() > 0);
}

void ProblemDock::retranslate()
{
    setWindowTitle(tr("Left out: %1").arg(QLocale().toString(m_problems.count())));
    m_list->setAccessibleName(tr("Left out"));
    // Qt names it once only, in the language of that moment.
    if (auto* close = findChild<QWidget*>(u"qt_dockwidget_closebutton"_s))
        close->setAccessibleName(tr("Close"));
    m_list->clear();
    for (const Problem& problem : m_problems.listed()) {
        const QString line = problem.line > 0 ? u':' + QString::number(problem.line) : QString();
        auto* item = new QListWidgetItem(
            QFileInfo(problem.file).fileName() + line + u": "_s + problem.text.text(), m_list);
        item->setToolTip(StringHelper::plainToolTip(QDir::toNativeSeparators(problem.file)));
    }
    if (m_problems.unlisted() > 0)
        m_list->addItem(tr("and %1 more").arg(QLocale().toString(m_problems.unlisted())));
}

} // namespace Review
