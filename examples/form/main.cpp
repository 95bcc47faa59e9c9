// SPDX-License-Identifier: MIT
// A form that was drawn in Designer: where recordings are kept, and for how long.
#include "ui_archive.h"

#include <QApplication>
#include <QDir>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    QWidget window;
    Ui::Archive form;
    form.setupUi(&window);
    form.folder->setText(QDir::tempPath());
    const auto tell = [&](int least, int most) {
        form.days->setText(QString("Kept for %1 to %2 days").arg(least).arg(most));
    };
    QObject::connect(form.range, &CorvelGui::RangeSlider::valuesChanged, &window, tell);
    tell(form.range->lowerValue(), form.range->upperValue());

    window.show();
    return app.exec();
}
