// SPDX-License-Identifier: MIT
#include "imagespage.h"

#include <CorvelGui/ImageHelper>
#include <CorvelGui/PImageAndLabelWidget>
#include <CorvelGui/PImageWidget>
#include <Hueloft/PIconHelper>
#include <Hueloft/POrvGuiTheme>

#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

using CorvelGui::ImageHelper;
using CorvelGui::PImageAndLabelWidget;
using CorvelGui::PImageWidget;
using Hueloft::PIconHelper;
using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// A gate at dusk, seen by a camera.
QImage drawScene()
{
    QImage scene(960, 540, QImage::Format_RGB32);
    QPainter painter(&scene);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 330);
    sky.setColorAt(0, POrvGuiTheme::colorTuna);
    sky.setColorAt(1, POrvGuiTheme::colorOrange);
    painter.fillRect(0, 0, 960, 330, sky);
    painter.fillRect(0, 330, 960, 210, POrvGuiTheme::colorElephant);
    painter.setPen(Qt::NoPen);
    painter.setBrush(POrvGuiTheme::colorYellow);
    painter.drawEllipse(QPointF(720, 210), 60, 60);
    painter.setBrush(POrvGuiTheme::colorPanther);
    painter.drawPolygon(QPolygonF{{0, 330}, {0, 240}, {190, 170}, {380, 260}, {560, 330}});
    painter.fillRect(150, 190, 24, 260, POrvGuiTheme::colorShark);
    painter.fillRect(786, 190, 24, 260, POrvGuiTheme::colorShark);
    for (int bar = 0; bar < 12; ++bar)
        painter.fillRect(186 + bar * 50, 250, 10, 200, POrvGuiTheme::colorShark);
    painter.fillRect(174, 270, 612, 12, POrvGuiTheme::colorShark);
    painter.fillRect(174, 420, 612, 12, POrvGuiTheme::colorShark);
    return scene;
}

const QImage& scene()
{
    static const QImage scene = drawScene();
    return scene;
}

/// With a caption below it.
QWidget* captioned(QWidget* widget, const QString& caption)
{
    auto* box = new QWidget;
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins({});
    layout->addWidget(widget, 1);
    auto* label = new QLabel(caption);
    label->setAlignment(Qt::AlignCenter);
    layout->addWidget(label);
    return box;
}

PImageWidget* framed(const QString& name)
{
    auto* image = new PImageWidget;
    image->setAccessibleName(name);
    image->setFixedSize(150, 120);
    image->setAutoFillBackground(true);
    image->setBackgroundRole(QPalette::Base);
    return image;
}

} // namespace

ImagesPage::ImagesPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QGridLayout(this);
    layout->setSpacing(12);
    layout->addWidget(createFits(), 0, 0, 1, 2);
    layout->addWidget(createStates(), 1, 0, 1, 2);
    layout->addWidget(createLabels(), 2, 0);
    layout->addWidget(createPrepared(), 2, 1);
    layout->addWidget(createSource(), 3, 0, 1, 2);
    layout->setRowStretch(4, 1);
}

QWidget* ImagesPage::createFits()
{
    using Fit = PImageWidget::Fit;
    auto* group = new QGroupBox(tr("Fit and alignment"));
    auto* row = new QHBoxLayout(group);
    const std::tuple<QString, Fit, Qt::Alignment, bool> fits[] = {
        {tr("Contain"), Fit::Contain, Qt::AlignCenter, false},
        {tr("Contain, at the bottom"), Fit::Contain, Qt::AlignBottom, false},
        {tr("Shrink a small one"), Fit::Shrink, Qt::AlignCenter, true},
        {tr("Cover"), Fit::Cover, Qt::AlignCenter, false},
        {tr("Cover, right end"), Fit::Cover, Qt::AlignRight, false},
        {tr("Stretch"), Fit::Stretch, Qt::AlignCenter, false}};
    for (const auto& [caption, fit, alignment, isSmall] : fits) {
        PImageWidget* image = framed(caption);
        image->setFit(fit);
        image->setAlignment(alignment);
        image->setImage(isSmall ? ImageHelper::scaled(scene(), {80, 80}, 1) : scene());
        row->addWidget(captioned(image, caption));
    }
    row->addStretch();
    return group;
}

QWidget* ImagesPage::createStates()
{
    auto* group = new QGroupBox(tr("States"));
    auto* row = new QHBoxLayout(group);
    row->addWidget(captioned(framed(tr("Empty")), tr("Empty")));
    PImageWidget* failed = framed(tr("Failed"));
    failed->setSource(QUrl(u"qrc:/CorvelGui/common/none.png"_s));
    row->addWidget(captioned(failed, tr("A file that is missing")));
    PImageWidget* refused = framed(tr("Failed"));
    refused->descriptor()->setLimits({.pixels = 100});
    refused->setSource(QUrl(u"qrc:/CorvelGui/common/open.png"_s));
    row->addWidget(captioned(refused, tr("More pixels than allowed")));
    PImageWidget* own = framed(tr("Placeholder"));
    own->setPlaceholder(u":/CorvelGui/common/binoculars.png"_s);
    row->addWidget(captioned(own, tr("Placeholder of the program")));
    PImageWidget* resource = framed(tr("Ready"));
    resource->setSource(QUrl(u"qrc:/CorvelGui/common/open.png"_s));
    row->addWidget(captioned(resource, tr("From a resource")));
    row->addStretch();
    return group;
}

QWidget* ImagesPage::createLabels()
{
    auto* group = new QGroupBox(tr("With labels"));
    auto* row = new QHBoxLayout(group);
    const std::pair<QString, Qt::Orientation> labels[] = {
        {tr("Main gate"), Qt::Vertical},
        {tr("Yard behind the workshop, camera 10"), Qt::Vertical},
        {tr("Store, beside it"), Qt::Horizontal}};
    for (const auto& [text, orientation] : labels) {
        auto* labelled = new PImageAndLabelWidget;
        labelled->setText(text);
        labelled->setOrientation(orientation);
        labelled->imageWidget()->setImage(scene());
        labelled->imageWidget()->setAspectRatio(16.0 / 9);
        if (orientation == Qt::Horizontal)
            labelled->imageWidget()->setFixedWidth(106);
        labelled->setFixedSize(orientation == Qt::Vertical ? QSize(150, 110) : QSize(220, 60));
        row->addWidget(labelled);
    }
    row->addStretch();
    return group;
}

QWidget* ImagesPage::createPrepared()
{
    auto* group = new QGroupBox(tr("Prepared"));
    auto* row = new QHBoxLayout(group);
    const qreal scale = devicePixelRatioF();
    const QImage wide = ImageHelper::scaled(scene(), {128, 72}, scale);
    const QImage square = ImageHelper::scaled(scene().copy(210, 0, 540, 540), {72, 72}, scale);
    const std::pair<QString, QImage> prepared[] = {
        {tr("Round corners"), ImageHelper::rounded(wide, 12)},
        {tr("A circle"), ImageHelper::rounded(square)},
        {tr("Tinted"),
         ImageHelper::tinted(PIconHelper::GetLockImage_32x32(), POrvGuiTheme::colorBlue)},
        {tr("Overlay"), ImageHelper::withOverlay(
                            wide, ImageHelper::tinted(PIconHelper::GetLockImage_32x32(), Qt::white),
                            Qt::AlignRight | Qt::AlignBottom)}};
    for (const auto& [caption, image] : prepared) {
        auto* widget = new PImageWidget;
        widget->setAccessibleName(caption);
        widget->setFixedSize(128, 80);
        widget->setFit(PImageWidget::Fit::Shrink);
        widget->setImage(image);
        row->addWidget(captioned(widget, caption));
    }
    return group;
}

QWidget* ImagesPage::createSource()
{
    auto* group = new QGroupBox(tr("From an address or a file"));
    auto* grid = new QGridLayout(group);
    auto* address = new QLineEdit;
    address->setPlaceholderText(u"https://…"_s);
    address->setAccessibleName(tr("Address"));
    auto* load = new QPushButton(tr("Load"));
    auto* choose = new QPushButton(tr("Choose a file…"));
    auto* image = new PImageWidget;
    image->setAccessibleName(tr("Loaded picture"));
    image->setMinimumHeight(90);
    auto* state = new QLabel;
    const auto tell = [image, state] {
        const QSize size = image->fullSize();
        state->setText(image->errorText().isEmpty() && !size.isEmpty()
                           ? tr("%1 × %2 pixels").arg(size.width()).arg(size.height())
                           : QString());
    };
    connect(image, &PImageWidget::stateChanged, state, tell);
    const auto loadTyped = [image, address] {
        image->setSource(QUrl::fromUserInput(address->text()));
    };
    connect(load, &QPushButton::clicked, image, loadTyped);
    connect(address, &QLineEdit::returnPressed, image, loadTyped);
    connect(choose, &QPushButton::clicked, image, [this, image, address] {
        const QUrl file = QFileDialog::getOpenFileUrl(this, tr("Choose a file"));
        if (file.isEmpty())
            return;
        address->setText(file.toDisplayString());
        image->setSource(file);
    });
    grid->addWidget(address, 0, 0);
    grid->addWidget(load, 0, 1);
    grid->addWidget(choose, 0, 2);
    grid->addWidget(image, 1, 0, 1, 2);
    grid->addWidget(state, 1, 2);
    return group;
}

} // namespace Gallery
