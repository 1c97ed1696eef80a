#pragma once

#include "ui/surfaces/TimelineWidget.h"

/// Several days side by side.
class WeekTimelineWidget : public TimelineWidget {
    Q_OBJECT

public:
    explicit WeekTimelineWidget(AppState *state, QWidget *parent = nullptr);

    /// \p columnCount is at least 1.
    void setData(QDate firstDay, int columnCount, const VisibleSpan &span, const QSet<QString> &syncableCalendarIds);

    [[nodiscard]] int columnWidthPx() const { return metrics().columns.columnWidthPx(); }

protected:
    [[nodiscard]] QColor nowLineColor() const override;
};
