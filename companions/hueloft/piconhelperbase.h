// SPDX-License-Identifier: MIT
#pragma once

#include <Hueloft/hueloft_export.h>

#include <QIcon>
#include <QString>

namespace Hueloft {

/// Makes icons from image resources.
class HUELOFT_EXPORT PIconHelperBase
{
public:
    PIconHelperBase() = delete;

    /// An icon from the image at @p path, with its "@2x" neighbour for high-density screens if
    /// there is one.
    ///
    /// With @p withModes the icon gets its own pictures for the modes: greyed for QIcon::Disabled,
    /// brightened for QIcon::Active. Without it the image stands for every mode, and the widget
    /// style derives the disabled one. The colours of the image stay as they are in both looks. A
    /// path where no image can be read gives a null icon.
    static QIcon GetIcon(const QString& path, bool withModes);
};

} // namespace Hueloft
