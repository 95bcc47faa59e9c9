// SPDX-License-Identifier: MIT
#include "tooltipspage.h"

#include <CorvelGui/ToolTipHelper>
#include <Hueloft/POrvGuiTheme>

#include <QBuffer>
#include <QDateTime>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>

using CorvelGui::ToolTipHelper;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QByteArray picture(const char* format)
{
    QImage image(240, 90, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, image.height());
    sky.setColorAt(0, POrvGuiTheme::colorDarkBlue);
    sky.setColorAt(1, POrvGuiTheme::colorOrange);
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter, u"Entrance north"_s);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes.toBase64();
}

QString device()
{
    ToolTipHelper tip;
    tip.AddTopImagePng(picture("PNG"));
    tip.AddRow(u"Device"_s, u"Entrance north"_s);
    tip.AddRow(u"Address"_s, u"192.168.1.20"_s);
    tip.AddRow(u"State"_s, u"Recording"_s, POrvGuiTheme::colorGreen, true);
    tip.AddRow(u"Active"_s, true);
    tip.AddRow(u"Rate"_s, 25, u" fps"_s);
    tip.AddRow(u"Since"_s, QDateTime(QDate(2026, 3, 29), QTime(14, 30)));
    tip.AddRow(u"Group"_s, QString());
    tip.AddRowFirmware(QString(), 0x05020104);
    return tip.GetToolTip();
}

QString recording()
{
    ToolTipHelper tip;
    tip.AddTopImageJpg(picture("JPG"));
    tip.AddRowSpan2(u"No connection since this morning"_s, POrvGuiTheme::statusRed(), true);
    tip.AddSimpleLine();
    tip.AddRowNoBold(u"User"_s, u"admin"_s, true);
    tip.AddRowNoBold(u"Password"_s, ToolTipHelper::GetAsteriks(u"secret"_s), true);
    tip.AddLineWithText(u"Stream"_s);
    tip.AddRowVariant(u"Bit rate"_s, 4.25);
    tip.AddRowVariant(u"Key frames"_s, 50);
    return tip.GetToolTip();
}

QString markup()
{
    ToolTipHelper tip;
    tip.AddRow(u"Name"_s, u"<b>Roof</b> & <img src=\"roof.png\">"_s);
    tip.AddRowSpan2(u"<i>across both columns</i>"_s);
    tip.AddLine();
    tip.AddRowNoBold(u"<u>Meant</u>"_s, u"as <i>markup</i>"_s, false);
    return tip.GetToolTip();
}

/// A label that looks as a tooltip does.
QLabel* createToolTip()
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::RichText);
    label->setFrameShape(QFrame::Box);
    label->setMargin(6);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::ToolTipBase);
    label->setForegroundRole(QPalette::ToolTipText);
    return label;
}

} // namespace

ToolTipsPage::ToolTipsPage(QWidget* parent)
    : QWidget(parent)
    , m_device(createToolTip())
    , m_recording(createToolTip())
    , m_markup(createToolTip())
{
    auto* grid = new QGridLayout(this);
    grid->setSpacing(16);
    const std::pair<QString, QLabel*> toolTips[] = {{tr("A device"), m_device},
                                                    {tr("A recording"), m_recording},
                                                    {tr("Names with markup in them"), m_markup}};
    int column = 0;
    for (const auto& [caption, toolTip] : toolTips) {
        grid->addWidget(new QLabel(caption), 0, column);
        grid->addWidget(toolTip, 1, column, Qt::AlignTop | Qt::AlignLeft);
        ++column;
    }
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(column, 1);
    fill();
}

// The colours are stored in the texts, so these are made anew for another look.
void ToolTipsPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        fill();
}

void ToolTipsPage::fill()
{
    m_device->setText(device());
    m_recording->setText(recording());
    m_markup->setText(markup());
}

} // namespace Gallery
