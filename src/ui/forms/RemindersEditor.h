#pragma once

#include <QList>
#include <QWidget>

/// Rows of reminders before a start or due date, each with a button that takes it away, and "+ Add reminder".
class RemindersEditor : public QWidget {
    Q_OBJECT

public:
    explicit RemindersEditor(QWidget *parent = nullptr);

    void setMinutes(const QList<int> &minutesBefore);
    [[nodiscard]] QList<int> minutes() const; ///< in the order of the rows

signals:
    void changed();
};
