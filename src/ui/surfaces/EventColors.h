#pragma once

#include <QColor>

/// The colours of an event's block, such that its text can be read.
struct BlockColors {
    QColor body; ///< translucent
    QColor stripe;
    QColor text;

    bool operator==(const BlockColors &) const = default;
};

namespace EventColors {

inline constexpr double MinContrast = 4.5;

QColor withAlpha(QColor color, int alpha); ///< 0 to 255

/// \p over as it looks on the opaque \p under.
QColor blend(const QColor &over, const QColor &under);

/// Body and text as translucent as a design wants them, where the contrast of the text stays at least 4.5:1
/// on \p base; else the body gets fainter or the text stronger.
BlockColors blockColors(const QColor &event, int bodyAlpha, int textAlpha, const QColor &base, const QColor &text);

} // namespace EventColors
