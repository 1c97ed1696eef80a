#pragma once

#include <QWidget>

class AppState;
class QLabel;

/// What the centre of the window shows while there is no calendar.
class NoAccountsPage : public QWidget {
    Q_OBJECT

public:
    explicit NoAccountsPage(AppState *state, QWidget *parent = nullptr);

signals:
    void addRequested();

private:
    void applyTheme();

    QLabel *m_body;
};
