#pragma once

#include "models/FilterRule.h"
#include "ui/dialogs/FormDialog.h"

#include <functional>

class AppState;
class CalendarChecklist;
class FilterEventChoice;
class FilterPreview;
class FilterPatternEditor;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;
class FilterTimeEditor;
struct Event;

/// Creates and edits a filter rule of any kind, with a preview of what it would hit.
class FilterFormDialog : public FormDialog {
    Q_OBJECT

public:
    explicit FilterFormDialog(AppState *state, QWidget *parent = nullptr);
    FilterFormDialog(AppState *state, const FilterRule &rule, QWidget *parent = nullptr);

    /// Fills every kind of condition from an event: its title, its start, the event itself.
    void seedFromEvent(const Event &event);

    [[nodiscard]] QString resultRuleId() const { return m_resultId; } ///< of the rule that was stored
    /// What the form says now, valid or not.
    [[nodiscard]] FilterRule rule() const;

    /// Asks, deletes, and then calls \p onDeleted.
    static void askToDelete(AppState *state, const FilterRule &rule, QWidget *parent,
                            std::function<void()> onDeleted = {});

protected:
    bool save() override;

private:
    void build();
    void buildConditions();
    void buildScope();
    void buildEffect();
    void watchEdits();
    void load(const FilterRule &rule);
    void loadEvent(const FilterRule &rule);
    void selectKind(const QString &type);
    void onKindChanged();
    void onEdited();
    bool validate();
    [[nodiscard]] QString kind() const; ///< one of FilterType
    [[nodiscard]] QString conditionsJson() const;

    AppState *m_state;
    FilterRule m_original;
    bool m_editing = false;
    QString m_resultId;
    QFormLayout *m_form = nullptr;
    QLineEdit *m_name = nullptr;
    QComboBox *m_kind = nullptr;
    FilterPatternEditor *m_pattern = nullptr;
    FilterTimeEditor *m_time = nullptr;
    QCheckBox *m_allDayRecurring = nullptr;
    FilterEventChoice *m_event = nullptr;
    QComboBox *m_action = nullptr;
    QCheckBox *m_suppress = nullptr;
    QCheckBox *m_enabled = nullptr;
    QSpinBox *m_priority = nullptr;
    QComboBox *m_scope = nullptr;
    CalendarChecklist *m_calendars = nullptr;
    FilterPreview *m_preview = nullptr;
};
