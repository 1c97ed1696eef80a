#pragma once

#include <QList>
#include <QWidget>

class QComboBox;
class QPushButton;
class QVBoxLayout;

/// Rows of reminders before a start or due date, each with a button that takes it away, and "+ Add reminder".
class RemindersEditor : public QWidget {
    Q_OBJECT

public:
    explicit RemindersEditor(QWidget *parent = nullptr);

    void setMinutes(const QList<int> &minutesBefore); ///< no signal
    [[nodiscard]] QList<int> minutes() const; ///< in the order of the rows
    void setReadOnly(bool readOnly);

signals:
    void changed(); ///< by the user

private:
    void addRow(int minutes);
    void removeRow(QWidget *row);

    QVBoxLayout *m_column;
    QPushButton *m_add;
    QList<QComboBox *> m_rows;
};
