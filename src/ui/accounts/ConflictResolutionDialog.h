#pragma once

#include "ui/dialogs/FormDialog.h"

class AppState;
class QLabel;
class QListWidget;
class QPushButton;
struct Event;

namespace Sync {
enum class ConflictResolution;
}

/// The events that were changed here and on a server, and which version of each to keep.
class ConflictResolutionDialog : public FormDialog {
    Q_OBJECT

public:
    explicit ConflictResolutionDialog(AppState *state, QWidget *parent = nullptr);

private:
    void buildPanels();
    void buildButtons();
    void rebuildList();
    void showConflict(int row);
    void onKeepLocal();
    void onKeepServer();
    void onSkip();
    void resolveCurrent(Sync::ConflictResolution resolution);
    [[nodiscard]] QString describe(const Event &event) const; ///< as rich text

    AppState *m_state;
    QListWidget *m_list;
    QLabel *m_empty;
    QWidget *m_panels;
    QLabel *m_heading;
    QLabel *m_local;
    QLabel *m_remote;
    QList<QPushButton *> m_choices;
};
