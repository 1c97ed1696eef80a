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
    void setDateTime(const QDateTime &dateTime); ///< shown in local time; no signal
    [[nodiscard]] QDate date() const;
    void setDate(QDate date); ///< keeps the time; no signal
    [[nodiscard]] bool isDateOnly() const { return m_dateOnly; }
    void setDateOnly(bool dateOnly); ///< keeps the time for later
    void setRelativeTo(DateTimePicker *reference);
    void setUse24Hour(bool use24Hour); ///< of the list; 12 hours at first
    void setReadOnly(bool readOnly);
    void setAccessibleNames(const QString &date, const QString &time);

    /// What people type: "3pm", "3:30 pm", "15:30", "9", "0930", "9.30". Text behind "(" does not count.
    static std::optional<QTime> parseTimeText(const QString &text);
    static QString durationText(int minutes); ///< "45 min", "1 hr", "1 hr 30 min"

signals:
    void dateTimeChanged(const QDateTime &dateTime); ///< after the user changed the date or committed a time

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void populateTimeOptions();
    void showTime();
    void onDateEdited(QDate date);
    void onTimeCommit();
    void onReferenceChanged();
    void holdBehindReference();
    [[nodiscard]] QString pattern() const;

    QDateEdit *m_date;
    QComboBox *m_time;
    QTime m_committed;
    QPointer<DateTimePicker> m_reference;
    bool m_dateOnly = false;
    bool m_use24Hour = false;
    bool m_isReadOnly = false;
};
