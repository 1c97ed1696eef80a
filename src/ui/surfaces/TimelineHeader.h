#pragma once

#include "ui/surfaces/TimelineGeometry.h"

#include <QDate>
#include <QWidget>

/// Weekday and date above each column of a timeline. A click on one asks for that day.
class TimelineHeader : public QWidget {
    Q_OBJECT

public:
    explicit TimelineHeader(QWidget *parent = nullptr);

    void setDays(QDate first, int count);
    void setToday(QDate today);
    void setGutterPx(int pixels);
    void setContentWidth(int pixels); ///< the width that the columns share with the timeline

    [[nodiscard]] QDate dateAt(QPoint point) const; ///< invalid outside the columns
    [[nodiscard]] QRect columnRect(int column) const;
    /// As written in its column: in the longest form that all columns have room for.
    [[nodiscard]] QStringList lines(QDate date) const { return linesIn(fittingForm(), date); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void dayActivated(QDate date);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    enum class Form { WithMonth, DayNumber, Narrow };

    [[nodiscard]] QStringList linesIn(Form form, QDate date) const;
    [[nodiscard]] Form fittingForm() const;
    [[nodiscard]] bool fits(Form form) const;
    void setHovered(QDate date);
    [[nodiscard]] QFont dayFont(QDate date) const;

    DayColumns m_columns;
    QDate m_first;
    QDate m_today;
    QDate m_hovered;
    QDate m_pressed;
};
