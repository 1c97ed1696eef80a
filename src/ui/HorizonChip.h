#pragma once

#include <QHash>
#include <QToolButton>

class AppState;
class QAction;

/// Shows how many days the days timeline spans, and lets the user choose.
class HorizonChip : public QToolButton {
    Q_OBJECT

public:
    explicit HorizonChip(AppState *state, QWidget *parent = nullptr);

    static QString label(int days); ///< as the menu shows it

private:
    void buildMenu();
    void showHorizon();
    void updateIcon();

    AppState *m_state;
    QHash<int, QAction *> m_actions; // by number of days
};
