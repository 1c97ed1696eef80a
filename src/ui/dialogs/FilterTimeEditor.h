#pragma once

#include "calendar/FilterEngine.h"

#include <QList>
#include <QStringList>
#include <QTime>
#include <QWidget>

class AppState;
class InlineMessage;
class QCheckBox;
class QGridLayout;
class QTimeEdit;
class QToolButton;

/// When an event must start for a time rule: an exact time, limits, days of the week.
class FilterTimeEditor : public QWidget {
    Q_OBJECT

public:
    explicit FilterTimeEditor(AppState *state, QWidget *parent = nullptr);

    void setConditions(const FilterEngine::TimeConditions &conditions);
    [[nodiscard]] FilterEngine::TimeConditions conditions() const;
    /// True if nothing is chosen that a rule could match by.
    [[nodiscard]] bool isBlank() const;
    [[nodiscard]] QWidget *firstField() const;
    /// The times that the fields show while they are off.
    void suggestTime(QTime start);

    /// "HH:mm", also without the leading zero; invalid for other text.
    static QTime parseTime(const QString &text);
    static const QStringList &dayTokens(); ///< "mon" to "sun"

signals:
    void edited();

private:
    struct TimeField {
        QCheckBox *on = nullptr;
        QTimeEdit *edit = nullptr;

        void set(const QString &text) const;
        [[nodiscard]] QString text() const; ///< empty while off
    };

    TimeField addTimeField(QGridLayout *grid, const QString &label, QTime start, const QString &format);
    QWidget *makeDays(Qt::DayOfWeek firstDay);
    void onEdited();

    TimeField m_exact;
    TimeField m_from;
    TimeField m_until;
    QList<QToolButton *> m_days; // Monday first
    QCheckBox *m_recurringOnly = nullptr;
    InlineMessage *m_warning;
};
