#pragma once

#include <QToolButton>

class AppState;

/// The button in the status bar that says how many filters are on and how many events they hide, with a
/// menu to switch them.
class FiltersPill : public QToolButton {
    Q_OBJECT

public:
    explicit FiltersPill(AppState *state, QWidget *parent = nullptr);

    /// What the pill says; \p hidden is -1 before the first count.
    static QString label(int enabledRules, int hidden);

signals:
    void addRequested();
    void manageRequested();

private:
    void rebuildMenu();
    void updateLabel();
    void updateIcon();
    void setAllEnabled(bool enabled);

    AppState *m_state;
};
