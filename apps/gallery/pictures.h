// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace Gallery {

class GalleryWindow;

/// Shows the window and writes the pages with these indexes, in both looks, to
/// `<page>-<look>-<scale>x.png` files in @p folder. The scale is that of this process. False, with
/// a message on the error output, when a file cannot be written.
bool writePictures(GalleryWindow& window, const QList<int>& pageIndexes, const QString& folder);

/// Runs this program again with its @p arguments, at scale 1 and at scale 2, to write the pictures.
/// False when one of the runs failed.
bool writePicturesAtEveryScale(const QStringList& arguments);

/// The option by which the runs of writePicturesAtEveryScale() are told to write at their own scale
/// only.
inline constexpr char oneScaleOption[] = "one-scale";

} // namespace Gallery
