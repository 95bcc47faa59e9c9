// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace Review {

/// A line of plain text that may be cut where there is no room; then its tooltip says all of it.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText() const;
};

} // namespace Review
