#pragma once

#include <QRect>
#include <QSize>

/// Where a card of \p size goes beside \p anchor: right of it, else left, else below, else above, and in the
/// middle of \p bounds if it has room nowhere or \p anchor is empty. Never beyond \p bounds, where it fits in them.
QRect popoverRect(QSize size, const QRect &anchor, const QRect &bounds);
