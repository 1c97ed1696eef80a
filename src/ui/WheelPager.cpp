#include "ui/WheelPager.h"

#include <cstdlib>

WheelPager::Turn WheelPager::onWheel(QPoint angleDelta, qint64 nowMs)
{
    const int dx = angleDelta.x();
    if (dx == 0 || std::abs(angleDelta.y()) > std::abs(dx))
        return {};
    if ((dx > 0) != (m_accumulated > 0))
        m_accumulated = 0;
    m_accumulated += dx;
    if (std::abs(m_accumulated) < PageAngle)
        return { .consumed = true, .direction = 0 };

    // Fingers to the right (a positive angle) pull the earlier days into view.
    const int direction = m_accumulated > 0 ? -1 : 1;
    m_accumulated %= PageAngle;
    if (m_lastPageMs && nowMs - *m_lastPageMs < PagePauseMs)
        return { .consumed = true, .direction = 0 };
    m_lastPageMs = nowMs;
    return { .consumed = true, .direction = direction };
}
