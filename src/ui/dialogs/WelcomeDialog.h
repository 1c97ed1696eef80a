#pragma once

#include "ui/dialogs/FormDialog.h"

class AppState;
class QPushButton;
class QVBoxLayout;

/// Greets on the first launch: what the program is for, the settings that people differ in, and ways to bring
/// in what they have. Settings take effect at once.
class WelcomeDialog : public FormDialog {
    Q_OBJECT

public:
    explicit WelcomeDialog(AppState *state, QWidget *parent = nullptr);

signals:
    /// The dialog has closed; what the user chose instead is for the window to open.
    void importRequested();
    void addCalendarRequested();

private:
    void addPromises();
    void addSettings();
    void addWaysToBegin();
    void addPromise(QVBoxLayout *column, char16_t glyph, const QString &text);
    void onSettingChosen();

    AppState *m_state;
    QPushButton *m_close = nullptr;
};
