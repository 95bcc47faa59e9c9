// SPDX-License-Identifier: MIT
// The dark and the light look, icons and colours that follow it, and message boxes in it.
#include <CorvelGui/PMainWindow>
#include <CorvelGui/ToolBarWithLabel>
#include <Hueloft/PIconHelper>
#include <Hueloft/PMessageBox>
#include <Hueloft/POrvGuiTheme>
#include <Hueloft/VectorIconEngine>

#include <QApplication>
#include <QLabel>
#include <QPainter>

using namespace CorvelGui;
using namespace Hueloft;

/// An icon of one's own, drawn in the text colour of the moment.
QIcon bell()
{
    return QIcon(new VectorIconEngine([](QPainter& painter, const QRect& square, QIcon::Mode mode) {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const double unit = square.width() / 16.0;
        painter.translate(square.topLeft());
        painter.scale(unit, unit);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QApplication::palette().color(group, QPalette::ButtonText));
        painter.drawChord(QRectF(3, 2, 10, 18), 0, 180 * 16);
        painter.drawRect(QRectF(2, 11, 12, 2));
        painter.drawEllipse(QRectF(7, 13, 2, 2));
    }));
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    PMainWindow window; // before anything changes the palette
    window.setWindowTitle("Look");
    window.resize(480, 200);
    auto* failure = new QLabel("Gate: no connection");
    failure->setAlignment(Qt::AlignCenter);
    window.setCentralWidget(failure);
    const auto wear = [&](bool dark) {
        window.createDarkFusionStyle(dark);
        // Colours that are stored with a widget do not follow by themselves.
        QPalette red = failure->palette();
        red.setColor(QPalette::WindowText, POrvGuiTheme::statusRed());
        failure->setPalette(red);
    };
    wear(true);

    auto* bar = new ToolBarWithLabel("Commands", &window);
    window.addToolBar(bar);
    QAction* light = bar->addAction(PIconHelper::GetSettingsIconOriginal_32x32(true), "Light");
    light->setCheckable(true);
    QObject::connect(light, &QAction::toggled, &window, [=](bool on) { wear(!on); });
    QAction* alarm = bar->addAction(bell(), "Alarm");
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addLabel("Site 1", POrvGuiTheme::colorOrange);

    QObject::connect(alarm, &QAction::triggered, &window, [&] {
        const int answer = PMessageBox::Question(
            &window, "Alarm", "Sound the alarm?", QMessageBox::No,
            "The siren in <Hall 2> cannot be silenced for a minute."); // shown, not obeyed
        if (answer == QMessageBox::Yes)
            PMessageBox::Warning(&window, "Alarm", "The siren does not answer.", QMessageBox::Ok,
                                 QMessageBox::Ok, {}, "10.0.0.31: connection refused");
    });

    window.show();
    return app.exec();
}
