#include "calendar/EventLayout.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <utility>
#include <vector>

namespace {

struct Interval {
    qint64 startMs;
    qint64 endMs; // of an event without an end: its start
    qsizetype index; // of the event
};

std::vector<Interval> sortedIntervals(const QList<Event> &events)
{
    std::vector<Interval> intervals;
    intervals.reserve(events.size());
    for (qsizetype i = 0; i < events.size(); ++i) {
        const Event &event = events.at(i);
        const qint64 startMs = event.startTime.toMSecsSinceEpoch();
        intervals.push_back({ startMs, event.endTime ? event.endTime->toMSecsSinceEpoch() : startMs, i });
    }
    std::stable_sort(intervals.begin(), intervals.end(), [](const Interval &a, const Interval &b) {
        return std::pair(a.startMs, a.endMs) < std::pair(b.startMs, b.endMs);
    });
    return intervals;
}

/// The columns of one cluster.
class Columns {
public:
    /// Gives back the columns of events that end at \p ms or before.
    void release(qint64 ms)
    {
        while (!m_taken.empty() && m_taken.top().first <= ms) {
            m_free.push(m_taken.top().second);
            m_taken.pop();
        }
    }

    /// The lowest free column.
    int take(const Interval &interval)
    {
        int column = m_count;
        if (m_free.empty()) {
            ++m_count;
        } else {
            column = m_free.top();
            m_free.pop();
        }
        m_taken.push({ interval.endMs, column });
        return column;
    }

    [[nodiscard]] bool isIdle() const { return m_taken.empty(); }
    [[nodiscard]] int count() const { return m_count; }

private:
    template <typename T> using LowestFirst = std::priority_queue<T, std::vector<T>, std::greater<T>>;

    LowestFirst<std::pair<qint64, int>> m_taken; // by end
    LowestFirst<int> m_free;
    int m_count = 0;
};

}

QList<EventLayout::Placement> EventLayout::compute(QList<Event> events)
{
    QList<Placement> placements;
    placements.reserve(events.size());
    Columns columns;
    qsizetype clusterStart = 0;
    const auto closeCluster = [&] {
        for (qsizetype i = clusterStart; i < placements.size(); ++i)
            placements[i].columnCount = columns.count();
        clusterStart = placements.size();
        columns = {};
    };
    for (const Interval &interval : sortedIntervals(events)) {
        columns.release(interval.startMs);
        if (columns.isIdle())
            closeCluster();
        placements.append({ .event = std::move(events[interval.index]), .column = columns.take(interval) });
    }
    closeCluster();
    return placements;
}
