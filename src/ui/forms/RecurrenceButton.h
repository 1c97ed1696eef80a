#pragma once

#include <QDate>
#include <QPushButton>
#include <QString>

/// Shows a rule as a line of text, "Does not repeat" when there is none, and opens the editor on a click; a rule can be
/// taken off too.
class RecurrenceButton : public QPushButton {
    Q_OBJECT

public:
    explicit RecurrenceButton(Qt::DayOfWeek firstDayOfWeek, QWidget *parent = nullptr);

    [[nodiscard]] QString rule() const { return m_rule; }
    void setRule(const QString &rule); ///< RRULE value without its prefix; no signal
    void setStartDate(QDate date) { m_startDate = date; }

    [[nodiscard]] QSize sizeHint() const override; ///< bounded; longer texts are cut with "…"
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void ruleChanged(const QString &rule); ///< by the user

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void onClicked();
    void openEditor();
    void change(const QString &rule);
    void refresh();

    QString m_rule;
    QDate m_startDate;
    Qt::DayOfWeek m_firstDayOfWeek;
};
