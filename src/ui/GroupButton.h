#pragma once

#include <QToolButton>

class AppState;
struct ViewDef;

/// Names the active calendar group, and has the menu to choose, add, edit and delete groups.
class GroupButton : public QToolButton {
    Q_OBJECT

public:
    explicit GroupButton(AppState *state, QWidget *parent = nullptr);

    void refresh();
    /// Opens the form for a new group over \p window, and activates what was stored.
    static void createGroup(AppState *state, QWidget *window);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showName();
    void addGroupEntries(QMenu *menu, const QList<ViewDef> &groups);
    void addEditEntries(QMenu *menu, const ViewDef *active);

    AppState *m_state;
    QString m_name; // of the active group
};
