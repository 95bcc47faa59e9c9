// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

class QWidget;

namespace Gallery {

/// One family of widgets. The title is also the name for `--page` and the base of picture names.
struct Page
{
    QString title;
    QWidget* (*create)(QWidget* parent);
};

/// All pages in the order in which they are listed.
const std::vector<Page>& pages();

/// The place of a page in pages(), its title compared without regard to case; -1 if there is none.
int pageIndex(const QString& title);

} // namespace Gallery
