// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"
#include "video/cameradecoder.h"
#include "video/camerapicture.h"

#include <CorvelGui/ZoomGraphicsView>

#include <QTimer>

#include <memory>
#include <optional>

class QGraphicsPixmapItem;

namespace Review {

/// The picture of one camera, which can be zoomed and moved, with its name and time. Decoding never
/// holds it up: what is shown, and its time, are those of the picture that came last.
class CameraView : public Translated<CorvelGui::ZoomGraphicsView>
{
    Q_OBJECT

public:
    explicit CameraView(QWidget* parent = nullptr);

    /// None leaves the view empty. @p cacheBytes bounds the memory of decoded pictures.
    void setCamera(const std::optional<Camera>& camera, qint64 cacheBytes);
    const std::optional<Camera>& camera() const { return m_camera; }

    /// Shows a moment, in milliseconds since the Unix epoch, as soon as its picture is there.
    void showMoment(qint64 moment, Clip::Accuracy accuracy);
    /// Whether a picture is still to come.
    bool isBusy() const { return m_decoder && m_decoder->isBusy(); }

    /// What is shown.
    const CameraPicture& picture() const { return m_picture; }

    /// Marks it as the one that the rest of the window is about.
    void setMarked(bool marked);

Q_SIGNALS:
    /// Emitted whenever isBusy() became false.
    void settled();
    /// Emitted when the user pressed the left button, which does not hinder zooming and moving.
    void pressed();
    void doubleClicked();

protected:
    void retranslate() final;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void showFrame(const VideoFrame& frame);
    void showPicture(const CameraPicture& picture);
    void describe();

    QGraphicsPixmapItem* m_item;
    std::optional<Camera> m_camera;
    qint64 m_cacheBytes = 0;
    std::unique_ptr<CameraDecoder> m_decoder;
    VideoFrame m_frame;
    CameraPicture m_picture;
    QTimer m_patience; ///< for a share that does not answer
    bool m_marked = false;
};

} // namespace Review
