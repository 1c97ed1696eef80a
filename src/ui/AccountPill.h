#pragma once

#include <QToolButton>

class AppState;

/// The button in the status bar that says how many accounts cannot sync until their owner does something. Not there
/// while all is well.
class AccountPill : public QToolButton {
    Q_OBJECT

public:
    explicit AccountPill(AppState *state, QWidget *parent = nullptr);

private:
    void refresh();
    void showCounts(int needAuth, int needPassword, int needReview);
    void updateLook();

    AppState *m_state;
};
