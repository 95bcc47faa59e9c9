// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QCoreApplication>
#include <QImage>
#include <QSize>
#include <QString>

namespace CorvelGui {

/// What is read of a picture at most. With the defaults, reading takes up to half a gigabyte
/// while it lasts, and the image 34 megabytes. QImageReader::allocationLimit() holds as well.
struct ImageLimits
{
    qint64 bytes = 64 * 1024 * 1024; ///< of the file
    qint64 pixels = 64'000'000;      ///< that the picture says it has
    /// A larger picture is reduced to fit into this, in pixels; never if it is empty. JPEG and
    /// most PNG pictures are read in the smaller size, without the large one in memory.
    QSize size{3840, 2160};

    bool operator==(const ImageLimits&) const = default;
};

/// Reads pictures of strangers within limits, and prepares images for being shown. Every function
/// may be called on any thread.
class CORVELGUI_EXPORT ImageHelper
{
    Q_DECLARE_TR_FUNCTIONS(CorvelGui::ImageHelper)

public:
    ImageHelper() = delete;

    using Limits = ImageLimits;

    /// What came of reading: a picture, or why there is none.
    struct Picture
    {
        QImage image = {};   ///< upright; null if there is none
        QSize fullSize = {}; ///< in the file, before it was reduced, in pixels
        QString error = {};  ///< for the user; empty if there is an image
    };

    /// Reads a BMP, GIF, JPEG or PNG picture, by what it is and not by what it is called; of an
    /// animated one the first picture. Refused are pictures beyond the limits, and what is damaged
    /// or not complete.
    static Picture read(const QByteArray& data, const Limits& limits = {});
    /// The same with a file, or a resource of the program. Devices and pipes are not read.
    static Picture readFile(const QString& path, const Limits& limits = {});

    /// @p image smoothly scaled for a place of @p size device-independent pixels, on a screen with
    /// @p devicePixelRatio, which the result has too. Null without an image or a place, or if the
    /// result had a side of more than 16384 pixels.
    static QImage scaled(const QImage& image, const QSize& size, qreal devicePixelRatio,
                         Qt::AspectRatioMode mode = Qt::KeepAspectRatio);
    /// @p image in one colour, as icons are: its opacity stays. A colour that is not opaque lets
    /// the image's own colours through.
    static QImage tinted(const QImage& image, const QColor& color);
    /// @p image with @p overlay upon it, at the place that @p alignment says. Each has its own
    /// device pixel ratio; what does not fit is cut off.
    static QImage withOverlay(const QImage& image, const QImage& overlay,
                              Qt::Alignment alignment = Qt::AlignCenter);
    /// @p image with round corners of @p radius device-independent pixels. A radius that is larger
    /// than half of a side counts as that: with the default a square picture becomes a circle.
    static QImage rounded(const QImage& image, qreal radius = 1'000'000);
};

} // namespace CorvelGui
