// SPDX-License-Identifier: MIT
#include "readablecolor.h"

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

constexpr double readable = 4.5;

double luminance(const QColor& color)
{
    const auto linear = [](float channel) {
        return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

QColor mixed(const QColor& one, const QColor& other, float share)
{
    const auto channel = [share](float first, float second) {
        return std::lerp(first, second, share);
    };
    return QColor::fromRgbF(channel(one.redF(), other.redF()),
                            channel(one.greenF(), other.greenF()),
                            channel(one.blueF(), other.blueF()));
}

QColor readableOn(const QColor& color, const QColor& ground)
{
    const double below = luminance(ground) + 0.05;
    const auto standsOut = [below](const QColor& shade) {
        const double above = luminance(shade) + 0.05;
        return std::max(above, below) / std::min(above, below) >= readable;
    };
    // Halfway between black and white for the eye.
    const QColor end = below > 0.229 ? Qt::black : Qt::white;
    constexpr int steps = 50;
    for (int step = 0; step < steps; ++step) {
        const QColor shade = mixed(color, end, float(step) / steps);
        if (standsOut(shade))
            return step == 0 ? color : shade;
    }
    return end;
}

} // namespace CorvelGui
