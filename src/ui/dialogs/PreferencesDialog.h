#pragma once

#include "ui/dialogs/FormDialog.h"

class AppState;
class ColorButton;
class QComboBox;
class QSpinBox;
class QTimer;

/// The user's settings. Each takes effect at once, but the language, which waits for the next launch.
class PreferencesDialog : public FormDialog {
    Q_OBJECT

public:
    explicit PreferencesDialog(AppState *state, QWidget *parent = nullptr);
    ~PreferencesDialog() override;

private:
    QWidget *buildAppearancePage();
    QWidget *buildCalendarPage();
    QWidget *buildGeneralPage();
    void fillWorkdayHours();
    void fillDefaultCalendar(QComboBox *combo);
    void fillLanguages(QComboBox *combo);
    void onWorkdayChanged(bool startMoved);
    void applyFontScale();

    AppState *m_state;
    ColorButton *m_accent = nullptr;
    QSpinBox *m_fontScale = nullptr;
    QTimer *m_fontScaleTimer = nullptr;
    QComboBox *m_workdayStart = nullptr;
    QComboBox *m_workdayEnd = nullptr;
};
