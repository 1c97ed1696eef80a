#pragma once

#include "ui/surfaces/TimelineView.h"

/// One day.
class DayView : public TimelineView {
    Q_OBJECT

public:
    explicit DayView(AppState *state, QWidget *parent = nullptr);

    void setDate(QDate date);

    [[nodiscard]] QDate firstDay() const override { return m_date; }
    [[nodiscard]] int columnCount() const override { return 1; }

protected:
    void showData(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds) override;

private:
    QDate m_date;
};
