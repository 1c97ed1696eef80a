#pragma once

#include "ui/surfaces/TimelineView.h"

class TimelineHeader;

/// The seven days of a week, or as many days as the user set from the anchor date on.
class WeekView : public TimelineView {
    Q_OBJECT

public:
    enum class Form { Week, Days };

    WeekView(AppState *state, Form form, QWidget *parent = nullptr);

    void setAnchorDate(QDate date);
    [[nodiscard]] QDate weekStart() const; ///< the first day on show
    [[nodiscard]] int columnCount() const override;
    void rebuildHeader();

    [[nodiscard]] QDate firstDay() const override { return weekStart(); }
    [[nodiscard]] TimelineHeader *header() const { return m_header; }

signals:
    void dayActivated(QDate date); ///< a click on its header

protected:
    void showData(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds) override;
    void onColumnsChanged(int gutterPx, int contentWidthPx) override;
    void onTodayChanged(QDate today) override;

private:
    Form m_form;
    QDate m_anchor;
    TimelineHeader *m_header;
};
