// SPDX-License-Identifier: MIT
#include "colormetrics.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The sum of the linear channels, each with its weight.
double weighed(const QColor& color, const std::array<double, 3>& weights)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return weights[0] * linear(color.redF()) + weights[1] * linear(color.greenF()) +
           weights[2] * linear(color.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const std::array weights{0.2126, 0.7152, 0.0722};
    const auto [darker, lighter] = std::minmax({weighed(one, weights), weighed(other, weights)});
    return (lighter + 0.05) / (darker + 0.05);
}

double difference(const QColor& one, const QColor& other)
{
    const auto apart = [&](const std::array<double, 3>& weights) {
        return std::cbrt(weighed(one, weights)) - std::cbrt(weighed(other, weights));
    };
    const double l = apart({0.4122, 0.5363, 0.0514});
    const double m = apart({0.2119, 0.6807, 0.1074});
    const double s = apart({0.0883, 0.2817, 0.6300});
    return std::hypot(0.2105 * l + 0.7936 * m - 0.0041 * s, 0.0259 * l + 0.7828 * m - 0.8087 * s);
}
