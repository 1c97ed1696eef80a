#pragma once

#include "ui/surfaces/TimelineWidget.h"

/// One day across the whole width.
class DayTimelineWidget : public TimelineWidget {
    Q_OBJECT

public:
    explicit DayTimelineWidget(AppState *state, QWidget *parent = nullptr);

    void setRenderedDate(QDate date) { setDays(date, 1); }
    void setData(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds)
    {
        setSpan(span, syncableCalendarIds);
    }

protected:
    [[nodiscard]] QColor nowLineColor() const override;
};
