#pragma once

#include <QFont>

/// Variants of a widget's font.
namespace SurfaceFonts {

/// \p points larger, but not below \p minPoints.
QFont resized(QFont font, int points, int minPoints = 1);
QFont bold(QFont font, bool isBold = true);

} // namespace SurfaceFonts
