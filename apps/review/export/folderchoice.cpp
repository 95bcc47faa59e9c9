// SPDX-License-Identifier: MIT
#include "folderchoice.h"

#include <CorvelGui/CheckDirLineEdit>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>

namespace Review {

FolderChoice::FolderChoice(const QString& title, const QString& folder, QWidget* parent)
    : QWidget(parent), m_title(title), m_edit(new CorvelGui::CheckDirLineEdit(this))
{
    constexpr int widthOfPaths = 320;
    m_edit->setMinimumWidth(widthOfPaths);
    m_edit->setAccessibleName(tr("Folder"));
    auto* choose = new QPushButton(tr("Choose…"), this);
    choose->setAutoDefault(false);
    setFocusProxy(m_edit);
    setFolder(folder);
    connect(choose, &QPushButton::clicked, this, &FolderChoice::choose);
    connect(m_edit, &QLineEdit::textChanged, this, &FolderChoice::changed);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_edit, 1);
    layout->addWidget(choose);
}

QString FolderChoice::folder() const
{
    return QDir::fromNativeSeparators(m_edit->text());
}

void FolderChoice::setFolder(const QString& folder)
{
    m_edit->setText(QDir::toNativeSeparators(folder));
}

QString FolderChoice::fault() const
{
    return QFileInfo(folder()).isDir() ? QString() : tr("There is no such folder.");
}

void FolderChoice::choose()
{
    const QPointer<FolderChoice> alive(this);
    const QString chosen = QFileDialog::getExistingDirectory(this, m_title, folder());
    if (alive && !chosen.isEmpty())
        setFolder(chosen);
}

} // namespace Review
