// SPDX-License-Identifier: MIT
#include "cameraview.h"

#include <QGraphicsPixmapItem>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace Review {

CameraView::CameraView(QWidget* parent)
    : Translated(new QGraphicsScene(QRectF({}, CameraPicture::size)), QVariant(), parent)
    , m_item(scene()->addPixmap({}))
{
    constexpr QSize smallest(160, 90);
    scene()->setParent(this);
    scene()->setBackgroundBrush(CameraPicture::background);
    m_item->setTransformationMode(Qt::SmoothTransformation);
    setFrameShape(QFrame::NoFrame);
    setMinimumSize(smallest);
    viewport()->setAcceptDrops(false); // what is dropped is for the window
    // The texts stay where they are while the picture moves.
    setViewportUpdateMode(FullViewportUpdate);
    m_patience.setSingleShot(true);
    m_patience.setInterval(1s);
    connect(&m_patience, &QTimer::timeout, viewport(), qOverload<>(&QWidget::update));
    retranslate();
}

void CameraView::setCamera(const std::optional<Camera>& camera, qint64 cacheBytes)
{
    const bool sameFiles = m_camera && camera && m_camera->files == camera->files;
    const bool sameDecoder = m_decoder && sameFiles && cacheBytes == m_cacheBytes;
    const bool sameCamera = m_camera && camera && m_camera->name == camera->name;
    m_camera = camera;
    m_cacheBytes = cacheBytes;
    if (sameDecoder) {
        // Its name, or how times are written.
        if (m_frame.asked != 0)
            showPicture({*m_camera, m_frame});
        return;
    }
    m_patience.stop();
    m_decoder.reset();
    // Of one that still records the picture stays until the next one.
    if (!sameCamera) {
        m_frame = {};
        // Whose picture it is to be, as long as none is there.
        CameraPicture none;
        none.camera = camera ? camera->name.simplified() : QString();
        showPicture(none);
    }
    if (!camera)
        return;
    m_decoder = std::make_unique<CameraDecoder>(camera->files, cacheBytes);
    connect(m_decoder.get(), &CameraDecoder::frameReady, this, &CameraView::showFrame);
}

void CameraView::showMoment(qint64 moment, Clip::Accuracy accuracy)
{
    if (!m_decoder)
        return;
    m_decoder->request(moment, accuracy);
    if (!m_patience.isActive())
        m_patience.start();
}

void CameraView::showFrame(const VideoFrame& frame)
{
    m_frame = frame;
    showPicture({*m_camera, frame});
    m_patience.stop();
    if (m_decoder->isBusy())
        m_patience.start();
    else
        Q_EMIT settled();
}

void CameraView::showPicture(const CameraPicture& picture)
{
    const bool sameImage = picture.image.cacheKey() == m_picture.image.cacheKey();
    m_picture = picture;
    if (!sameImage) {
        m_item->setPixmap(QPixmap::fromImage(picture.image));
        if (!picture.image.isNull()) {
            // All pictures fill the same room, whatever their size, so that zoomed views stay.
            const QSizeF from = picture.image.size();
            const QSizeF room = CameraPicture::size;
            const double scale =
                std::min(room.width() / from.width(), room.height() / from.height());
            m_item->setScale(scale);
            m_item->setPos((room.width() - from.width() * scale) / 2,
                           (room.height() - from.height() * scale) / 2);
        }
    }
    describe();
    viewport()->update();
}

void CameraView::setMarked(bool marked)
{
    if (m_marked == marked)
        return;
    m_marked = marked;
    viewport()->update();
}

void CameraView::paintEvent(QPaintEvent* event)
{
    ZoomGraphicsView::paintEvent(event);
    QPainter painter(viewport());
    const QRect area = viewport()->rect();
    CameraPicture texts = m_picture;
    if (isBusy() && !m_patience.isActive())
        texts.message = tr("Waiting for the file…");
    texts.paintTexts(painter, area);
    if (!m_marked)
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(area.adjusted(1, 1, -1, -1));
}

void CameraView::mousePressEvent(QMouseEvent* event)
{
    ZoomGraphicsView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT pressed();
}

void CameraView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
    else
        ZoomGraphicsView::mouseDoubleClickEvent(event);
}

void CameraView::retranslate()
{
    if (m_camera && m_frame.asked != 0)
        showPicture({*m_camera, m_frame});
    else
        describe();
}

void CameraView::describe()
{
    setAccessibleName(m_picture.camera.isEmpty() ? tr("Picture of the camera")
                                                 : tr("Picture of %1").arg(m_picture.camera));
    setAccessibleDescription(m_picture.message.isEmpty() ? m_picture.time : m_picture.message);
}

} // namespace Review
