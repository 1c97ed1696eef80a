#pragma once

#include <QDate>
#include <QDateTime>
#include <QPointer>
#include <QTime>
#include <QWidget>

#include <optional>

class QComboBox;
class QDateEdit;

/// A date, and a time of day in an editable list of quarters of an hour. Local time throughout.
///
/// Set relative to another picker it never lies before that one, and its list names the duration.
class DateTimePicker : public QWidget {
    Q_OBJECT

public:
    explicit DateTimePicker(Qt::DayOfWeek firstDayOfWeek, QWidget *parent = nullptr);

    [[nodiscard]] QDateTime dateTime() const; ///< 00:00 while only the date counts
    void setDateTime(const QDateTime &dateTime); ///< shown in local time
    [[nodiscard]] QDate date() const;
    [[nodiscard]] bool isDateOnly() const { return m_dateOnly; }
    void setDateOnly(bool dateOnly); ///< keeps the time for later
    void setRelativeTo(DateTimePicker *reference);
    void setUse24Hour(bool use24Hour); ///< of the list; 12 hours at first

    /// What people type: "3pm", "3:30 pm", "15:30", "9", "0930", "9.30". Text behind "(" does not count.
    static std::optional<QTime> parseTimeText(const QString &text);
    static QString durationText(int minutes); ///< "45 min", "1 hr", "1 hr 30 min"

signals:
    void dateTimeChanged(const QDateTime &dateTime); ///< after the date or a committed time changed

private:
    void populateTimeOptions();
    void onTimeCommit();
    void onReferenceChanged();

    QDateEdit *m_date;
    QComboBox *m_time;
    QTime m_committed;
    QPointer<DateTimePicker> m_reference;
    bool m_dateOnly = false;
    bool m_use24Hour = false;
};
