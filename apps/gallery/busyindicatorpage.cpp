// SPDX-License-Identifier: MIT
#include "busyindicatorpage.h"

#include <CorvelGui/BusyIndicator>
#include <Hueloft/POrvGuiTheme>

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

#include <chrono>

using CorvelGui::BusyIndicator;
using Hueloft::POrvGuiTheme;
using namespace std::chrono_literals;

namespace Gallery {

namespace {

QPixmap drawPicture()
{
    QPixmap picture(160, 90);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, 90);
    sky.setColorAt(0, POrvGuiTheme::colorDarkBlue);
    sky.setColorAt(1, POrvGuiTheme::colorGreyhound);
    painter.fillRect(picture.rect(), sky);
    painter.fillRect(0, 60, 160, 30, POrvGuiTheme::colorKoala);
    painter.fillRect(20, 30, 50, 45, POrvGuiTheme::colorTuna);
    return picture;
}

QGroupBox* createPanel(const QString& title)
{
    auto* panel = new QGroupBox(title);
    auto* form = new QFormLayout(panel);
    form->addRow(BusyIndicatorPage::tr("Name"),
                 new QLineEdit(BusyIndicatorPage::tr("Gate camera")));
    form->addRow(BusyIndicatorPage::tr("Address"), new QLineEdit(QStringLiteral("192.0.2.17")));
    panel->setMinimumSize(360, 220);
    return panel;
}

} // namespace

BusyIndicatorPage::BusyIndicatorPage(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setSpacing(16);

    QGroupBox* dimmed = createPanel(tr("Busy"));
    (new BusyIndicator(dimmed))->show();
    grid->addWidget(dimmed, 0, 0);

    QGroupBox* pictured = createPanel(tr("With a background image"));
    auto* overPicture = new BusyIndicator(pictured);
    overPicture->setBackgroundImage(drawPicture());
    overPicture->show();
    grid->addWidget(pictured, 0, 1);

    QGroupBox* delayed = createPanel(tr("Within its delay"));
    m_waiting = new BusyIndicator(delayed);
    grid->addWidget(delayed, 1, 0);

    QGroupBox* tried = createPanel(tr("To try"));
    auto* overlay = new BusyIndicator(tried);
    overlay->hide();
    auto* start = new QPushButton(tr("&Work for three seconds"));
    static_cast<QFormLayout*>(tried->layout())->addRow(start);
    connect(start, &QPushButton::clicked, overlay, [overlay] {
        overlay->setDelay(500ms);
        overlay->show();
        QTimer::singleShot(3s, overlay, &BusyIndicator::setFinished);
    });
    grid->addWidget(tried, 1, 1);
    grid->setRowStretch(2, 1);
}

void BusyIndicatorPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // A delay holds for one showing.
    m_waiting->hide();
    m_waiting->setDelay(1h);
    m_waiting->show();
}

} // namespace Gallery
