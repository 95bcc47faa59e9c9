// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QList>
#include <QWidget>

namespace Gallery {

/// Every icon getter at three sizes in all modes, and the images of the library's bundle on dark
/// and on white.
class IconsPage : public QWidget
{
    Q_OBJECT

public:
    explicit IconsPage(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Entry
    {
        QString name;
        QIcon icon;
        bool onDark; ///< made for surfaces that are dark in both looks
    };

    void drawEntry(QPainter& painter, QPoint topLeft, const Entry& entry) const;
    void drawBundle(QPainter& painter, int top) const;

    const QList<Entry> m_entries;
};

} // namespace Gallery
