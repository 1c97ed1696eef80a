#pragma once

#include "ui/dialogs/FormDialog.h"

#include <QString>

class AppState;
class QLineEdit;
class QPushButton;
class QTimer;

/// One line of English with a live preview of what it would store.
class QuickAddDialog : public FormDialog {
    Q_OBJECT

public:
    explicit QuickAddDialog(AppState *state, QWidget *parent);

signals:
    void added(const QString &title); ///< stored

protected:
    bool save() override;

private:
    void buildPreview();
    void refresh();
    void showKind(const QString &kind, const QString &title, const QString &when, const QString &calendarId);

    AppState *m_state;
    QLineEdit *m_line;
    QLabel *m_kind = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_when = nullptr;
    QLabel *m_calendar = nullptr;
    QLabel *m_hint = nullptr;
    QPushButton *m_add = nullptr;
    QTimer *m_clock; // "in 30 mins" moves on while the line stands
};
