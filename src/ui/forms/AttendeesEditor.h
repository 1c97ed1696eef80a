#pragma once

#include "models/Attendee.h"

#include <QList>
#include <QWidget>

class QLineEdit;
class QPushButton;
class QVBoxLayout;

/// Rows of name and address, each with a button that takes it away, and "+ Add attendee".
class AttendeesEditor : public QWidget {
    Q_OBJECT

public:
    explicit AttendeesEditor(QWidget *parent = nullptr);

    void setAttendees(const QList<Attendee> &attendees);
    /// As edited. Rows without an address are left out; what the rows do not show is kept, but for the answer
    /// of a person whose address was replaced.
    [[nodiscard]] QList<Attendee> attendees() const;
    void setReadOnly(bool readOnly);

private:
    struct Row {
        QWidget *widget;
        QLineEdit *name;
        QLineEdit *email;
        Attendee original;
    };

    void addRow(const Attendee &attendee);
    void removeRow(const QWidget *widget);

    QVBoxLayout *m_column;
    QPushButton *m_add;
    QList<Row> m_rows;
};
