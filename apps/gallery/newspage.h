// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Gallery {

/// The news of a feed, which this program serves to itself, and what tells of a program: its name
/// and version, what it is made of, and the machine.
class NewsPage : public QWidget
{
    Q_OBJECT

public:
    explicit NewsPage(QWidget* parent = nullptr);
};

} // namespace Gallery
