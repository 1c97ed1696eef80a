#pragma once

#include "ui/dialogs/FormDialog.h"

#include <QDate>
#include <QList>
#include <QString>

class QButtonGroup;
class QComboBox;
class QDateEdit;
class QGridLayout;
class QHBoxLayout;
class QRadioButton;
class QSpinBox;
class QStackedWidget;
class QToolButton;

/// Edits one recurrence rule with a live line of plain language. RFC 5545 §3.3.10; what the controls cannot
/// say (BYSETPOS and others) is lost when it is accepted.
class RecurrenceEditDialog : public FormDialog {
    Q_OBJECT

public:
    RecurrenceEditDialog(const QString &initialRule, QDate startDate, Qt::DayOfWeek firstDayOfWeek, QWidget *parent);

    /// The RRULE value without its prefix. UNTIL is a date, and the last day of the series.
    [[nodiscard]] QString rrule() const;
    [[nodiscard]] QString previewText() const;

private:
    struct DayButton {
        QToolButton *button;
        QString code; ///< "MO"
    };

    void buildFrequencyRow();
    QWidget *buildWeeklyPage(Qt::DayOfWeek firstDayOfWeek);
    QWidget *buildMonthlyPage();
    void buildEnds(Qt::DayOfWeek firstDayOfWeek);
    void addEnd(QRadioButton *radio, const QList<QWidget *> &fields);
    void followControls();
    void setupFromInitial(const QString &rule, QDate startDate);
    void readByDay(const QString &value);
    void onFrequencyChanged();
    void rebuildPreview();
    [[nodiscard]] QString frequency() const;
    [[nodiscard]] QString monthlyPart() const;
    [[nodiscard]] QString endPart() const;

    QComboBox *m_frequency;
    QSpinBox *m_interval;
    QLabel *m_unit;
    QStackedWidget *m_pages;
    QList<DayButton> m_days;
    QRadioButton *m_onDay;
    QSpinBox *m_monthDay;
    QRadioButton *m_onNth;
    QComboBox *m_nth;
    QComboBox *m_nthDay;
    QGridLayout *m_ends;
    QRadioButton *m_never;
    QRadioButton *m_after;
    QSpinBox *m_count;
    QRadioButton *m_on;
    QDateEdit *m_until;
    QLabel *m_preview;
};
