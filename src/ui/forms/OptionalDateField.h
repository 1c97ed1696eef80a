#pragma once

#include <QDateTime>
#include <QWidget>

#include <optional>

class DateTimePicker;
class QCheckBox;

/// A date that may be absent, with or without a time of day.
class OptionalDateField : public QWidget {
    Q_OBJECT

public:
    OptionalDateField(Qt::DayOfWeek firstDayOfWeek, bool use24Hour, QWidget *parent = nullptr);

    /// \p dateOnly: \p value is a date at 00:00 UTC, and never converted; else an instant, shown in local time.
    void setValue(const std::optional<QDateTime> &value, bool dateOnly);
    [[nodiscard]] std::optional<QDateTime> value() const; ///< local time, or a date at 00:00 UTC
    [[nodiscard]] bool isDateOnly() const;
    [[nodiscard]] QDate date() const; ///< invalid while absent
    void setReadOnly(bool readOnly);
    void setAccessibleNames(const QString &date, const QString &time);

signals:
    void changed(); ///< by the user

private:
    void refresh();

    QCheckBox *m_has;
    DateTimePicker *m_picker;
    QCheckBox *m_hasTime;
};
