#pragma once

#include <QWidget>

class QLineEdit;

/// A password, hidden unless its owner asks to see it.
class PasswordField : public QWidget {
    Q_OBJECT

public:
    explicit PasswordField(QWidget *parent = nullptr);

    [[nodiscard]] QLineEdit *edit() const { return m_edit; }
    [[nodiscard]] QString text() const; ///< as typed, with blanks

private:
    QLineEdit *m_edit;
};
