#pragma once

#include <QColor>

#include <cmath>

/// The contrast formula of WCAG 2.1, written out a second time to check the program's own.
namespace Contrast {

inline double luminance(const QColor &color)
{
    const auto channel = [](int value) {
        const double c = value / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(color.red()) + 0.7152 * channel(color.green()) + 0.0722 * channel(color.blue());
}

inline double ratio(const QColor &a, const QColor &b)
{
    const double x = luminance(a) + 0.05;
    const double y = luminance(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

/// What is seen of a translucent colour on an opaque one.
inline QColor over(const QColor &top, const QColor &ground)
{
    const double share = top.alpha() / 255.0;
    const auto mix = [share](int a, int b) { return int(std::lround(a * share + b * (1 - share))); };
    return QColor(mix(top.red(), ground.red()), mix(top.green(), ground.green()), mix(top.blue(), ground.blue()));
}

}
