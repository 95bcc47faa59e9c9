#include "colormetrics.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

Vector linear(const QColor& color)
{
    const auto channel = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return {channel(color.redF()), channel(color.greenF()), channel(color.blueF())};
}

double dot(const Vector& a, const Vector& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector product(const Matrix& matrix, const Vector& vector)
{
    return {dot(matrix[0], vector), dot(matrix[1], vector), dot(matrix[2], vector)};
}

double luminance(const QColor& color)
{
    return dot({0.2126, 0.7152, 0.0722}, linear(color));
}

// Machado, Oliveira, Fernandes 2009, at full severity, for linear RGB.
Vector seenBy(Eyes eyes, const Vector& rgb)
{
    static constexpr Matrix protanopia{{{0.152286, 1.052583, -0.204868},
                                        {0.114503, 0.786281, 0.099216},
                                        {-0.003882, -0.048116, 1.051998}}};
    static constexpr Matrix deuteranopia{{{0.367322, 0.860646, -0.227968},
                                          {0.280085, 0.672501, 0.047413},
                                          {-0.011820, 0.042940, 0.968881}}};
    if (eyes == Eyes::Usual)
        return rgb;
    Vector seen = product(eyes == Eyes::Protanopia ? protanopia : deuteranopia, rgb);
    for (double& channel : seen)
        channel = std::clamp(channel, 0.0, 1.0);
    return seen;
}

Vector lab(const Vector& rgb)
{
    static constexpr Matrix toXyz{{{0.4124564, 0.3575761, 0.1804375},
                                   {0.2126729, 0.7151522, 0.0721750},
                                   {0.0193339, 0.1191920, 0.9503041}}};
    const Vector xyz = product(toXyz, rgb);
    const auto f = [](double t) {
        return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116;
    };
    const double x = f(xyz[0] / 0.95047);
    const double y = f(xyz[1]);
    const double z = f(xyz[2] / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

double difference(const QColor& one, const QColor& other, Eyes eyes)
{
    const Vector a = lab(seenBy(eyes, linear(one)));
    const Vector b = lab(seenBy(eyes, linear(other)));
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}
