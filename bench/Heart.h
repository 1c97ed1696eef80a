#pragma once

#include "peers/Report.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>

/// Feels how long the event loop is not free.
class Heart {
public:
    /// A beat of 0 is exact but never sleeps; others count into what is measured.
    explicit Heart(int beatMs = 0)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            m_longestMs = std::max(m_longestMs, m_sinceBeat.elapsedMs());
            m_sinceBeat = {};
        });
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.start(beatMs);
    }

    [[nodiscard]] double longestHoldMs() const { return m_longestMs; }

private:
    QTimer m_timer;
    Report::Stopwatch m_sinceBeat;
    double m_longestMs = 0;
};

/// The longest hold of the event loop until \p isDone.
template <typename Condition> double longestHoldUntil(Condition isDone, int beatMs = 0)
{
    Heart heart(beatMs);
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return heart.longestHoldMs();
}
