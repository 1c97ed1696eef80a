#pragma once

#include "ui/surfaces/EventBlock.h"
#include "ui/surfaces/TimelineGeometry.h"

#include <QPoint>
#include <QRect>

/// What the left button does on a timeline or an all-day strip from press to release: it moves an event, stretches
/// it, or marks a span of empty time. A value without a window: the widget hands it points and draws the ghost.
class TimelineDrag {
public:
    enum class Mode { Idle, Pressed, Moving, Resizing, Marking };

    /// The block under the press. Minutes are of the wall clock.
    struct Grip {
        EventKey key;
        QRect rect;
        int column = 0; ///< that follows the pointer and stays on show
        int startMin = 0;
        int durationMin = 0;
        bool isFixed = false; ///< may be clicked but not dragged
        bool isAllDay = false; ///< moves by whole days alone
    };

    static constexpr int ThresholdPx = 4;

    TimelineDrag() = default;
    static TimelineDrag onBlock(QPoint point, const Grip &grip);
    static TimelineDrag onEmpty(QPoint point, int column);

    void moveTo(QPoint point, const TimelineMetrics &metrics);

    [[nodiscard]] Mode mode() const { return m_mode; }
    [[nodiscard]] bool isUnderWay() const { return m_mode != Mode::Idle && m_mode != Mode::Pressed; }
    [[nodiscard]] const Grip &grip() const { return m_grip; }
    [[nodiscard]] QPoint pressedAt() const { return m_pressedAt; }
    [[nodiscard]] int minutes() const { return m_minutes; } ///< by which the start or the end moves; snapped
    [[nodiscard]] int days() const { return m_days; }
    /// True if a release now asks for something, and is no click.
    [[nodiscard]] bool changesTimes() const;
    /// Of a marked span, in minutes of its day.
    [[nodiscard]] int markedStartMin() const { return m_markedStartMin; }
    [[nodiscard]] int markedMinutes() const { return m_markedMinutes; }
    /// Where the event would lie after a release; empty while it would stay.
    [[nodiscard]] QRect ghostRect(const TimelineMetrics &metrics) const;

private:
    [[nodiscard]] bool becomesMove(QPoint delta, const TimelineMetrics &metrics) const;
    /// Within the day that shows: what lies beyond it could not be seen.
    [[nodiscard]] int withinDay(int minutes) const;
    void mark(int y, const TimelineMetrics &metrics);

    Mode m_mode = Mode::Idle;
    Grip m_grip;
    QPoint m_pressedAt;
    int m_minutes = 0;
    int m_days = 0;
    int m_markedStartMin = 0;
    int m_markedMinutes = 0;
};
