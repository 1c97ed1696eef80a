#include "ui/surfaces/SurfaceFonts.h"

#include <QFontInfo>

#include <algorithm>

QFont SurfaceFonts::resized(QFont font, int points, int minPoints)
{
    // QFontInfo, as a font that was set in pixels has no point size of its own.
    font.setPointSizeF(std::max<qreal>(minPoints, QFontInfo(font).pointSizeF() + points));
    return font;
}

QFont SurfaceFonts::bold(QFont font, bool isBold)
{
    font.setBold(isBold);
    return font;
}
