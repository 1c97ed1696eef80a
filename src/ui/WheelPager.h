#pragma once

#include <QPoint>

#include <optional>

/// Turns horizontal wheel movement into pages. One page takes two ordinary notches; a fast touchpad
/// swipe gives at most one page in PagePauseMs, and what is over then is dropped.
class WheelPager {
public:
    static constexpr int PageAngle = 240; ///< eighths of a degree
    static constexpr int PagePauseMs = 150;

    struct Turn {
        bool consumed = false; ///< false: the movement is vertical, and not ours
        int direction = 0; ///< +1 a page forward, -1 back, 0 not yet
    };

    /// \p nowMs comes from any clock that does not jump.
    Turn onWheel(QPoint angleDelta, qint64 nowMs);

private:
    int m_accumulated = 0;
    std::optional<qint64> m_lastPageMs;
};
